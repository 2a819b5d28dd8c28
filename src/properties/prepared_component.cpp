#include "properties/prepared_component.h"

#include "properties/pure_value.h"
#include "runtime/checked.h"

namespace velor {

namespace {

constexpr double kMegapascal = 1e6;
constexpr double kReferencePressure = 0.101325;  // MPa

}  // namespace

PreparedComponent::PreparedComponent(const TLatka& record, const ComponentSettings& settings)
    : record_(record), isClamped_(settings.isClamped) {
    try {
        prepareGas(settings.attraction);
    } catch (const RunTimeError&) {
        gasReference_.reset();  // every state of the real gas will lack it
    }
}

void PreparedComponent::prepareGas(Attraction attraction) {
    cubic_ = cubicComponent(attraction, record_.Tkr, record_.Pkr / kMegapascal, record_.Acent);
    const double Tb = record_.Tnbv;
    if (!(Tb > 0)) return;
    const double one = 1.0;
    const CubicParameters pure = mixtureParameters(attraction, Tb, {&one, 1}, {&*cubic_, 1});
    const CubicState residual = residualState(Tb, kReferencePressure, gasVolume(Tb, kReferencePressure, pure).V, pure);
    const double DHV = correlation(kDHV, Tb);
    gasReference_ = {DHV - residual.enthalpy, checked::divide(DHV, Tb) - residual.entropy,
                     HeatCapacityIntegral(heatCapacityOf(record_, isClamped_), Tb)};
}

double PreparedComponent::correlation(int k, const Temperature& T) const {
    try {
        return correlationValue(record_, record_.Cislo, isClamped_, T, k);
    } catch (const RunTimeError&) {
        return kNoValue;
    }
}

PropertyValue PreparedComponent::pure(int k, const Temperature& T) const {
    const TKorelace& block = record_.Korelace[static_cast<std::size_t>(k - 1)];
    if (block.Priznak == 0) return {Standing::NotGiven};
    if (!isEquationType(block.Typ)) return {Standing::Failed};
    try {
        return judged(correlationValue(record_, record_.Cislo, isClamped_, T, k), record_, isClamped_, T, k);
    } catch (const RunTimeError&) {
        return {Standing::Failed};
    }
}

}  // namespace velor
