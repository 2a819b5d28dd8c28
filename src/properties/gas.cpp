// Properties of the gas mixture at low pressure.
#include "properties/gas.h"

#include <vector>

#include "properties/composition.h"
#include "properties/pure_value.h"
#include "rules/composition.h"
#include "rules/gas.h"
#include "velor/smes.h"

namespace velor {

// The pair factors of the conductivity, kept while no record and not the count of components changes.
struct PreparedGasMixing {
    std::uint64_t revision = 0;
    int components = 0;
    std::vector<PairFactor> pairs;
};

namespace {

// For the n components that were gathered: a message box may have led the host to define others meanwhile.
std::span<const PairFactor> pairFactors(State& state, int n) {
    const PreparedGasMixing* kept = state.prepared.gasMixing.get();
    if (!kept || kept->revision != state.definition.slots.revision() || kept->components != n) {
        PreparedGasMixing prepared{state.definition.slots.revision(), n, {}};
        for (int i = 1; i <= n; ++i)
            for (int j = 1; j <= n; ++j)
                prepared.pairs.push_back(
                    i == j ? PairFactor{}
                           : pairFactor(state.definition.slots.Latka(i).Mv, state.definition.slots.Latka(j).Mv));
        state.prepared.gasMixing = std::make_shared<PreparedGasMixing>(std::move(prepared));
    }
    return state.prepared.gasMixing->pairs;
}

double viscosity(State& state, const Temperature& T, const Composition& X) {
    const int n = state.definition.PocSlozek;
    ComponentValues x(n), M(n), eta(n);
    for (int i = 1; i <= n; ++i) {
        x[i] = takeFraction(state, X, i);
        M[i] = state.definition.slots.Latka(i).Mv;
        if (x[i] > 0.0) eta[i] = FFce(state, T, i, kETAG);
    }
    return gasViscosity(x.first(n), M.first(n), eta.first(n));
}

double conductivity(State& state, const Temperature& T, const Composition& X) {
    const int n = state.definition.PocSlozek;
    if (n == 1) return FFce(state, T, 1, kALAG);
    const ComponentValues x = takeFractions(state, X);
    ComponentValues eta(n), lambda(n);
    for (int i = 1; i <= n; ++i) eta[i] = FFce(state, T, i, kETAG);
    for (int i = 1; i <= n; ++i) lambda[i] = FFce(state, T, i, kALAG);
    return gasConductivity(x.first(n), pairFactors(state, n), eta.first(n), lambda.first(n));
}

double heatCapacity(State& state, const Temperature& T, const Composition& X) {
    const int n = state.definition.PocSlozek;
    ComponentValues x(n), Cp(n);
    for (int i = 1; i <= n; ++i) {
        x[i] = takeFraction(state, X, i);
        Cp[i] = FFce(state, T, i, kCPG);
    }
    return moleMean(x.first(n), Cp.first(n));
}

}  // namespace

std::optional<double> ETAG(State& state, HostNumber T, const Composition& X) {
    return trapped(
        state.messages, [&] { return titleAtTemperature("ETAG", T); },
        [&] { return viscosity(state, T.toDouble(), X); });
}

std::optional<double> ALAG(State& state, HostNumber T, const Composition& X) {
    return trapped(
        state.messages, [&] { return titleAtTemperature("ALAG", T); },
        [&] { return conductivity(state, T.toDouble(), X); });
}

Variant Smes::ETAG(const Variant& T, const Variant& X) {
    return trappedMethod(
        *state_, [&] { return titleAtTemperature("ETAG", T); },
        [&] { return viscosity(*state_, T.toDouble(), Composition(X)); });
}

Variant Smes::ALAG(const Variant& T, const Variant& X) {
    return trappedMethod(
        *state_, [&] { return titleAtTemperature("ALAG", T); },
        [&] { return conductivity(*state_, T.toDouble(), Composition(X)); });
}

Variant Smes::CPG(const Variant& T, const Variant& X) {
    return method(*state_, [&] { return heatCapacity(*state_, T.toDouble(), Composition(X)); });
}

Variant Smes::CPGW(const Variant& T, const Variant& X) {
    return method(*state_, [&] {
        const double molar = heatCapacity(*state_, T.toDouble(), Composition(X));
        return checked::divide(molar, velor::VSM(*state_, Composition(X)).value_or(0.0));
    });
}

Variant Smes::ROGW(const Variant& T, const Variant& P, const Variant& X) {
    return trappedMethod(
        *state_, [&] { return titleAtTemperature("ROGW", T); },
        [&] {
            const double M = velor::VSM(*state_, Composition(X)).value_or(0.0);
            return idealGasDensity(T.toDouble(), P.toDouble(), M);
        });
}

}  // namespace velor
