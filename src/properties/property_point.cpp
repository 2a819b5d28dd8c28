#include "properties/property_point.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "properties/stability.h"
#include "rules/composition.h"
#include "rules/dense_gas.h"
#include "rules/liquid.h"
#include "runtime/checked.h"
#include "runtime/physical_constants.h"
#include "velor/smes.h"

namespace velor {

namespace {

// The thresholds of the object's methods, which differ, as built.
constexpr double kTrace = 1e-06;
constexpr double kLeastConductivity = 1e-06;

constexpr double kMegapascal = 1e6;
constexpr double kCubicCentimetres = 1e6;        // in a cubic metre
constexpr double kReferencePressure = 0.101325;  // MPa

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

}  // namespace

PropertyPoint::PropertyPoint(const PreparedComponents& mixture, std::span<const double> fractions) : mixture_(mixture) {
    for (std::size_t i = 0; i < fractions.size(); ++i) {
        if (!(fractions[i] > 0)) continue;
        present_[count_] = &mixture.components[i];
        index_[count_] = i;
        x_[count_++] = fractions[i];
    }
}

// ---- Gathering ---------------------------------------------------------------------------------------------------

void PropertyPoint::take(Standing standing) { worst_ = std::max(worst_, standing); }

void PropertyPoint::gatherPure(Property k) {
    for (std::size_t i = 0; i < count_; ++i) {
        const PropertyValue found = component(i).pure(k, T_);
        take(found.standing);
        values_[k][i] = found.value;
    }
}

// Each at the temperature that gives the component the mixture's reduced temperature; of a single one at T itself.
void PropertyPoint::gatherReducedDensities() {
    const double Tr = count_ == 1 ? 0 : reducedTemperature(T_);
    for (std::size_t i = 0; i < count_; ++i) {
        const PropertyValue found = component(i).pure(kROLW, count_ == 1 ? double{T_} : Tr * component(i).record().Tkr);
        take(found.standing);
        values_[kReducedROLW][i] = found.value;
    }
}

// What the object mixes of components below their critical temperatures only.
void PropertyPoint::gatherHeatOfVaporisation() {
    for (std::size_t i = 0; i < count_; ++i) {
        const bool isLeftOut = T_ >= component(i).record().Tkr;
        const PropertyValue found = isLeftOut ? PropertyValue{Standing::LeftOut} : component(i).pure(kDHV, T_);
        take(found.standing);
        values_[kDHV][i] = found.value;
    }
}

void PropertyPoint::gather(const MixtureProperty& property) {
    for (const PureProperty& pure : pureProperties()) {
        if (!property.correlations.contains(pure.number)) continue;
        pure.number == kDHV ? gatherHeatOfVaporisation() : gatherPure(pure.number);
    }
    if (property.correlations.contains(kReducedROLW)) gatherReducedDensities();
}

double PropertyPoint::reducedTemperature(double T) const {
    Values Vc, Tc;
    for (std::size_t i = 0; i < count_; ++i) {
        Vc[i] = component(i).record().Vkr;
        Tc[i] = component(i).record().Tkr;
    }
    return checked::divide(T, volumeMeanTemperature(x(), of(Vc), of(Tc)));
}

PropertyPoint& PropertyPoint::at(double T, double P) {
    T_ = Temperature(T);
    P_ = P;
    return *this;
}

PropertyValue PropertyPoint::value(const MixtureProperty& property, double T, double P, bool isVerdictRead) {
    if (count_ == 0) return {Standing::Failed, kNone};
    at(T, P);
    worst_ = Standing::InRange;
    try {
        if (property.outcome)
            if (const auto missing = missingVapourPressure()) return {*missing, kNone};
        if (property.outcome) return property.outcome == &Smes::lastBubblePoint ? bubblePoint() : dewPoint();
        gather(property);
        if (!PropertyValue{worst_}.isComputed()) return {worst_, kNone};
        const double found = checked::finite((this->*property.evaluate)());
        if (property.isIntegral && worst_ != Standing::InRange) worst_ = Standing::Extrapolated;
        const bool isOfGasAtPressure = property.phase == Phase::Gas && property.needsPressure;
        if (isVerdictRead && isOfGasAtPressure && isMetastableGas()) worst_ = Standing::Metastable;
        return {worst_, found};
    } catch (const RunTimeError&) {
        return {Standing::Failed, kNone};
    }
}

bool PropertyPoint::isMetastableGas() const {
    const auto sums = raoultSums(
        count_, P_, true, [&](std::size_t i) { return x_[i]; },
        [&](std::size_t i) { return component(i).pure(kTENS, T_); },
        [&](std::size_t i) { return T_ >= component(i).record().Tkr; });
    return sums && sums->isMetastableGas();
}

// ---- The liquid --------------------------------------------------------------------------------------------------

double PropertyPoint::VSM() {
    double sum = 0.0;
    for (std::size_t i = 0; i < count_; ++i) sum += x_[i] * component(i).record().Mv;
    return sum;
}

double PropertyPoint::perMass(double molar) { return checked::divide(molar, VSM()); }

double PropertyPoint::densityOf(const Values& pureDensities) {
    if (count_ == 1) return pureDensities[0];
    Values volumes{};
    for (std::size_t i = 0; i < count_; ++i)
        if (x_[i] > kTrace) volumes[i] = molarVolume(component(i).record().Mv, pureDensities[i]);
    return liquidDensity(x(), of(volumes), VSM());
}

double PropertyPoint::ROLW() { return densityOf(values_[kReducedROLW]); }

double PropertyPoint::ObjRozL() {
    constexpr double kStep = 3.0;  // K, backwards
    const double T = T_ - kStep;
    const double Tr = count_ == 1 ? 0 : reducedTemperature(T);
    Values colder;
    for (std::size_t i = 0; i < count_; ++i) {
        const PropertyValue found = component(i).pure(kROLW, count_ == 1 ? T : Tr * component(i).record().Tkr);
        if (!found.isComputed()) checked::raise(RunTimeError::kInvalidCall);
        colder[i] = found.value;
    }
    const double rho = ROLW();
    return checked::divide((densityOf(colder) - rho) / kStep, rho);
}

double PropertyPoint::CPL() { return moleMean(x(), of(values_[kCPL])); }
double PropertyPoint::CPLW() { return perMass(CPL()); }

double PropertyPoint::ETAL() {
    if (count_ == 1) return values_[kETAL][0];
    Values logarithms;
    double carried = 0.0;  // a trace takes the value of the component before it, the first one 0, as built
    for (std::size_t i = 0; i < count_; ++i) {
        if (x_[i] > kTrace)
            carried = logarithmOfMolarViscosity(values_[kETAL][i], component(i).record().Mv, values_[kROLW][i]);
        logarithms[i] = carried;
    }
    return dynamicViscosity(meanMolarViscosity(x(), of(logarithms)), ROLW(), VSM());
}

double PropertyPoint::ALAL() {
    Values M, lambda;
    for (std::size_t i = 0; i < count_; ++i) {
        M[i] = component(i).record().Mv;
        lambda[i] = std::max(values_[kALAL][i], kLeastConductivity);
    }
    return reciprocalSquareConductivity(VSM(), x(), of(M), of(lambda));
}

double PropertyPoint::DHV() {
    double sum = 0.0;
    for (std::size_t i = 0; i < count_; ++i)
        if (x_[i] > kTrace) sum += x_[i] * values_[kDHV][i];
    return sum;
}
double PropertyPoint::DHVW() { return perMass(DHV()); }

double PropertyPoint::SIGMA() {
    if (count_ == 1) return values_[kSIGMA][0];
    Values parachors;
    for (std::size_t i = 0; i < count_; ++i) parachors[i] = parachor(values_[kSIGMA][i], values_[kROLW][i]);
    return liquidSurfaceTension(x(), of(parachors), ROLW());
}

double PropertyPoint::TENS() {
    double sum = 0.0;
    for (std::size_t i = 0; i < count_; ++i)
        if (x_[i] > kTrace) sum += x_[i] * values_[kTENS][i];
    return sum;
}

double PropertyPoint::HL() {
    double sum = 0.0;
    for (std::size_t i = 0; i < count_; ++i) {
        const TKorelace& heatCapacity = component(i).record().Korelace[kCPL - 1];
        const int degree = polynomialDegree(heatCapacity.Typ);
        if (x_[i] > kTrace && degree > 0)
            sum += x_[i] * polynomialIntegral(degree, heatCapacity.A, component(i).record().Tnbv, T_);
    }
    return sum;
}
double PropertyPoint::HLW() { return perMass(HL()); }

double PropertyPoint::SL() {
    double sum = 0.0;
    for (std::size_t i = 0; i < count_; ++i) {
        const TKorelace& heatCapacity = component(i).record().Korelace[kCPL - 1];
        const int degree = polynomialDegree(heatCapacity.Typ);
        if (degree > 0) sum += x_[i] * polynomialIntegralOverT(degree, heatCapacity.A, component(i).record().Tnbv, T_);
    }
    return sum;
}
double PropertyPoint::SLW() { return perMass(SL()); }

double PropertyPoint::PrL() { return checked::divide(CPLW() * ETAL(), ALAL()); }

// ---- The gas -----------------------------------------------------------------------------------------------------

double PropertyPoint::ETAG() {
    Values M;
    for (std::size_t i = 0; i < count_; ++i) M[i] = component(i).record().Mv;
    return gasViscosity(x(), of(M), of(values_[kETAG]));
}

double PropertyPoint::ALAG() {
    if (count_ == 1) return values_[kALAG][0];
    if (mixture_.pairs.empty()) checked::raise(RunTimeError::kDivisionByZero);
    const std::size_t n = mixture_.components.size();
    std::array<PairFactor, kMostComponents * kMostComponents> pairs;
    for (std::size_t i = 0; i < count_; ++i)
        for (std::size_t j = 0; j < count_; ++j) pairs[i * count_ + j] = mixture_.pairs[index_[i] * n + index_[j]];
    return gasConductivity(x(), std::span(pairs).first(count_ * count_), of(values_[kETAG]), of(values_[kALAG]));
}

double PropertyPoint::CPG() { return moleMean(x(), of(values_[kCPG])); }
double PropertyPoint::CPGW() { return perMass(CPG()); }
double PropertyPoint::ROGW() { return idealGasDensity(T_, P_, VSM()); }

PropertyPoint::DenseGas PropertyPoint::denseGas() const {
    if (P_ == 0) checked::raise(RunTimeError::kDivisionByZero);
    std::array<CubicComponent, kMostComponents> cubics;
    for (std::size_t i = 0; i < count_; ++i) {
        if (!component(i).cubic()) checked::raise(RunTimeError::kDivisionByZero);
        cubics[i] = *component(i).cubic();
    }
    DenseGas gas{P_ / kMegapascal, 0,
                 mixtureParameters(mixture_.settings.attraction, T_, x(), std::span(cubics).first(count_))};
    gas.V = gasVolume(T_, gas.p, gas.parameters).V;
    return gas;
}

double PropertyPoint::RROGW() { return VSM() * checked::divide(1.0, denseGas().V) * kCubicCentimetres; }

double PropertyPoint::LnFug() {
    const DenseGas gas = denseGas();
    return logFugacityCoefficient(T_, gas.p, gas.V, gas.parameters);
}

double PropertyPoint::referenced(double GasReference::*constant,
                                 double (*integral)(const HeatCapacityIntegral&, const Temperature&)) const {
    double sum = 0.0;
    for (std::size_t i = 0; i < count_; ++i) {
        if (!component(i).gasReference()) checked::raise(RunTimeError::kInvalidCall);
        const GasReference& reference = *component(i).gasReference();
        sum += x_[i] * (reference.*constant + integral(reference.idealGas, T_));
    }
    return sum;
}

double PropertyPoint::enthalpy(const DenseGas& gas) const {
    const double ideal = referenced(
        &GasReference::enthalpy, [](const HeatCapacityIntegral& Cp, const Temperature& T) { return Cp.enthalpy(T); });
    return ideal + residualState(T_, gas.p, gas.V, gas.parameters).enthalpy;
}

double PropertyPoint::RHG() { return enthalpy(denseGas()); }
double PropertyPoint::RHGW() { return perMass(RHG()); }

double PropertyPoint::RUG() {
    const DenseGas gas = denseGas();
    return enthalpy(gas) - gas.p * gas.V;
}
double PropertyPoint::RUGW() { return perMass(RUG()); }

double PropertyPoint::RSG() {
    const DenseGas gas = denseGas();
    double sum = referenced(&GasReference::entropy, [](const HeatCapacityIntegral& Cp, const Temperature& T) {
        return Cp.entropy(T, T.logarithm());
    });
    for (const double fraction : x()) sum -= fraction * kGasConstant * checked::naturalLogarithm(fraction);
    return sum - kGasConstant * std::log(gas.p / kReferencePressure) +
           residualState(T_, gas.p, gas.V, gas.parameters).entropy;
}
double PropertyPoint::RSGW() { return perMass(RSG()); }

double PropertyPoint::heatCapacityV(const CubicState& residual) {
    return CPG() - kGasConstant + residual.heatCapacityV;
}

double PropertyPoint::heatCapacityP(const CubicState& residual) {
    return heatCapacityV(residual) - checked::divide(T_ * residual.dpdT * residual.dpdT, residual.dpdV);
}

CubicState PropertyPoint::residual(const DenseGas& gas) const {
    return residualState(T_, gas.p, gas.V, gas.parameters);
}

double PropertyPoint::RCPG() { return heatCapacityP(residual(denseGas())); }
double PropertyPoint::RCPGW() { return perMass(RCPG()); }
double PropertyPoint::RCVG() { return heatCapacityV(residual(denseGas())); }
double PropertyPoint::RCVGW() { return perMass(RCVG()); }

double PropertyPoint::Kapa() {
    const CubicState state = residual(denseGas());
    return checked::divide(heatCapacityP(state), heatCapacityV(state));
}

double PropertyPoint::JTkoef() {
    const DenseGas gas = denseGas();
    const CubicState state = residual(gas);
    const double throttling = -T_ * checked::divide(state.dpdT, state.dpdV) - gas.V;
    return checked::divide(throttling, heatCapacityP(state)) / kMegapascal;
}

Pseudocritical PropertyPoint::pseudocritical() const {
    Values M, Tc, Pc, Vc;
    for (std::size_t i = 0; i < count_; ++i) {
        const TLatka& record = component(i).record();
        M[i] = record.Mv;
        Tc[i] = record.Tkr;
        Pc[i] = record.Pkr;
        Vc[i] = record.Vkr;
    }
    return pseudocriticalValues(x(), of(M), of(Tc), of(Pc), of(Vc));
}

double PropertyPoint::excess(double (*rule)(const Pseudocritical&, double)) {
    const Pseudocritical mixture = pseudocritical();
    return rule(mixture, checked::divide(RROGW() * mixture.volume, mixture.molarMass));
}

double PropertyPoint::RETAG() { return ETAG() + excess(excessViscosity); }
double PropertyPoint::RALAG() { return ALAG() + excess(excessConductivity); }

}  // namespace velor
