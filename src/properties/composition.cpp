// Checking, normalising and converting fractions.
#include "properties/composition.h"

#include <cmath>
#include <span>
#include <string>
#include <vector>

#include "object/trap.h"
#include "rules/composition.h"
#include "runtime/numbers.h"
#include "velor/smes.h"

namespace velor {

namespace {

constexpr const char* kNoConversion = "Chyba";

std::vector<double> readFractions(const State& state, const Variant& X) {
    std::vector<double> x;
    for (int i = 1; i <= state.definition.PocSlozek; ++i) x.push_back(X.at(i).toDouble());
    return x;
}

std::vector<double> molarMasses(const State& state) {
    std::vector<double> M;
    for (int i = 1; i <= state.definition.PocSlozek; ++i) M.push_back(state.definition.slots.Latka(i).Mv);
    return M;
}

std::string vsmTitle() { return "VELOR - VSM"; }

using Conversion = void (*)(std::span<const double>, std::span<const double>, std::span<double>);

// Fractions that are zero take part; no count of the others is checked, deliberately.
Variant convert(State& state, const Variant& from, Variant& to, Conversion conversion) {
    const PublicCall call(state);
    if (state.definition.PocSlozek <= 0) return kNoConversion;
    const std::vector<double> given = readFractions(state, from);
    std::vector<double> converted(given.size());
    conversion(given, molarMasses(state), converted);
    for (int i = 1; i <= state.definition.PocSlozek; ++i) {
        const double fraction = checked::finite(converted[static_cast<std::size_t>(i - 1)]);
        state.last.Zlomky.set(i, fraction);
        to.at(i) = fraction;
    }
    return state.definition.PocSlozek;
}

}  // namespace

double molarMass(const State& state, const Composition& X) {
    double sum = 0.0;  // added up while it is gathered: most methods need it
    for (int i = 1; i <= state.definition.PocSlozek; ++i) sum += X.at(i) * state.definition.slots.Latka(i).Mv;
    return sum;
}

std::optional<double> VSM(State& state, const Composition& X) {
    return trapped(state.messages, vsmTitle, [&] { return molarMass(state, X); });
}

Variant Smes::VSM(const Variant& X) {
    return trappedMethod(*state_, vsmTitle, [&] { return molarMass(*state_, Composition(X)); });
}

void Smes::Normal(Variant& X) const {
    const PublicCall call(*state_);
    std::vector<double> x = readFractions(*state_, X);
    if (!(std::abs(1.0 - sumOf(x)) > kFractionTolerance)) return;
    normalise(x);
    for (int i = 1; i <= state_->definition.PocSlozek; ++i) X.at(i) = x[static_cast<std::size_t>(i - 1)];
}

Variant Smes::KsumX(const Variant& X) {
    const PublicCall call(*state_);
    State& state = *state_;
    const double sum = checked::finite(sumOf(readFractions(state, X)));
    // A sum of exactly 0 means that no composition was given, and is accepted.
    if (sum == 0.0 || std::abs(1.0 - sum) <= kFractionTolerance) return "";
    if (mixtureMessageIsDue(state.messages))
        showCounted(state.messages, "Součet zlom.složení směsi není 1!", Icon::Exclamation,
                    mixtureName(state.settings));
    return "ERR sl.";
}

Variant Smes::Cohmo(const Variant& X, Variant& W) { return convert(*state_, X, W, massFractions); }
Variant Smes::Comol(const Variant& W, Variant& X) { return convert(*state_, W, X, moleFractions); }

Variant Smes::Zlomky(int i) const { return state_->last.Zlomky.at(checkedInt16(i)); }
Variant Smes::Slozeni(int i) const { return state_->last.Slozeni.at(checkedInt16(i)); }

// Sets a result and overwrites it with a value that nobody assigned, as built.
Variant Smes::PocetSmesi(const Variant&) const { return {}; }

}  // namespace velor
