#include "table/flash_point.h"

#include <algorithm>
#include <limits>

#include "properties/stability.h"
#include "rules/composition.h"
#include "runtime/checked.h"

namespace velor {

namespace {

SaturationOutcome outcomeOf(const PropertyValue& point) {
    if (point.isComputed()) return SaturationOutcome::Converged;
    return point.standing == Standing::Diverged ? SaturationOutcome::Diverged : SaturationOutcome::Failed;
}

// A gas above its critical temperature keeps the dew point of the rest from telling what is all vapour.
bool tells(const PropertyValue& dew) { return dew.isComputed() && dew.standing != Standing::Inert; }

double orNone(const PropertyValue& point) { return point.isComputed() ? point.value : 0.0; }

}  // namespace

FlashPoint::FlashPoint(const PreparedComponents& mixture, FlashKind kind) : mixture_(mixture) {
    const std::size_t n = mixture.components.size();
    for (auto* const room : {&slopes_, &solution_.x, &solution_.y, &found_.feed, &found_.liquid, &found_.vapour})
        room->resize(n);
    found_.equilibrium.reserve(n);
    found_.kind = kind;
}

PropertyValue FlashPoint::value(const PointProperty& property, std::span<const double> fractions, double T) const {
    PropertyPoint point = of(fractions);
    return valueAt(point, property, T, P_, false);
}

Standing FlashPoint::standing(const PointProperty& property, std::span<const double> fractions, double T) const {
    return value(property, fractions, T).standing;
}

Standing FlashPoint::run(double T, double P, std::span<const double> feed) {
    begin(T, P, feed);
    if (!(T > 0 && P > 0)) return Standing::Failed;
    try {
        normalise(found_.feed);
        const Standing verdict = compute();
        if (!PropertyValue{verdict}.isComputed() && found_.outcome != FlashOutcome::NotConverged)
            found_.outcome = FlashOutcome::None;
        return verdict;
    } catch (const RunTimeError&) {
        found_.outcome = FlashOutcome::None;
        found_.passes = 0;
        // The likeliest reason: an enthalpy that the feed has none of.
        const Standing reason = isAdiabatic() ? standing(rows_.vapourEnthalpy, found_.feed, T) : Standing::Failed;
        return PropertyValue{reason}.isComputed() ? Standing::Failed : reason;
    }
}

void FlashPoint::begin(double T, double P, std::span<const double> feed) {
    T0_ = T;
    P_ = P;
    found_.outcome = FlashOutcome::None;
    found_.passes = 0;
    found_.temperature = T;
    found_.bubblePoint = found_.dewPoint = 0;
    found_.bubbleOutcome = found_.dewOutcome = SaturationOutcome::None;
    std::ranges::copy(feed, found_.feed.begin());
    found_.equilibrium.clear();
}

Standing FlashPoint::compute() {
    const PropertyValue bubble = value(rows_.bubblePoint, found_.feed, T0_);
    const PropertyValue dew = value(rows_.dewPoint, found_.feed, T0_);
    found_.bubblePoint = orNone(bubble);
    found_.dewPoint = orNone(dew);
    found_.bubbleOutcome = outcomeOf(bubble);
    found_.dewOutcome = outcomeOf(dew);
    if (bubble.standing == Standing::NotGiven) return bubble.standing;
    if (!isAdiabatic() && isAllVapour(dew)) return finishTrivially(FlashOutcome::AllVapour, 1.0, vapourVerdict(dew));
    if (T0_ < found_.bubblePoint) return finishTrivially(FlashOutcome::AllLiquid, 0.0, bubble.standing);
    if (!isAdiabatic()) return iterate(T0_);
    const double sum = found_.bubblePoint + found_.dewPoint;
    if (!(sum > 0)) {
        found_.outcome = FlashOutcome::NotConverged;  // there is nothing to begin with
        return Standing::Diverged;
    }
    return iterate(bubble.isComputed() && dew.isComputed() ? sum * 0.5 : sum);
}

bool FlashPoint::isAllVapour(const PropertyValue& dew) const {
    if (tells(dew)) return T0_ > dew.value;
    const Temperature at(T0_);
    const auto sums = raoultSums(
        found_.feed.size(), P_, false, [&](std::size_t i) { return found_.feed[i]; },
        [&](std::size_t i) { return mixture_.components[i].pure(kTENS, at); }, [](std::size_t) { return false; });
    return sums && sums->condensing <= 1.0;
}

Standing FlashPoint::vapourVerdict(const PropertyValue& dew) const {
    return tells(dew) ? dew.standing : standing(rows_.vapourPressure, found_.feed, T0_);
}

Standing FlashPoint::finishTrivially(FlashOutcome outcome, double V, Standing verdict) {
    found_.outcome = outcome;
    found_.vapourFraction = V;
    std::vector<double>& whole = outcome == FlashOutcome::AllVapour ? found_.vapour : found_.liquid;
    std::vector<double>& nothing = outcome == FlashOutcome::AllVapour ? found_.liquid : found_.vapour;
    std::ranges::copy(found_.feed, whole.begin());
    std::ranges::fill(nothing, 0.0);
    return verdict;
}

Standing FlashPoint::iterate(double start) {
    solve(start);
    found_.outcome = solution_.converged ? FlashOutcome::Converged : FlashOutcome::NotConverged;
    found_.passes = solution_.passes;
    found_.vapourFraction = checked::finite(solution_.V);
    found_.temperature = checked::finite(solution_.T);
    found_.materialResidual = solution_.materialResidual;
    found_.energyResidual = solution_.energyResidual;
    std::ranges::copy(solution_.x, found_.liquid.begin());
    std::ranges::copy(solution_.y, found_.vapour.begin());
    dropUnknownEquilibriums();
    if (!solution_.converged) return Standing::Diverged;
    const Standing ofPressures = standing(rows_.vapourPressure, found_.feed, found_.temperature);
    if (!isAdiabatic()) return ofPressures;
    return std::max({ofPressures, standing(rows_.liquidEnthalpy, found_.feed, T0_),
                     standing(rows_.liquidEnthalpy, found_.liquid, found_.temperature),
                     standing(rows_.vapourEnthalpy, found_.vapour, found_.temperature)});
}

void FlashPoint::solve(double start) {
    const auto equilibriumAt = [&](double T) -> const Equilibrium& { return equilibrium(T); };
    if (!isAdiabatic()) return isothermalFlash(solution_, start, found_.feed, equilibriumAt);
    adiabaticFlash(
        solution_, liquidEnthalpy(T0_, found_.feed), start, found_.feed, equilibriumAt,
        [&](double T, std::span<const double> x) { return liquidEnthalpy(T, x); },
        [&](double T, std::span<const double> y) { return vapourEnthalpy(T, y); });
}

// See Flash::gatherEquilibrium; at a given temperature they stay the same.
const Equilibrium& FlashPoint::equilibrium(double T) {
    if (!isAdiabatic() && !found_.equilibrium.empty()) return equilibrium_;
    const std::size_t n = found_.feed.size();
    found_.equilibrium.resize(n);
    const Temperature at(T), warmer(T + kFlashTemperatureStep);
    for (std::size_t i = 0; i < n; ++i) {
        const PreparedComponent& component = mixture_.components[i];
        const double K = found_.equilibrium[i] = checked::divide(component.valueAsBuilt(kTENS, at), P_);
        if (!isAdiabatic()) continue;
        const double above = checked::divide(component.valueAsBuilt(kTENS, warmer), P_);
        slopes_[i] = (above - K) / kFlashTemperatureStep;
    }
    equilibrium_ = {found_.equilibrium, isAdiabatic() ? std::span<const double>(slopes_) : std::span<const double>()};
    return equilibrium_;
}

// Of a component that is not there nobody asked for a vapour pressure yet.
void FlashPoint::dropUnknownEquilibriums() {
    for (std::size_t i = 0; i < found_.feed.size(); ++i)
        if (found_.feed[i] == 0 && !mixture_.components[i].pure(kTENS, found_.temperature).isComputed())
            found_.equilibrium[i] = std::numeric_limits<double>::quiet_NaN();
}

}  // namespace velor
