#include "baze/fit/fit.h"

#include <Eigen/Dense>
#include <algorithm>
#include <cmath>
#include <limits>
#include <unsupported/Eigen/NonLinearOptimization>
#include <utility>

#include "rules/equations.h"  // the fit is judged by the equations that the library evaluates
#include "velor/run_time_error.h"

namespace velor::baze {

namespace {

constexpr double kOutOfReach = 1e6;  // a deviation where there is no value
constexpr double kThrough = 1e5;     // the weight of a point that the curve goes through

using Eigen::MatrixXd;
using Eigen::VectorXd;

// The linear problem that is left where the inner numbers are given, its rows weighted so that deviations are relative.
class Problem {
  public:
    Problem(const Form& form, std::vector<MeasuredPoint> points) : form_(form), points_(std::move(points)) {
        weights_.assign(points_.size(), 1.0);
    }

    std::size_t size() const { return points_.size(); }
    std::size_t factors() const { return form_.positions.size(); }
    void weigh(std::size_t i, double weight) { weights_[i] = weight; }

    // The factors; those that are held keep their value.
    VectorXd solve(const Inner& inner, const std::vector<std::optional<double>>& held) const {
        const auto [A, b] = rows(inner);
        std::vector<Eigen::Index> open;
        VectorXd rest = b, factors = VectorXd::Zero(A.cols());
        for (Eigen::Index j = 0; j < A.cols(); ++j) {
            if (const auto& value = held[static_cast<std::size_t>(j)]) {
                factors[j] = *value;
                rest -= A.col(j) * *value;
            } else {
                open.push_back(j);
            }
        }
        if (open.empty()) return factors;
        MatrixXd part(A.rows(), static_cast<Eigen::Index>(open.size()));
        VectorXd scale(part.cols());
        for (Eigen::Index j = 0; j < part.cols(); ++j) {
            const auto column = A.col(open[static_cast<std::size_t>(j)]);
            scale[j] = std::max(column.norm(), std::numeric_limits<double>::min());
            part.col(j) = column / scale[j];
        }
        const VectorXd found = part.colPivHouseholderQr().solve(rest);
        for (Eigen::Index j = 0; j < part.cols(); ++j) factors[open[static_cast<std::size_t>(j)]] = found[j] / scale[j];
        return factors;
    }

    // What the rows miss, with the best factors for these inner numbers.
    VectorXd residuals(const Inner& inner) const {
        const auto [A, b] = rows(inner);
        const VectorXd missed = A * solve(inner, std::vector<std::optional<double>>(factors())) - b;
        return missed.unaryExpr([](double r) { return std::isfinite(r) ? r : kOutOfReach; });
    }

    std::pair<MatrixXd, VectorXd> rows(const Inner& inner) const {
        MatrixXd A(static_cast<Eigen::Index>(size()), static_cast<Eigen::Index>(factors()));
        VectorXd b(A.rows());
        for (std::size_t i = 0; i < size(); ++i) {
            const MeasuredPoint& point = points_[i];
            const double relative = form_.isLogarithmic ? 1.0 : 1.0 / point.value;
            const double weight = std::sqrt(point.weight * weights_[i]) * relative;
            const double target = form_.isLogarithmic ? std::log(point.value) : point.value;
            const auto terms = form_.terms(point.T, inner);
            const auto row = static_cast<Eigen::Index>(i);
            for (std::size_t j = 0; j < terms.size(); ++j) A(row, static_cast<Eigen::Index>(j)) = weight * terms[j];
            b[row] = weight * (target - form_.offset(point.T, inner));
        }
        if (!A.allFinite() || !b.allFinite()) {
            A.setZero();
            b.setConstant(kOutOfReach);
        }
        return {A, b};
    }

  private:
    const Form& form_;
    std::vector<MeasuredPoint> points_;
    std::vector<double> weights_;
};

// The inner numbers that are sought, as Levenberg and Marquardt's method wants them.
struct Seeking {
    using Scalar = double;
    using InputType = VectorXd;
    using ValueType = VectorXd;
    using JacobianType = MatrixXd;
    static constexpr int InputsAtCompileTime = Eigen::Dynamic;
    static constexpr int ValuesAtCompileTime = Eigen::Dynamic;

