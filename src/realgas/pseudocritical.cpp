#include "realgas/pseudocritical.h"

#include <cmath>
#include <optional>

#include "mixture/composition_rules.h"
#include "mixture/fractions.h"
#include "realgas/pseudocritical_rules.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "smes/trap.h"
#include "velor/smes.h"

namespace velor {

namespace {

constexpr double kSumTolerance = 0.002;
constexpr double kLeastSum = 0.25;  // a smaller sum is not normalised

void setMembers(State& state, const Variant& T, const Variant& P, const Variant& V, const Variant& Z,
                const Variant& M) {
    state.TKRITsm = T;
    state.PKRITsm = P;
    state.VKRITsm = V;
    state.ZKRITsm = Z;
    state.MSm = M;
}

// Copies X into Slozeni, normalised where that is due; false when the sum is too small to go on. Only a message that
// may be shown makes the sum matter: with messages off any sum is used as passed, by design.
bool takeNormalised(State& state, const Composition& X, ComponentValues& x) {
    const int n = state.PocSlozek;
    x = takeFractions(state, X);
    const double sum = sumOf(x.first(n));
    if (!(std::abs(1.0 - sum) > kSumTolerance) || !mixtureMessageIsDue(state)) return true;
    showCounted(state, "Směs složení není definováno nebo normalizováno!", Icon::Exclamation);
    if (!(sum > kLeastSum)) return false;
    for (int i = 1; i <= n; ++i) {
        x[i] = checked::divide(x[i], sum);
        state.Slozeni.set(i, x[i]);
    }
    return true;
}

// Fills the five members; nothing, and the members 0, where there is nothing to compute.
std::optional<Pseudocritical> computePseudocritical(State& state, const Composition& X) {
    const std::int16_t zero = 0;
    setMembers(state, zero, zero, zero, zero, zero);
    if (state.PocSlozek <= 0 && mixtureMessageIsDue(state)) {
        showCounted(state, "Směs není definována!", Icon::Exclamation);
        return std::nullopt;
    }
    const int n = state.PocSlozek;
    ComponentValues x(n), M(n), Tc(n), Pc(n), Vc(n);
    if (!takeNormalised(state, X, x)) return std::nullopt;
    for (int i = 1; i <= n; ++i) {
        const TLatka& record = state.slots.Latka(i);
        M[i] = record.Mv;
        Tc[i] = record.Tkr;
        Pc[i] = record.Pkr;
        Vc[i] = record.Vkr;
    }
    const Pseudocritical mixture = pseudocriticalValues(x.first(n), M.first(n), Tc.first(n), Pc.first(n), Vc.first(n));
    for (const double value :
         {mixture.temperature, mixture.pressure, mixture.volume, mixture.compressibility, mixture.molarMass})
        checked::finite(value);
    setMembers(state, mixture.temperature, mixture.pressure, mixture.volume, mixture.compressibility,
               mixture.molarMass);
    return mixture;
}

}  // namespace

Pseudocritical PSEUD(State& state, const Composition& X) {
    return computePseudocritical(state, X).value_or(Pseudocritical{});
}

Variant Smes::PSEUD(const Variant& X, const std::string& Sel) {
    State& state = *state_;
    loadComponents(state);
    const std::string choice = upperCase(Sel);
    const bool computed = computePseudocritical(state, Composition(X)).has_value();
    if (computed && choice == "T") return state.TKRITsm;
    if (computed && choice == "P") return state.PKRITsm;
    if (computed && choice == "V") return state.VKRITsm;
    if (computed && choice == "Z") return state.ZKRITsm;
    if (computed && choice == "M") return state.MSm;
    return "PSEUD?";
}

void Smes::PseudShow(const Variant& X) {
    PSEUD(X, "");
    const State& state = *state_;
    const std::string end(kLineBreak);
    show(*state_,
         "Pseudokritické veličiny směsi " + end + mixtureName(state) + end +
             "TKRITsm(K) = " + Format(state.TKRITsm.toDouble(), "0.0") + end +
             "PKRITsm(MPa) = " + Format(state.PKRITsm.toDouble() / 1000000, "0.000") + end +
             "VKRITsm(m3/mol) = " + Format(state.VKRITsm.toDouble(), "0.000E+00") + end +
             "ZKRITsm(-) = " + Format(state.ZKRITsm.toDouble(), "0.0000") + end,
         Icon::Information);
}

Variant Smes::TKRITsm() const { return state_->TKRITsm; }
Variant Smes::PKRITsm() const { return state_->PKRITsm; }
Variant Smes::VKRITsm() const { return state_->VKRITsm; }
Variant Smes::ZKRITsm() const { return state_->ZKRITsm; }
Variant Smes::MSm() const { return state_->MSm; }

}  // namespace velor
