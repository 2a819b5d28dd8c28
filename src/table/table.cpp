#include "velor/table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <vector>

#include "properties/estimates.h"
#include "properties/property_point.h"
#include "records/record_file.h"
#include "table/lanes.h"
#include "table/points.h"
#include "velor/substances.h"

namespace velor {

namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

// ---- Preparing -------------------------------------------------------------------------------------------------

std::vector<PairFactor> pairFactors(const std::vector<PreparedComponent>& components) {
    std::vector<PairFactor> pairs;
    try {
        for (const PreparedComponent& one : components)
            for (const PreparedComponent& other : components)
                pairs.push_back(&one == &other ? PairFactor{} : pairFactor(one.record().Mv, other.record().Mv));
    } catch (const RunTimeError&) {
        pairs.clear();  // without a molar mass the gas has no conductivity
    }
    return pairs;
}

std::shared_ptr<PreparedComponents> prepared(std::span<const TLatka> records, MixtureSettings settings) {
    if (records.empty() || records.size() > kMostComponents) refuse();
    auto mixture = std::make_shared<PreparedComponents>();
    mixture->settings = {settings.isSoave ? Attraction::Soave : Attraction::RedlichKwong, settings.isClamped};
    for (const TLatka& record : records) mixture->components.emplace_back(record, mixture->settings);
    mixture->pairs = pairFactors(mixture->components);
    return mixture;
}

// Kept only where there are any: the points then need not look.
std::vector<EstimatedProperties> estimatesOf(std::span<const TLatka> records, const Supplement& supplement) {
    std::vector<EstimatedProperties> estimated;
    for (const TLatka& record : records)
        estimated.push_back(supplement.estimates(substanceOf(record.Cislo, record).cas));
    if (std::ranges::all_of(estimated, [](const auto& one) { return one.none(); })) estimated.clear();
    return estimated;
}

std::vector<TLatka> recordsOf(const std::string& databasePath, std::span<const int> numbers) {
    const RecordFile database(databasePath);
    std::vector<TLatka> records;
    for (const int number : numbers) {
        if (number < 1 || number > database.count()) refuse();
        records.push_back(database.read(number));
        if (!isUsed(records.back())) refuse();
        records.back().Cislo = static_cast<std::int16_t>(number);  // by rule its place in the file
    }
    return records;
}

// ---- Points ----------------------------------------------------------------------------------------------------

std::size_t numberOfPoints(std::span<double> values, std::span<Standing> verdicts) {
    if (!values.empty() && !verdicts.empty() && values.size() != verdicts.size()) refuse();
    return std::max(values.size(), verdicts.size());
}

struct Results {
    std::span<double> values;
    std::span<Standing> verdicts;

    void set(std::size_t point, const PropertyValue& found) const {
        if (!values.empty()) values[point] = found.isComputed() ? found.value : kNone;
        if (!verdicts.empty()) verdicts[point] = found.standing;
    }

    // Where there is nothing else to say of a value that rests on an estimate.
    void markEstimates(std::size_t from, std::size_t to) const {
        if (!verdicts.empty())
            std::ranges::replace(verdicts.subspan(from, to - from), Standing::InRange, Standing::Estimated);
    }
};

bool isEstimated(const PreparedComponents& mixture, std::size_t component, Correlations correlations) {
    return !mixture.estimated.empty() && isAmong(correlations, mixture.estimated[component]);
}

// Whether a correlation of a component that is there is an estimate.
bool restsOnEstimates(const PreparedComponents& mixture, std::span<const double> fractions,
                      const MixtureProperty& property) {
    for (std::size_t i = 0; i < fractions.size(); ++i)
        if (fractions[i] > 0 && isEstimated(mixture, i, property.correlations)) return true;
    return false;
}

// Computes neighbouring points: side by side by lanes(functions, run), and those without a value there by alone(point).
template <class InLanes, class Alone>
void compute(const Series& T, const Series& P, const Results& results, std::size_t from, std::size_t to,
             const InLanes& lanes, const Alone& alone) {
    constexpr std::size_t kMost = 512;  // what stays near the processor
    const LaneFunctions* functions = laneFunctions();
    std::array<double, kMost> room;
    for (std::size_t first = from; first < to; first += kMost) {
        const std::size_t points = std::min(kMost, to - first);
        double* const values = results.values.empty() ? room.data() : &results.values[first];
        Standing* const standings = results.verdicts.empty() ? nullptr : &results.verdicts[first];
        const Run run{T.from(first), P.from(first), T.step(), P.step(), points, values, standings};
        if (functions && lanes(*functions, run)) continue;
        for (std::size_t k = 0; k < points; ++k)
            if (!functions || std::isnan(values[k])) results.set(first + k, alone(first + k));
    }
}

}  // namespace