    int inputs() const { return static_cast<int>(start.size() - first); }
    int values() const { return static_cast<int>(problem.size()); }
    Inner innerOf(const VectorXd& sought) const {
        Inner inner = start;
        for (Eigen::Index i = 0; i < sought.size(); ++i) inner[first + static_cast<std::size_t>(i)] = sought[i];
        return inner;
    }
    int operator()(const VectorXd& sought, VectorXd& missed) const {
        missed = problem.residuals(innerOf(sought));
        return 0;
    }

    const Problem& problem;
    Inner start;
    std::size_t first;
};

Inner sought(const Problem& problem, const Form& form) {
    Inner best;
    double least = std::numeric_limits<double>::infinity();
    for (const Inner& start : form.starts) {
        Inner found = start;
        if (start.size() > form.firstSought && problem.size() >= start.size() - form.firstSought) {
            const Seeking seeking{problem, start, form.firstSought};
            Eigen::NumericalDiff<Seeking> slopes(seeking);
            Eigen::LevenbergMarquardt<Eigen::NumericalDiff<Seeking>> method(slopes);
            method.parameters.maxfev = 2000;
            method.parameters.xtol = method.parameters.ftol = 1e-15;
            VectorXd numbers(seeking.inputs());
            for (Eigen::Index i = 0; i < numbers.size(); ++i)
                numbers[i] = start[form.firstSought + static_cast<std::size_t>(i)];
            method.minimize(numbers);
            found = seeking.innerOf(numbers);
        }
        const double missed = problem.residuals(found).squaredNorm();
        if (missed < least) least = missed, best = found;
    }
    return best;
}

double coefficientOf(const Form& form, std::size_t j, double factor) {
    const double value = form.isExponent[j] ? std::exp(factor) : factor;
    return j == 0 ? value * form.scaleOfFirst : value;
}

double factorOf(const Form& form, std::size_t j, double coefficient) {
    const double value = j == 0 ? coefficient / form.scaleOfFirst : coefficient;
    return form.isExponent[j] ? std::log(value) : value;
}

double valueOf(const TKorelace& block, double T) {
    try {
        const double value = evaluateEquation(block.Typ, block.A, T);
        return value == kNoValue ? std::nan("") : value;
    } catch (const RunTimeError&) {
        return std::nan("");
    }
}

// Each coefficient is rounded to single precision in turn, and those that are left make up for it.
Coefficients rounded(const Problem& problem, const Form& form, Inner& inner) {
    Coefficients A{};
    for (std::size_t j = 0; j < A.size(); ++j) A[j] = static_cast<float>(form.fixed[j]);
    for (std::size_t i = 0; i < form.innerPositions.size(); ++i) {
        A[static_cast<std::size_t>(form.innerPositions[i])] = static_cast<float>(inner[i]);
        inner[i] = static_cast<float>(inner[i]);
    }
    std::vector<std::optional<double>> held(form.positions.size());
    for (std::size_t j = form.positions.size(); j-- > 0;) {
        const double factor = problem.solve(inner, held)[static_cast<Eigen::Index>(j)];
        const auto coefficient = static_cast<float>(coefficientOf(form, j, factor));
        A[static_cast<std::size_t>(form.positions[j])] = coefficient;
        held[j] = factorOf(form, j, coefficient);
    }
    return A;
}

// How the free coefficients hang together: from the slopes of the equation at the points.
std::vector<std::vector<double>> covarianceOf(const Fit& fit, std::span<const MeasuredPoint> points) {
    const auto n = static_cast<Eigen::Index>(points.size()), m = static_cast<Eigen::Index>(fit.free.size());
    if (n <= m) return {};
    MatrixXd slopes(n, m);
    double sum = 0;
    for (Eigen::Index i = 0; i < n; ++i) {
        const MeasuredPoint& point = points[static_cast<std::size_t>(i)];
        const double weight = std::sqrt(point.weight * fit.weights[static_cast<std::size_t>(i)]);
        for (Eigen::Index j = 0; j < m; ++j) {
            const auto place = static_cast<std::size_t>(fit.free[static_cast<std::size_t>(j)] - 1);
            TKorelace up = fit.block, down = fit.block;
            const float step = std::max(std::abs(fit.block.A[place]) * 1e-3F, 1e-30F);
            up.A[place] += step, down.A[place] -= step;
            const double width = double{up.A[place]} - double{down.A[place]};
            slopes(i, j) = weight * (valueOf(up, point.T) - valueOf(down, point.T)) / width / point.value;
        }
        const double missed = weight * fit.deviations[static_cast<std::size_t>(i)] / 100;
        sum += missed * missed;
    }
    if (!slopes.allFinite()) return {};
    const VectorXd scale = slopes.colwise().norm().cwiseMax(std::numeric_limits<double>::min());
    const MatrixXd scaled = slopes * scale.cwiseInverse().asDiagonal();
    const MatrixXd inverse = (scaled.transpose() * scaled).completeOrthogonalDecomposition().pseudoInverse();
    std::vector<std::vector<double>> covariance;
    for (Eigen::Index i = 0; i < m; ++i) {
        auto& row = covariance.emplace_back();
        for (Eigen::Index j = 0; j < m; ++j)
            row.push_back(inverse(i, j) / scale[i] / scale[j] * sum / static_cast<double>(n - m));
    }
    return covariance;
}

// ---- Outside the points ------------------------------------------------------------------------------------------

enum class Trend { Any, Rises, Falls };

Trend trendOf(Property property) {
    switch (property) {
        case kETAG:
        case kTENS:
            return Trend::Rises;
        case kROLW:
        case kETAL:
        case kSIGMA:
            return Trend::Falls;
        default:
            return Trend::Any;
    }
}

// A quarter of the range beyond either end, but not above the critical temperature, where liquids end.
std::string doubtOf(const TKorelace& block, const FitKnowledge& known, Property property) {
    constexpr int kSteps = 60;
    constexpr double kBeyond = 0.25, kFactor = 3;
    const double aside = kBeyond * (known.most - known.least);
    const bool isOfGas = property == kETAG || property == kCPG || property == kALAG;
    const double cold = std::max(known.least - aside, 0.5 * known.least);
    double hot = known.most + aside;
    if (!isOfGas && known.Tkr > 0) hot = std::max(known.most, std::min(hot, 0.98 * known.Tkr));
    double before = 0;
    for (int i = 0; i <= kSteps; ++i) {
        const double T = cold + (hot - cold) * i / kSteps;
        const double value = valueOf(block, T);
        const std::string at = " při " + std::to_string(static_cast<int>(std::round(T))) + " K";
        if (std::isnan(value)) {
            // It ends at a critical temperature of its own.
            if (!isOfGas && T > known.most && known.Tkr <= 0) return "končí" + at + ", kritická teplota není zadána";
            return "nemá hodnotu" + at;
        }
        if (value <= 0) return "hodnota není kladná" + at;
        const bool isTurned = (trendOf(property) == Trend::Rises && value < before) ||
                              (trendOf(property) == Trend::Falls && value > before);
        if (i > 0 && isTurned) return (trendOf(property) == Trend::Rises ? "klesá" : "roste") + at;
        const bool isOutside = T < known.least || T > known.most;
        const double end = valueOf(block, T < known.least ? known.least : known.most);
        if (isOutside && trendOf(property) == Trend::Any && (value > kFactor * end || value < end / kFactor))
            return "utíká" + at;
        before = value;
    }
    return {};
}

// ---- The whole ---------------------------------------------------------------------------------------------------

double medianOf(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// Huber's weights, then Tukey's, which leave far points out.
void weighAgain(Problem& problem, const std::vector<double>& deviations, std::vector<double>& weights, bool isTukey) {
    std::vector<double> sizes;
    for (const double deviation : deviations) sizes.push_back(std::abs(deviation));
    const double spread = std::max(1.4826 * medianOf(sizes), 1e-7);
    for (std::size_t i = 0; i < weights.size(); ++i) {
        const double far = sizes[i] / spread;
        const double part = far / 4.685;
        weights[i] = isTukey ? (part < 1 ? (1 - part * part) * (1 - part * part) : 0) : std::min(1.0, 1.345 / far);
        problem.weigh(i, weights[i]);
    }
}

void judge(Fit& fit, std::span<const MeasuredPoint> points) {
    fit.deviations.clear();
    double sum = 0, weights = 0;
    fit.most = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const double percent = 100 * (valueOf(fit.block, points[i].T) / points[i].value - 1);
        fit.deviations.push_back(percent);
        const double weight = points[i].weight * fit.weights[i];
        sum += weight * percent * percent, weights += weight;
        fit.most = std::max(fit.most, std::abs(percent));
    }
    const auto n = static_cast<double>(points.size()), k = static_cast<double>(fit.free.size() + 1);
    fit.rms = std::sqrt(sum / weights);
    constexpr double kExact = 1e-10;  // where the points are met to the last bit
    fit.aicc = n > k + 1 ? n * std::log(sum / weights + kExact) + 2 * k + 2 * k * (k + 1) / (n - k - 1)
                         : std::numeric_limits<double>::infinity();
}

}  // namespace

double curveValue(const Fit& fit, double T) { return valueOf(fit.block, T); }

std::optional<Fit> fitted(int type, std::span<const MeasuredPoint> points, const PureProperty& property,
                          const FitOptions& options) {
    FitKnowledge known{options.Tkr, options.Pkr, points.front().T, points.front().T};
    for (const MeasuredPoint& point : points) {
        known.least = std::min(known.least, point.T);
        known.most = std::max(known.most, point.T);
    }
    const Form form = formOf(type, known);
    const std::size_t inner = form.starts.front().size();
    Fit fit;
    for (const int position : form.positions) fit.free.push_back(position + 1);
    for (std::size_t i = form.firstSought; i < inner; ++i) fit.free.push_back(form.innerPositions[i] + 1);
    std::ranges::sort(fit.free);
    if (points.size() + options.through.size() < fit.free.size()) return std::nullopt;

    std::vector<MeasuredPoint> rows(points.begin(), points.end());
    for (MeasuredPoint point : options.through) {
        point.weight = kThrough;
        rows.push_back(point);
    }
    Problem problem(form, rows);
    fit.weights.assign(points.size(), 1.0);
    fit.block.Typ = static_cast<std::int16_t>(type);
    fit.block.Priznak = 1;
    fit.block.Tmin = static_cast<std::int16_t>(std::floor(known.least));
    fit.block.Tmax = static_cast<std::int16_t>(std::ceil(known.most));
    constexpr int kRounds = 20;
    for (int round = 0; round <= (options.isRobust ? kRounds : 0); ++round) {
        if (round > 0) weighAgain(problem, fit.deviations, fit.weights, round > kRounds / 2);
        Inner numbers = sought(problem, form);
        if (numbers.size() != inner) return std::nullopt;
        fit.block.A = rounded(problem, form, numbers);
        judge(fit, points);
        if (!std::isfinite(fit.rms)) return std::nullopt;
    }
    fit.covariance = covarianceOf(fit, points);
    fit.doubt = doubtOf(fit.block, known, property.number);
    return fit;
}

std::vector<Fit> bestFits(std::span<const MeasuredPoint> points, const PureProperty& property,
                          const FitOptions& options) {
    std::vector<Fit> fits;
    for (int type = 1; isEquationType(type); ++type) {
        if (property.number == kCPL && equationOf(type).degree == 0) continue;  // the enthalpy integrates polynomials
        if (auto fit = fitted(type, points, property, options); fit && std::isfinite(fit->aicc))
            fits.push_back(std::move(*fit));
    }
    std::ranges::stable_sort(fits, {}, [](const Fit& fit) { return std::pair(!fit.doubt.empty(), fit.aicc); });
    return fits;
}

}  // namespace velor::baze
