#include "properties/prepared_correlation.h"

#include <memory>

#include "properties/pure_value.h"
#include "runtime/checked.h"

namespace velor {

namespace {

constexpr double kBelowCritical = 0.98;

std::size_t blockIndex(int k) {
    if (k < 1 || k > TLatka::kCorrelations) [[unlikely]]
        checked::raise(RunTimeError::kSubscript);
    return static_cast<std::size_t>(k - 1);
}

}  // namespace

PreparedCorrelation::PreparedCorrelation(const TLatka& record, int number, int k) {
    const TKorelace& block = record.Korelace[blockIndex(k)];
    isGiven_ = block.Priznak != 0;
    hasEquation_ = isEquationType(block.Typ);
    isSilent_ = isGiven_ && hasEquation_;
    if (hasEquation_) equation_ = PreparedEquation(block.Typ, block.A);
    isWaterDensity_ = k == kROLW && number == kWater;
    Tmin_ = block.Tmin;
    Tmax_ = block.Tmax;
    if (!isTakenBelowCritical(k, record.Tkr, highest_)) return;
    highest_ = record.Tkr;
    belowCritical_ = kBelowCritical * record.Tkr;
}

double PreparedCorrelation::valueAt(double Tx) const { return isWaterDensity_ ? waterDensity(Tx) : equation_(Tx); }

const PreparedCorrelation& preparedCorrelation(State& state, int i, int k) {
    if (!state.prepared.correlations) state.prepared.correlations = std::make_shared<PreparedCorrelations>();
    PreparedCorrelations::Kept& kept = state.prepared.correlations->kept[ComponentSlots::index(i)][blockIndex(k)];
    const ComponentSlots& slots = state.definition.slots;
    if (kept.revision != slots.revision())
        kept = {slots.revision(), PreparedCorrelation(slots.Latka(i), slots.CisloLatky(i), k)};
    return kept.correlation;
}

}  // namespace velor
