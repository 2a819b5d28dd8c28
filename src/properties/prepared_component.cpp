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
    for (int k = 1; k <= kProperties; ++k)
        correlations_[static_cast<std::size_t>(k - 1)] = PreparedCorrelation(record, record.Cislo, k);
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
    const double DHV = valueAsBuilt(kDHV, Tb);
    gasReference_ = {DHV - residual.enthalpy, checked::divide(DHV, Tb) - residual.entropy,
                     HeatCapacityIntegral(heatCapacityOf(record_, isClamped_), Tb)};
}

double PreparedComponent::valueAsBuilt(int k, const Temperature& T) const {
    if (!correlation(k).hasEquation()) return kNoValue;
    try {
        return correlation(k).value(T, isClamped_);
    } catch (const RunTimeError&) {
        return kNoValue;
    }
}

PropertyValue PreparedComponent::pure(int k, const Temperature& T) const {
    const PreparedCorrelation& prepared = correlation(k);
    if (!prepared.isGiven()) return {Standing::NotGiven};
    if (!prepared.hasEquation()) return {Standing::Failed};
    try {
        return judged(prepared.value(T, isClamped_), prepared.standing(T, isClamped_));
    } catch (const RunTimeError&) {
        return {Standing::Failed};
    }
}

}  // namespace velor
