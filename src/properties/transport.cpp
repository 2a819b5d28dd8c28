// Viscosity and conductivity of the gas under pressure, and the groups built on them.
#include <optional>

#include "object/trap.h"
#include "properties/composition.h"
#include "properties/gas.h"
#include "properties/pseudocritical.h"
#include "properties/state_functions.h"
#include "rules/dense_gas.h"
#include "velor/smes.h"

namespace velor {

namespace {

using LowPressure = std::optional<double> (*)(State&, HostNumber, const Composition&);
using Excess = double (*)(const Pseudocritical&, const double&);

// No value where the real gas's density is missing: the low-pressure value alone would pass for an answer.
std::optional<double> underPressure(State& state, HostNumber T, HostNumber P, const Composition& X,
                                    LowPressure lowPressure, Excess excess) {
    const Pseudocritical mixture = PSEUD(state, X);
    const std::optional<double> density = RROGW(state, T, P, X);
    if (!density) return std::nullopt;
    const double reducedDensity = checked::divide(*density * mixture.volume, mixture.molarMass);
    const double added = excess(mixture, reducedDensity);
    return lowPressure(state, T, X).value_or(0.0) + added;
}

std::optional<double> viscosity(State& state, HostNumber T, HostNumber P, const Composition& X) {
    return underPressure(state, T, P, X, ETAG, excessViscosity);
}

std::optional<double> conductivity(State& state, HostNumber T, HostNumber P, const Composition& X) {
    return underPressure(state, T, P, X, ALAG, excessConductivity);
}

std::string retagTitle(const HostNumber& T) { return titleAtTemperature("RETAG", T); }

std::string ralagTitle(const HostNumber& T, const HostNumber& P) {
    return titleAtTemperature("RALAG", T) + " ,P(Pa)= " + P.text("#0");
}

std::optional<double> RETAG(State& state, HostNumber T, HostNumber P, const Composition& X) {
    return trapped(
        state.messages, [&] { return retagTitle(T); }, [&] { return viscosity(state, T, P, X); });
}

std::optional<double> RALAG(State& state, HostNumber T, HostNumber P, const Composition& X) {
    return trapped(
        state.messages, [&] { return ralagTitle(T, P); }, [&] { return conductivity(state, T, P, X); });
}

}  // namespace

Variant Smes::RETAG(const Variant& T, const Variant& P, const Variant& X) {
    return trappedMethod(
        *state_, [&] { return retagTitle(T); }, [&] { return viscosity(*state_, T, P, Composition(X)); });
}

Variant Smes::RALAG(const Variant& T, const Variant& P, const Variant& X) {
    return trappedMethod(
        *state_, [&] { return ralagTitle(T, P); }, [&] { return conductivity(*state_, T, P, Composition(X)); });
}

Variant Smes::PrG(const Variant& T, const Variant& P, const Variant& X) {
    State& state = *state_;
    return method(state, [&]() -> std::optional<double> {
        const Composition x(X);
        const auto heatCapacity = realGasMemberPerMass(state, &RealGasState::Cp, T, P, x);
        const auto eta = velor::RETAG(state, T, P, x);
        const auto lambda = velor::RALAG(state, T, P, x);
        if (!heatCapacity || !eta || !lambda) return std::nullopt;
        return checked::divide(*heatCapacity * *eta, *lambda);
    });
}

Variant Smes::ReG(const Variant& T, const Variant& P, const Variant& X, const Variant& a, const Variant& b) {
    State& state = *state_;
    return method(state, [&]() -> std::optional<double> {
        const Composition x(X);
        const auto density = velor::RROGW(state, T, P, x);
        const double size = a.toDouble() * b.toDouble();
        const auto eta = velor::RETAG(state, T, P, x);
        if (!density || !eta) return std::nullopt;
        return checked::divide(*density * size, *eta);
    });
}

}  // namespace velor
