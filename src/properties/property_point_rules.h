// The properties of a point over any number; included by those who instantiate them.
#pragma once

#include <algorithm>
#include <concepts>
#include <string_view>

#include "properties/property_point.h"
#include "rules/composition.h"
#include "rules/dense_gas.h"
#include "rules/liquid.h"
#include "runtime/checked.h"
#include "runtime/physical_constants.h"

namespace velor {

namespace point {

// The thresholds of the object's methods, which differ, as built.
inline constexpr double kTrace = 1e-06;
inline constexpr double kLeastConductivity = 1e-06;

inline constexpr double kMegapascal = 1e6;
inline constexpr double kCubicCentimetres = 1e6;        // in a cubic metre
inline constexpr double kReferencePressure = 0.101325;  // MPa

inline double volumeOf(double T, double p, const CubicParameters& mixture) { return gasVolume(T, p, mixture).V; }
template <class Number>
Number volumeOf(const Number& T, const Number& p, const BasicCubicParameters<Number>& mixture) {
    return gasVolumes(T, p, mixture);
}

// Alone the whole state is solved, as by the object: where a part of it does not exist nothing does.
inline double residualEnthalpyOf(double T, double p, double V, const CubicParameters& mixture) {
    return residualState(T, p, V, mixture).enthalpy;
}
inline double residualEntropyOf(double T, double p, double V, const CubicParameters& mixture) {
    return residualState(T, p, V, mixture).entropy;
}
template <class Number>
Number residualEnthalpyOf(const Number& T, const Number& p, const Number& V,
                          const BasicCubicParameters<Number>& mixture) {
    return residualEnthalpy(T, p, V, mixture);
}
template <class Number>
Number residualEntropyOf(const Number& T, const Number& p, const Number& V,
                         const BasicCubicParameters<Number>& mixture) {
    return residualEntropy(T, p, V, mixture);
}

inline double enthalpyOf(const HeatCapacityIntegral& Cp, const Temperature& T) { return Cp.enthalpy(T); }
inline double entropyOf(const HeatCapacityIntegral& Cp, const Temperature& T) { return Cp.entropy(T, T.logarithm()); }
template <class Number>
Number enthalpyOf(const HeatCapacityIntegral& Cp, const BasicTemperature<Number>& T) {
    return Cp.enthalpies(T.kelvin());
}
template <class Number>
Number entropyOf(const HeatCapacityIntegral& Cp, const BasicTemperature<Number>& T) {
    return Cp.entropies(T.kelvin(), T.logarithm());
}

}  // namespace point

template <class Number>
BasicPropertyPoint<Number>::BasicPropertyPoint(const PreparedComponents& mixture, std::span<const double> fractions)
    : mixture_(mixture) {
    for (std::size_t i = 0; i < fractions.size(); ++i) {
        if (!(fractions[i] > 0)) continue;
        present_[count_] = &mixture.components[i];
        index_[count_] = i;
        x_[count_++] = fractions[i];
    }
}

template <class Number>
BasicPropertyPoint<Number>& BasicPropertyPoint<Number>::at(const Number& T, const Number& P) {
    T_ = At(T);
    P_ = P;
    return *this;
}

template <class Number>
Number BasicPropertyPoint<Number>::value(const MixtureProperty& property, Evaluation<Number> evaluate) {
    using namespace numbers;
    standings_ = {};
    if (property.outcome) {
        // Without a pressure nothing boils or condenses.
        const auto isPressure = P_ > 0.0;
        if (!isAll(isPressure)) standings_.takeWhere(!isPressure, Standing::Failed);
        return hasVapourPressures() ? select(isPressure, (this->*evaluate)(), kNan) : Number(kNan);
    }
    absence_ = 0.0;
    gather(property);
    return standings_.isComputed() ? finite((this->*evaluate)() + absence_) : Number(kNan);
}

// ---- Gathering ---------------------------------------------------------------------------------------------------

template <class Number>
Number BasicPropertyPoint<Number>::pure(std::size_t i, Property k, const At& T, Standings<Number>& standings) const {
    if constexpr (std::same_as<Number, double>) {
        const PropertyValue found = component(i).pure(k, T);
        standings.take(found.standing);
        return found.isComputed() ? found.value : numbers::kNan;
    } else {
        return component(i).pure(k, T, standings);
    }
}

template <class Number>
Number BasicPropertyPoint<Number>::pure(std::size_t i, Property k, const At& T) const {
    Standings<Number> ignored;
    return pure(i, k, T, ignored);
}

// A rule need not look at all that was gathered: what has no value leaves none to the mixture either.
template <class Number>
void BasicPropertyPoint<Number>::keep(Property k, std::size_t i, const Number& value) {
    values_[k][i] = value;
    if constexpr (!std::same_as<Number, double>) absence_ += 0.0 * value;  // of a single one the standings tell it
}

template <class Number>
void BasicPropertyPoint<Number>::gatherPure(Property k) {
    for (std::size_t i = 0; i < count_; ++i) keep(k, i, pure(i, k, T_, standings_));
}

// Each at the temperature that gives the component the mixture's reduced temperature; of a single one at T itself.
template <class Number>
void BasicPropertyPoint<Number>::gatherReducedDensities() {
    if (count_ == 1) {
        keep(kReducedROLW, 0, pure(0, kROLW, T_, standings_));
        return;
    }
    const Number Tr = reducedTemperature(T_);
    for (std::size_t i = 0; i < count_; ++i)
        keep(kReducedROLW, i, pure(i, kROLW, At(Tr * component(i).record().Tkr), standings_));
}

// What the object mixes of components below their critical temperatures only.
template <class Number>
void BasicPropertyPoint<Number>::gatherHeatOfVaporisation() {
    using namespace numbers;
    for (std::size_t i = 0; i < count_; ++i) {
        const auto isLeftOut = T_.kelvin() >= component(i).record().Tkr;
        standings_.takeWhere(isLeftOut, Standing::LeftOut);
        keep(kDHV, i, isAll(isLeftOut) ? Number(0.0) : select(isLeftOut, 0.0, pure(i, kDHV, T_, standings_)));
    }
}

template <class Number>
void BasicPropertyPoint<Number>::gather(const MixtureProperty& property) {
    for (int k = kETAG; k <= kSIGMA; ++k) {
        const auto pure = static_cast<Property>(k);
        if (!property.correlations.contains(pure)) continue;
        pure == kDHV ? gatherHeatOfVaporisation() : gatherPure(pure);
    }
    if (property.correlations.contains(kReducedROLW)) gatherReducedDensities();
}

template <class Number>
Number BasicPropertyPoint<Number>::reducedTemperature(const Number& T) const {
    using numbers::divide;
    const Constants Vc = constants(&TLatka::Vkr), Tc = constants(&TLatka::Tkr);
    return divide(T, volumeMeanTemperature(x(), first(Vc), first(Tc)));
}

template <class Number>
Number BasicPropertyPoint<Number>::condensing() const {
    using namespace numbers;
    Number sum = 0.0;
    for (std::size_t i = 0; i < count_; ++i) {
        const auto isGas = T_.kelvin() >= component(i).record().Tkr;
        if (isAll(isGas)) continue;
        const Number Ps = pure(i, kTENS, T_);
        sum += select(isGas, 0.0, x_[i] * P_ / Ps + 0.0 * Ps);
    }
    return sum;
}

// ---- The liquid --------------------------------------------------------------------------------------------------

template <class Number>
double BasicPropertyPoint<Number>::molarMass() const {
    double sum = 0.0;
    for (std::size_t i = 0; i < count_; ++i) sum += x_[i] * component(i).record().Mv;
    return sum;
}

template <class Number>
Number BasicPropertyPoint<Number>::VSM() {
    return molarMass();
}

template <class Number>
Number BasicPropertyPoint<Number>::perMass(const Number& molar) {
    using numbers::divide;
    return divide(molar, molarMass());
}

template <class Number>
Number BasicPropertyPoint<Number>::densityOf(const Values& pureDensities) {
    if (count_ == 1) return pureDensities[0];
    Values volumes;
    for (std::size_t i = 0; i < count_; ++i)
        volumes[i] = x_[i] > point::kTrace ? molarVolume(component(i).record().Mv, pureDensities[i]) : Number(0.0);
    return liquidDensity(x(), of(volumes), molarMass());
}

template <class Number>
Number BasicPropertyPoint<Number>::ROLW() {
    return densityOf(values_[kReducedROLW]);
}

template <class Number>
Number BasicPropertyPoint<Number>::ObjRozL() {
    using namespace numbers;
    // Of nearly equal densities the last bits count, in which lanes differ.
    if constexpr (!std::same_as<Number, double>) return kNan;
    constexpr double kStep = 3.0;  // K, backwards
    const Number T = T_.kelvin() - kStep;
    const Number Tr = count_ == 1 ? Number(0.0) : reducedTemperature(T);
    Values colder;
    for (std::size_t i = 0; i < count_; ++i)
        colder[i] = finite(pure(i, kROLW, At(count_ == 1 ? T : Tr * component(i).record().Tkr)));
    const Number rho = ROLW();
    return divide((densityOf(colder) - rho) / kStep, rho);
}

template <class Number>
Number BasicPropertyPoint<Number>::CPL() {
    return moleMean<Number>(x(), of(values_[kCPL]));
}
template <class Number>
Number BasicPropertyPoint<Number>::CPLW() {
    return perMass(CPL());
}

template <class Number>
Number BasicPropertyPoint<Number>::ETAL() {
    if (count_ == 1) return values_[kETAL][0];
    Values logarithms;
    Number carried = 0.0;  // a trace takes the value of the component before it, the first one 0, as built
    for (std::size_t i = 0; i < count_; ++i) {
        if (x_[i] > point::kTrace)
            carried = logarithmOfMolarViscosity<Number>(values_[kETAL][i], component(i).record().Mv, values_[kROLW][i]);
        logarithms[i] = carried;
    }
    return dynamicViscosity<Number>(meanMolarViscosity(x(), of(logarithms)), ROLW(), molarMass());
}

template <class Number>
Number BasicPropertyPoint<Number>::ALAL() {
    using numbers::larger;
    const Constants M = constants(&TLatka::Mv);
    Values lambda;
    for (std::size_t i = 0; i < count_; ++i) lambda[i] = larger(values_[kALAL][i], point::kLeastConductivity);
    return reciprocalSquareConductivity(molarMass(), x(), first(M), of(lambda));
}

template <class Number>
Number BasicPropertyPoint<Number>::DHV() {
    Number sum = 0.0;
    for (std::size_t i = 0; i < count_; ++i)
        if (x_[i] > point::kTrace) sum += x_[i] * values_[kDHV][i];
    return sum;
}
template <class Number>
Number BasicPropertyPoint<Number>::DHVW() {
    return perMass(DHV());
}

template <class Number>
Number BasicPropertyPoint<Number>::SIGMA() {
    if (count_ == 1) return values_[kSIGMA][0];
    Values parachors;
    for (std::size_t i = 0; i < count_; ++i) parachors[i] = parachor(values_[kSIGMA][i], values_[kROLW][i]);
    return liquidSurfaceTension(x(), of(parachors), ROLW());
}

template <class Number>
Number BasicPropertyPoint<Number>::TENS() {
    Number sum = 0.0;
    for (std::size_t i = 0; i < count_; ++i)
        if (x_[i] > point::kTrace) sum += x_[i] * values_[kTENS][i];
    return sum;
}

template <class Number>
Number BasicPropertyPoint<Number>::HL() {
    Number sum = 0.0;
    for (std::size_t i = 0; i < count_; ++i) {
        const TKorelace& heatCapacity = component(i).record().Korelace[kCPL - 1];
        const int degree = polynomialDegree(heatCapacity.Typ);
        if (x_[i] > point::kTrace && degree > 0)
            sum += x_[i] * polynomialIntegral(degree, heatCapacity.A, component(i).record().Tnbv, T_.kelvin());
    }
    return sum;
}
template <class Number>
Number BasicPropertyPoint<Number>::HLW() {
    return perMass(HL());
}

template <class Number>
Number BasicPropertyPoint<Number>::SL() {
    Number sum = 0.0;
    for (std::size_t i = 0; i < count_; ++i) {
        const TKorelace& heatCapacity = component(i).record().Korelace[kCPL - 1];
        const int degree = polynomialDegree(heatCapacity.Typ);
        if (degree > 0)
            sum += x_[i] * polynomialIntegralOverT(degree, heatCapacity.A, component(i).record().Tnbv, T_.kelvin());
    }
    return sum;
}
template <class Number>
Number BasicPropertyPoint<Number>::SLW() {
    return perMass(SL());
}

template <class Number>
Number BasicPropertyPoint<Number>::PrL() {
    using numbers::divide;
    return divide(CPLW() * ETAL(), ALAL());
}

// ---- The gas -----------------------------------------------------------------------------------------------------

template <class Number>
Number BasicPropertyPoint<Number>::ETAG() {
    const Constants M = constants(&TLatka::Mv);
    return gasViscosity(x(), first(M), of(values_[kETAG]));
}

template <class Number>
Number BasicPropertyPoint<Number>::ALAG() {
    if (count_ == 1) return values_[kALAG][0];
    if (mixture_.pairs.empty()) checked::raise(RunTimeError::kDivisionByZero);
    const std::size_t n = mixture_.components.size();
    std::array<PairFactor, kMostComponents * kMostComponents> pairs;
    for (std::size_t i = 0; i < count_; ++i)
        for (std::size_t j = 0; j < count_; ++j) pairs[i * count_ + j] = mixture_.pairs[index_[i] * n + index_[j]];
    return gasConductivity(x(), std::span<const PairFactor>(pairs).first(count_ * count_), of(values_[kETAG]),
                           of(values_[kALAG]));
}

template <class Number>
Number BasicPropertyPoint<Number>::CPG() {
    return moleMean<Number>(x(), of(values_[kCPG]));
}
template <class Number>
Number BasicPropertyPoint<Number>::CPGW() {
    return perMass(CPG());
}
template <class Number>
Number BasicPropertyPoint<Number>::ROGW() {
    return idealGasDensity(T_.kelvin(), P_, molarMass());
}

template <class Number>
typename BasicPropertyPoint<Number>::DenseGas BasicPropertyPoint<Number>::denseGas() const {
    std::array<CubicComponent, kMostComponents> cubics;
    for (std::size_t i = 0; i < count_; ++i) {
        if (!component(i).cubic()) checked::raise(RunTimeError::kDivisionByZero);
        cubics[i] = *component(i).cubic();
    }
    const Number p = P_ / point::kMegapascal;
    const auto parameters = mixtureParameters(mixture_.settings.attraction, T_.kelvin(), x(),
                                              std::span<const CubicComponent>(cubics).first(count_));
    return {p, point::volumeOf(T_.kelvin(), p, parameters), parameters};
}

template <class Number>
Number BasicPropertyPoint<Number>::RROGW() {
    using numbers::divide;
    return molarMass() * divide(1.0, denseGas().V) * point::kCubicCentimetres;
}

template <class Number>
Number BasicPropertyPoint<Number>::LnFug() {
    const DenseGas gas = denseGas();
    return logFugacityCoefficient(T_.kelvin(), gas.p, gas.V, gas.parameters);
}

template <class Number>
template <class Integral>
Number BasicPropertyPoint<Number>::referenced(double GasReference::*constant, const Integral& integral) const {
    Number sum = 0.0;
    for (std::size_t i = 0; i < count_; ++i) {
        if (!component(i).gasReference()) checked::raise(RunTimeError::kInvalidCall);
        const GasReference& reference = *component(i).gasReference();
        sum += x_[i] * (reference.*constant + integral(reference.idealGas));
    }
    return sum;
}

template <class Number>
Number BasicPropertyPoint<Number>::enthalpy(const DenseGas& gas) const {
    const Number ideal =
        referenced(&GasReference::enthalpy, [&](const HeatCapacityIntegral& Cp) { return point::enthalpyOf(Cp, T_); });
    return ideal + point::residualEnthalpyOf(T_.kelvin(), gas.p, gas.V, gas.parameters);
}

template <class Number>
Number BasicPropertyPoint<Number>::RHG() {
    return enthalpy(denseGas());
}
template <class Number>
Number BasicPropertyPoint<Number>::RHGW() {
    return perMass(RHG());
}

template <class Number>
Number BasicPropertyPoint<Number>::RUG() {
    const DenseGas gas = denseGas();
    return enthalpy(gas) - gas.p * gas.V;
}
template <class Number>
Number BasicPropertyPoint<Number>::RUGW() {
    return perMass(RUG());
}

template <class Number>
Number BasicPropertyPoint<Number>::RSG() {
    using numbers::naturalLogarithm;
    const DenseGas gas = denseGas();
    Number sum =
        referenced(&GasReference::entropy, [&](const HeatCapacityIntegral& Cp) { return point::entropyOf(Cp, T_); });
    for (const double fraction : x()) sum -= fraction * kGasConstant * naturalLogarithm(fraction);
    return sum - kGasConstant * naturalLogarithm(gas.p / point::kReferencePressure) +
           point::residualEntropyOf(T_.kelvin(), gas.p, gas.V, gas.parameters);
}
template <class Number>
Number BasicPropertyPoint<Number>::RSGW() {
    return perMass(RSG());
}

template <class Number>
Number BasicPropertyPoint<Number>::heatCapacityV(const BasicCubicState<Number>& residual) {
    return CPG() - kGasConstant + residual.heatCapacityV;
}

template <class Number>
Number BasicPropertyPoint<Number>::heatCapacityP(const BasicCubicState<Number>& residual) {
    using numbers::divide;
    return heatCapacityV(residual) - divide(T_.kelvin() * residual.dpdT * residual.dpdT, residual.dpdV);
}

template <class Number>
BasicCubicState<Number> BasicPropertyPoint<Number>::residual(const DenseGas& gas) const {
    return residualState(T_.kelvin(), gas.p, gas.V, gas.parameters);
}

template <class Number>
Number BasicPropertyPoint<Number>::RCPG() {
    return heatCapacityP(residual(denseGas()));
}
template <class Number>
Number BasicPropertyPoint<Number>::RCPGW() {
    return perMass(RCPG());
}
template <class Number>
Number BasicPropertyPoint<Number>::RCVG() {
    return heatCapacityV(residual(denseGas()));
}
template <class Number>
Number BasicPropertyPoint<Number>::RCVGW() {
    return perMass(RCVG());
}

template <class Number>
Number BasicPropertyPoint<Number>::Kapa() {
    using numbers::divide;
    const BasicCubicState<Number> state = residual(denseGas());
    return divide(heatCapacityP(state), heatCapacityV(state));
}

template <class Number>
Number BasicPropertyPoint<Number>::JTkoef() {
    using numbers::divide;
    const DenseGas gas = denseGas();
    const BasicCubicState<Number> state = residual(gas);
    const Number throttling = -T_.kelvin() * divide(state.dpdT, state.dpdV) - gas.V;
    return divide(throttling, heatCapacityP(state)) / point::kMegapascal;
}

template <class Number>
Pseudocritical BasicPropertyPoint<Number>::pseudocritical() const {
    const Constants M = constants(&TLatka::Mv), Tc = constants(&TLatka::Tkr), Pc = constants(&TLatka::Pkr),
                    Vc = constants(&TLatka::Vkr);
    return pseudocriticalValues(x(), first(M), first(Tc), first(Pc), first(Vc));
}

template <class Number>
Number BasicPropertyPoint<Number>::reducedDensity(const Pseudocritical& mixture) {
    using numbers::divide;
    return divide(RROGW() * mixture.volume, mixture.molarMass);
}

template <class Number>
Number BasicPropertyPoint<Number>::RETAG() {
    const Pseudocritical mixture = pseudocritical();
    return ETAG() + excessViscosity(mixture, reducedDensity(mixture));
}

template <class Number>
Number BasicPropertyPoint<Number>::RALAG() {
    const Pseudocritical mixture = pseudocritical();
    return ALAG() + excessConductivity(mixture, reducedDensity(mixture));
}

// ---- By name -----------------------------------------------------------------------------------------------------

template <class Number>
struct NamedEvaluation {
    std::string_view code;  // of the catalogue
    Evaluation<Number> function;
};

template <class Number>
inline constexpr auto kEvaluations = [] {
    using Point = BasicPropertyPoint<Number>;
    return std::to_array<NamedEvaluation<Number>>({
        {"VSM", &Point::VSM},   {"TBV", &Point::TBV},         {"TRB", &Point::TRB},       {"ROLW", &Point::ROLW},
        {"CPL", &Point::CPL},   {"CPLW", &Point::CPLW},       {"ETAL", &Point::ETAL},     {"ALAL", &Point::ALAL},
        {"DHV", &Point::DHV},   {"DHVW", &Point::DHVW},       {"SIGMA", &Point::SIGMA},   {"TENS", &Point::TENS},
        {"HL", &Point::HL},     {"HLW", &Point::HLW},         {"SL", &Point::SL},         {"SLW", &Point::SLW},
        {"PRL", &Point::PrL},   {"OBJROZL", &Point::ObjRozL}, {"ETAG", &Point::ETAG},     {"RETAG", &Point::RETAG},
        {"CPG", &Point::CPG},   {"CPGW", &Point::CPGW},       {"RCPG", &Point::RCPG},     {"RCPGW", &Point::RCPGW},
        {"ALAG", &Point::ALAG}, {"RALAG", &Point::RALAG},     {"ROGW", &Point::ROGW},     {"RROGW", &Point::RROGW},
        {"RUG", &Point::RUG},   {"RUGW", &Point::RUGW},       {"RHG", &Point::RHG},       {"RHGW", &Point::RHGW},
        {"RSG", &Point::RSG},   {"RSGW", &Point::RSGW},       {"RCVG", &Point::RCVG},     {"RCVGW", &Point::RCVGW},
        {"KAPA", &Point::Kapa}, {"LNFUG", &Point::LnFug},     {"JTKOEF", &Point::JTkoef},
    });
}();

}  // namespace velor
