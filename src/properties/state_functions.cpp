// State functions of the real gas: each solves the state anew and returns one member of it.
#include "properties/state_functions.h"

#include <string>

#include "object/trap.h"
#include "properties/composition.h"
#include "properties/tevrp.h"
#include "velor/smes.h"

namespace velor {

namespace {

constexpr double kCubicCentimetres = 1000000.0;  // in a cubic metre

using Member = std::optional<double> RealGasState::*;

Variant molar(State& state, Member member, const Variant& T, const Variant& P, const Variant& X) {
    return method(state, [&] { return realGasMember(state, member, T, P, Composition(X)); });
}

Variant perMass(State& state, Member member, const Variant& T, const Variant& P, const Variant& X) {
    return method(state, [&] { return realGasMemberPerMass(state, member, T, P, Composition(X)); });
}

// No value where the state could not be solved.
std::optional<double> massDensity(State& state, HostNumber T, HostNumber P, const Composition& X) {
    const std::optional<double> density = realGasMember(state, &RealGasState::density, T, P, X);
    if (!density) return std::nullopt;
    return molarMass(state, X) * *density * kCubicCentimetres;
}

std::string rrogwTitle(const HostNumber& T, const HostNumber& P) {
    return titleAtTemperature("RROGW", T) + " ,P(Pa)= " + P.text("#0");
}

}  // namespace

std::optional<double> realGasMember(State& state, Member member, HostNumber T, HostNumber P, const Composition& X) {
    TEVRP(state, 1, T, P, X);
    return state.last.realGas.*member;
}

std::optional<double> realGasMemberPerMass(State& state, Member member, HostNumber T, HostNumber P,
                                           const Composition& X) {
    const std::optional<double> value = realGasMember(state, member, T, P, X);
    if (!value) return std::nullopt;
    return checked::divide(*value, VSM(state, X).value_or(0.0));
}

std::optional<double> RROGW(State& state, HostNumber T, HostNumber P, const Composition& X) {
    return trapped(
        state.messages, [&] { return rrogwTitle(T, P); }, [&] { return massDensity(state, T, P, X); });
}

Variant Smes::RROGW(const Variant& T, const Variant& P, const Variant& X) {
    return trappedMethod(
        *state_, [&] { return rrogwTitle(T, P); }, [&] { return massDensity(*state_, T, P, Composition(X)); });
}

Variant Smes::RHG(const Variant& T, const Variant& P, const Variant& X) {
    return molar(*state_, &RealGasState::enthalpy, T, P, X);
}
Variant Smes::RHGW(const Variant& T, const Variant& P, const Variant& X) {
    return perMass(*state_, &RealGasState::enthalpy, T, P, X);
}
Variant Smes::RSG(const Variant& T, const Variant& P, const Variant& X) {
    return molar(*state_, &RealGasState::entropy, T, P, X);
}
Variant Smes::RSGW(const Variant& T, const Variant& P, const Variant& X) {
    return perMass(*state_, &RealGasState::entropy, T, P, X);
}
Variant Smes::RUG(const Variant& T, const Variant& P, const Variant& X) {
    return molar(*state_, &RealGasState::internalEnergy, T, P, X);
}
Variant Smes::RUGW(const Variant& T, const Variant& P, const Variant& X) {
    return perMass(*state_, &RealGasState::internalEnergy, T, P, X);
}
Variant Smes::RCPG(const Variant& T, const Variant& P, const Variant& X) {
    return molar(*state_, &RealGasState::Cp, T, P, X);
}
Variant Smes::RCPGW(const Variant& T, const Variant& P, const Variant& X) {
    return perMass(*state_, &RealGasState::Cp, T, P, X);
}
Variant Smes::RCVG(const Variant& T, const Variant& P, const Variant& X) {
    return molar(*state_, &RealGasState::Cv, T, P, X);
}
Variant Smes::RCVGW(const Variant& T, const Variant& P, const Variant& X) {
    return perMass(*state_, &RealGasState::Cv, T, P, X);
}
Variant Smes::LnFug(const Variant& T, const Variant& P, const Variant& X) {
    return molar(*state_, &RealGasState::lnFug, T, P, X);
}
Variant Smes::JTkoef(const Variant& T, const Variant& P, const Variant& X) {
    return molar(*state_, &RealGasState::jouleThomson, T, P, X);
}

Variant Smes::Kapa(const Variant& T, const Variant& P, const Variant& X) {
    return method(*state_, [&]() -> std::optional<double> {
        const auto Cp = realGasMember(*state_, &RealGasState::Cp, T, P, Composition(X));
        if (!Cp) return std::nullopt;
        return checked::divide(*Cp, state_->last.realGas.Cv.value_or(0.0));
    });
}

Variant Smes::RGHustota() const { return asVariant(state_->last.realGas.density); }
Variant Smes::RGVnitrniEnergie() const { return asVariant(state_->last.realGas.internalEnergy); }
Variant Smes::RGEntalpie() const { return asVariant(state_->last.realGas.enthalpy); }
Variant Smes::RGEntropie() const { return asVariant(state_->last.realGas.entropy); }
Variant Smes::RGLnFug() const { return asVariant(state_->last.realGas.lnFug); }
Variant Smes::RGCv() const { return asVariant(state_->last.realGas.Cv); }
Variant Smes::RGCp() const { return asVariant(state_->last.realGas.Cp); }
Variant Smes::RGJouleThomson() const { return asVariant(state_->last.realGas.jouleThomson); }

}  // namespace velor