PreparedMixture::PreparedMixture(const std::string& databasePath, std::span<const int> numbers,
                                 MixtureSettings settings) {
    const std::vector<TLatka> records = recordsOf(databasePath, numbers);
    const auto mixture = prepared(records, settings);
    mixture->estimated = estimatesOf(records, Supplement::of(databasePath));
    components_ = mixture;
}

PreparedMixture::PreparedMixture(std::span<const TLatka> records, MixtureSettings settings)
    : components_(prepared(records, settings)) {}

int PreparedMixture::size() const { return static_cast<int>(components_->components.size()); }

void evaluate(const PreparedMixture& mixture, const MixtureProperty& property, std::span<const double> T,
              std::span<const double> P, const Compositions& X, std::span<double> values, std::span<Standing> verdicts,
              TableOptions options) {
    static constexpr std::array kUnread{0.0};
    const PreparedComponents& components = mixture.components();
    const std::size_t points = numberOfPoints(values, verdicts);
    const Series temperatures(property.needsTemperature ? T : kUnread, points);
    const Series pressures(property.needsPressure ? P : kUnread, points);
    if (points == 0) return;
    requireInside(X, components.components.size(), points);
    const FractionReader reader(components, X);
    const Results results{values, verdicts};
    const PointProperty pointProperty(property);
    const auto valueOf = [&](std::size_t point, std::span<const double> fractions) {
        PropertyPoint state(components, fractions);
        return valueAt(state, pointProperty, temperatures[point], pressures[point], !verdicts.empty());
    };
    divide(points, options.threads, [&](std::size_t from, std::size_t to) {
        std::array<double, kMostComponents> x;
        const auto fractions = std::span<const double>(x).first(components.components.size());
        if (X.pointStride == 0 && reader.read(0, x)) {
            compute(
                temperatures, pressures, results, from, to,
                [&](const LaneFunctions& lanes, const Run& run) {
                    return lanes.mixture(components, fractions, pointProperty, run);
                },
                [&](std::size_t point) { return valueOf(point, fractions); });
            if (restsOnEstimates(components, fractions, property)) results.markEstimates(from, to);
            return;
        }
        for (std::size_t point = from; point < to; ++point) {
            const bool isComposition = reader.read(point, x);
            results.set(point, isComposition ? valueOf(point, fractions) : PropertyValue{Standing::Failed});
            if (isComposition && restsOnEstimates(components, fractions, property))
                results.markEstimates(point, point + 1);
        }
    });
}

void evaluate(const PreparedMixture& mixture, const PureProperty& property, int component, std::span<const double> T,
              std::span<double> values, std::span<Standing> verdicts, TableOptions options) {
    const auto& components = mixture.components().components;
    if (component < 1 || static_cast<std::size_t>(component) > components.size()) refuse();
    const PreparedComponent& one = components[static_cast<std::size_t>(component - 1)];
    const std::size_t points = numberOfPoints(values, verdicts);
    const Series temperatures(T, points);
    const Results results{values, verdicts};
    const bool isEstimate =
        isEstimated(mixture.components(), static_cast<std::size_t>(component - 1), {property.number});
    divide(points, options.threads, [&](std::size_t from, std::size_t to) {
        compute(
            temperatures, temperatures, results, from, to,
            [&](const LaneFunctions& lanes, const Run& run) { return lanes.pure(one, property.number, run); },
            [&](std::size_t point) { return one.pure(property.number, temperatures[point]); });
        if (isEstimate) results.markEstimates(from, to);
    });
}

}  // namespace velor
