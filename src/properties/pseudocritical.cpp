#include "properties/pseudocritical.h"

#include <cmath>
#include <optional>

#include "object/trap.h"
#include "properties/fractions.h"
#include "rules/composition.h"
#include "rules/pseudocritical.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "velor/smes.h"

namespace velor {

namespace {

constexpr double kSumTolerance = 0.002;
constexpr double kLeastSum = 0.25;  // a smaller sum is not normalised

// Empty before the first PSEUD, the integer 0 after one that gave up.
Variant member(const State& state, double Pseudocritical::*number) {
    const LastPseudocritical& last = state.last.pseudocritical;
    if (!last.wasTried) return {};
    if (!last.value) return std::int16_t{0};
    return *last.value.*number;
}

// Copies X into Slozeni, normalised where that is due; false when the sum is too small to go on. Only a message that
// may be shown makes the sum matter: with messages off any sum is used as passed, by design.
bool takeNormalised(State& state, const Composition& X, ComponentValues& x) {
    const int n = state.definition.PocSlozek;
    x = takeFractions(state, X);
    const double sum = sumOf(x.first(n));
    if (!(std::abs(1.0 - sum) > kSumTolerance) || !mixtureMessageIsDue(state.messages)) return true;
    showCounted(state.messages, "Směs složení není definováno nebo normalizováno!", Icon::Exclamation);
    if (!(sum > kLeastSum)) return false;
    for (int i = 1; i <= n; ++i) {
        x[i] = checked::divide(x[i], sum);
        state.last.Slozeni.set(i, x[i]);
    }
    return true;
}

// Fills the five members; nothing, and the members 0, where there is nothing to compute.
std::optional<Pseudocritical> computePseudocritical(State& state, const Composition& X) {
    state.last.pseudocritical = {true, std::nullopt};
    if (state.definition.PocSlozek <= 0 && mixtureMessageIsDue(state.messages)) {
        showCounted(state.messages, "Směs není definována!", Icon::Exclamation);
        return std::nullopt;
    }
    const int n = state.definition.PocSlozek;
    ComponentValues x(n), M(n), Tc(n), Pc(n), Vc(n);
    if (!takeNormalised(state, X, x)) return std::nullopt;
    for (int i = 1; i <= n; ++i) {
        const TLatka& record = state.definition.slots.Latka(i);
        M[i] = record.Mv;
        Tc[i] = record.Tkr;
        Pc[i] = record.Pkr;
        Vc[i] = record.Vkr;
    }
    const Pseudocritical mixture = pseudocriticalValues(x.first(n), M.first(n), Tc.first(n), Pc.first(n), Vc.first(n));
    for (const double value :
         {mixture.temperature, mixture.pressure, mixture.volume, mixture.compressibility, mixture.molarMass})
        checked::finite(value);
    state.last.pseudocritical.value = mixture;
    return mixture;
}

}  // namespace

Pseudocritical PSEUD(State& state, const Composition& X) {
    return computePseudocritical(state, X).value_or(Pseudocritical{});
}

Variant Smes::PSEUD(const Variant& X, const std::string& Sel) {
    const PublicCall call(*state_);
    State& state = *state_;
    loadComponents(state);
    const std::string choice = upperCase(Sel);
    const bool computed = computePseudocritical(state, Composition(X)).has_value();
    if (computed && choice == "T") return TKRITsm();
    if (computed && choice == "P") return PKRITsm();
    if (computed && choice == "V") return VKRITsm();
    if (computed && choice == "Z") return ZKRITsm();
    if (computed && choice == "M") return MSm();
    return "PSEUD?";
}

void Smes::PseudShow(const Variant& X) {
    const PublicCall call(*state_);
    PSEUD(X, "");
    const State& state = *state_;
    const std::string end(kLineBreak);
    show(state_->messages,
         "Pseudokritické veličiny směsi " + end + mixtureName(state.settings) + end +
             "TKRITsm(K) = " + Format(TKRITsm().toDouble(), "0.0") + end +
             "PKRITsm(MPa) = " + Format(PKRITsm().toDouble() / 1000000, "0.000") + end +
             "VKRITsm(m3/mol) = " + Format(VKRITsm().toDouble(), "0.000E+00") + end +
             "ZKRITsm(-) = " + Format(ZKRITsm().toDouble(), "0.0000") + end,
         Icon::Information);
}

Variant Smes::TKRITsm() const { return member(*state_, &Pseudocritical::temperature); }
Variant Smes::PKRITsm() const { return member(*state_, &Pseudocritical::pressure); }
Variant Smes::VKRITsm() const { return member(*state_, &Pseudocritical::volume); }
Variant Smes::ZKRITsm() const { return member(*state_, &Pseudocritical::compressibility); }
Variant Smes::MSm() const { return member(*state_, &Pseudocritical::molarMass); }

}  // namespace velor
