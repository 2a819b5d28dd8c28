#include "velor/table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <thread>
#include <vector>

#include "properties/estimates.h"
#include "properties/property_point.h"
#include "records/record_file.h"
#include "rules/composition.h"
#include "runtime/checked.h"
#include "velor/substances.h"

namespace velor {

namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

[[noreturn]] void refuse() { checked::raise(RunTimeError::kSubscript); }

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

// One number for all points or one each.
class Series {
  public:
    Series(std::span<const double> values, std::size_t points) : values_(values), step_(values.size() == 1 ? 0 : 1) {
        if (values.size() != 1 && values.size() != points) refuse();
    }
    double operator[](std::size_t point) const { return values_[point * step_]; }

  private:
    std::span<const double> values_;
    std::size_t step_;
};

std::size_t numberOfPoints(std::span<double> values, std::span<Standing> verdicts) {
    if (!values.empty() && !verdicts.empty() && values.size() != verdicts.size()) refuse();
    return std::max(values.size(), verdicts.size());
}

// Where the last of so many lies, told without multiplying what a caller made up.
std::size_t lastOffset(std::size_t count, std::ptrdiff_t stride, std::size_t most) {
    if (count <= 1 || stride == 0) return 0;
    if (stride < 0 || static_cast<std::size_t>(stride) > most / (count - 1)) refuse();
    return (count - 1) * static_cast<std::size_t>(stride);
}

void requireInside(const Compositions& X, std::size_t components, std::size_t points) {
    if (X.values.empty()) refuse();
    const std::size_t most = X.values.size() - 1;
    if (lastOffset(components, X.componentStride, most) + lastOffset(points, X.pointStride, most) > most) refuse();
}

// The mole fractions of a point; false where they are none.
class FractionReader {
  public:
    FractionReader(const PreparedComponents& mixture, const Compositions& X)
        : X_(X), count_(mixture.components.size()) {
        for (std::size_t i = 0; i < count_; ++i) molarMasses_[i] = mixture.components[i].record().Mv;
    }

    bool read(std::size_t point, std::array<double, kMostComponents>& x) const {
        double sum = 0;
        for (std::size_t i = 0; i < count_; ++i) {
            x[i] = X_.values[static_cast<std::size_t>(static_cast<std::ptrdiff_t>(i) * X_.componentStride +
                                                      static_cast<std::ptrdiff_t>(point) * X_.pointStride)];
            if (!(x[i] >= 0)) return false;
            sum += x[i];
        }
        const auto fractions = std::span(x).first(count_);
        if (X_.isNormalised && sum > 0 && std::isfinite(sum))
            for (double& fraction : fractions) fraction /= sum;
        else if (!(std::abs(1.0 - sum) <= kFractionTolerance))
            return false;
        return X_.kind == FractionKind::Mole || toMoles(fractions);
    }

  private:
    bool toMoles(std::span<double> fractions) const {
        const std::array<double, kMostComponents> masses = [&] {
            std::array<double, kMostComponents> copy{};
            std::ranges::copy(fractions, copy.begin());
            return copy;
        }();
        try {
            moleFractions(std::span(masses).first(count_), std::span(molarMasses_).first(count_), fractions);
            return true;
        } catch (const RunTimeError&) {
            return false;
        }
    }

    const Compositions& X_;
    std::size_t count_;
    std::array<double, kMostComponents> molarMasses_{};
};

struct Results {
    std::span<double> values;
    std::span<Standing> verdicts;

    void set(std::size_t point, const PropertyValue& found) const {
        if (!values.empty()) values[point] = found.isComputed() ? found.value : kNone;
        if (!verdicts.empty()) verdicts[point] = found.standing;
    }
};

// Divides the points evenly among the threads; each takes a run of neighbours.
template <class Work>
void divide(std::size_t points, int threads, const Work& work) {
    if (points == 0) return;
    constexpr std::size_t kMostThreads = 256;
    const std::size_t wanted = std::min(static_cast<std::size_t>(std::max(threads, 1)), kMostThreads);
    const std::size_t parts = std::min(wanted, points);
    std::vector<std::jthread> others;
    for (std::size_t part = 1; part < parts; ++part)
        others.emplace_back(
            [&work, from = points * part / parts, to = points * (part + 1) / parts] { work(from, to); });
    work(0, points / parts);
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
    divide(points, options.threads, [&](std::size_t from, std::size_t to) {
        std::array<double, kMostComponents> x;
        for (std::size_t point = from; point < to; ++point) {
            if (!reader.read(point, x)) {
                results.set(point, {Standing::Failed});
                continue;
            }
            PropertyPoint state(components, std::span(x).first(components.components.size()));
            results.set(point, state.value(property, temperatures[point], pressures[point], !verdicts.empty()));
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
    const auto& estimated = mixture.components().estimated;
    const bool isEstimate =
        !estimated.empty() && isAmong({property.number}, estimated[static_cast<std::size_t>(component - 1)]);
    const auto remarked = [isEstimate](PropertyValue found) {
        if (isEstimate && found.standing == Standing::InRange) found.standing = Standing::Estimated;
        return found;
    };
    divide(points, options.threads, [&](std::size_t from, std::size_t to) {
        for (std::size_t point = from; point < to; ++point)
            results.set(point, remarked(one.pure(property.number, temperatures[point])));
    });
}

}  // namespace velor
