#include <atomic>
#include <limits>
#include <vector>

#include "table/flash_point.h"
#include "table/points.h"
#include "velor/flash_table.h"

namespace velor {

namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

bool hasResult(const FlashRecord& record) {
    return record.outcome != FlashOutcome::None && record.outcome != FlashOutcome::NotConverged;
}

// The caller's arrays, known to fit.
class Results {
  public:
    Results(const FlashResults& arrays, std::size_t components, std::size_t points)
        : arrays_(arrays),
          components_(components),
          pointStride_(arrays.pointStride == 0 ? static_cast<std::ptrdiff_t>(components) : arrays.pointStride) {
        requireLength(points, arrays.outcomes, arrays.verdicts, arrays.passes, arrays.vapourFractions,
                      arrays.temperatures, arrays.bubblePoints, arrays.dewPoints, arrays.materialResiduals,
                      arrays.energyResiduals);
        for (const auto& phase : {arrays.liquids, arrays.vapours, arrays.equilibriums})
            if (!phase.empty()) requireApart(phase.size(), points);
    }

    bool isAnyWanted() const {
        const FlashResults& all = arrays_;
        return !(all.outcomes.empty() && all.verdicts.empty() && all.passes.empty() && all.vapourFractions.empty() &&
                 all.temperatures.empty() && all.bubblePoints.empty() && all.dewPoints.empty() &&
                 all.materialResiduals.empty() && all.energyResiduals.empty() && all.liquids.empty() &&
                 all.vapours.empty() && all.equilibriums.empty());
    }

    void set(std::size_t point, const FlashRecord& record, Standing verdict) const {
        const auto inResult = [&](double value) { return hasResult(record) ? value : kNone; };
        const bool isIterated = record.passes > 0, isAdiabatic = record.kind == FlashKind::Adiabatic;
        put(arrays_.outcomes, point, record.outcome);
        put(arrays_.verdicts, point, verdict);
        put(arrays_.passes, point, record.passes);
        put(arrays_.vapourFractions, point, inResult(record.vapourFraction));
        put(arrays_.temperatures, point, inResult(record.temperature));
        put(arrays_.bubblePoints, point, record.bubblePoint > 0 ? record.bubblePoint : kNone);
        put(arrays_.dewPoints, point, record.dewPoint > 0 ? record.dewPoint : kNone);
        put(arrays_.materialResiduals, point, isIterated ? record.materialResidual : kNone);
        put(arrays_.energyResiduals, point, isIterated && isAdiabatic ? record.energyResidual : kNone);
        putPhase(arrays_.liquids, point, record, record.liquid);
        putPhase(arrays_.vapours, point, record, record.vapour);
        putPhase(arrays_.equilibriums, point, record, record.equilibrium);
    }

  private:
    template <class... Spans>
    static void requireLength(std::size_t points, const Spans&... spans) {
        if (!((spans.empty() || spans.size() == points) && ...)) refuse();
    }

    // Inside so many values, and no two at one place: by points of components or by components of points.
    void requireApart(std::size_t size, std::size_t points) const {
        if (arrays_.componentStride < 1 || pointStride_ < 1) refuse();
        if (points == 0) return;
        const std::size_t lastComponent = lastOffset(components_, arrays_.componentStride, size - 1);
        const std::size_t lastPoint = lastOffset(points, pointStride_, size - 1);
        if (lastComponent + lastPoint > size - 1) refuse();
        const bool isOneEach = components_ == 1 || points == 1;
        const bool isByPoint = static_cast<std::size_t>(pointStride_) > lastComponent;
        if (!isOneEach && !isByPoint && static_cast<std::size_t>(arrays_.componentStride) <= lastPoint) refuse();
    }

    template <class Value>
    static void put(std::span<Value> values, std::size_t point, Value value) {
        if (!values.empty()) values[point] = value;
    }

    void putPhase(std::span<double> values, std::size_t point, const FlashRecord& record,
                  std::span<const double> found) const {
        if (values.empty()) return;
        const bool isThere = hasResult(record) && !found.empty();
        for (std::size_t i = 0; i < components_; ++i)
            values[i * static_cast<std::size_t>(arrays_.componentStride) +
                   point * static_cast<std::size_t>(pointStride_)] = isThere ? found[i] : kNone;
    }

    const FlashResults& arrays_;
    std::size_t components_;
    std::ptrdiff_t pointStride_;
};

}  // namespace

void flash(const PreparedMixture& mixture, FlashKind kind, std::span<const double> T, std::span<const double> P,
           const Compositions& feeds, std::size_t points, const FlashResults& arrays, TableOptions options) {
    const PreparedComponents& components = mixture.components();
    const std::size_t n = components.components.size();
    const Results results(arrays, n, points);
    const Series temperatures(T, points), pressures(P, points);
    if (points == 0 || !results.isAnyWanted()) return;
    requireInside(feeds, n, points);
    const FractionReader reader(components, feeds);
    // One for each part of the points, made before the threads: a thread has nobody to tell of missing memory.
    std::vector<FlashPoint> flashes;
    flashes.reserve(partsOf(points, options.threads));
    for (std::size_t part = partsOf(points, options.threads); part > 0; --part) flashes.emplace_back(components, kind);
    std::atomic<std::size_t> taken = 0;
    divide(points, options.threads, [&](std::size_t from, std::size_t to) {
        FlashPoint& one = flashes[taken++];
        std::array<double, kMostComponents> feed;
        for (std::size_t point = from; point < to; ++point) {
            if (!reader.read(point, feed)) {
                results.set(point, {}, Standing::Failed);
                continue;
            }
            const Standing verdict = one.run(temperatures[point], pressures[point], std::span(feed).first(n));
            results.set(point, one.found(), verdict);
        }
    });
}

}  // namespace velor
