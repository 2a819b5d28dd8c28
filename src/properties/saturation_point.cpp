// Bubble and dew points of the table: solved in full, and past the critical temperatures of gases that do not condense.
#include <algorithm>
#include <cmath>
#include <limits>

#include "properties/property_point.h"
#include "rules/root.h"
#include "runtime/checked.h"

namespace velor {

namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
constexpr double kLowest = 1.0;     // K, below which no point is sought
constexpr double kLongStep = 0.94;  // from one temperature to the next colder one
constexpr double kShortStep = 0.99;
constexpr double kLeastStep = 0.9999;
constexpr double kWithin = 0.9999;  // of a critical temperature: just below it
constexpr double kMost = 700;       // of a logarithm, so that a pressure that vanished leaves a number

const PropertyValue kDivergence{Standing::Diverged, kNone};

// The highest zero below hot of a function that is negative beyond its zero on the hot side; NaN where there is none.
template <class Function>
double rootInSteps(const Function& f, double cold, double hot, double ratio) {
    double above = hot, atAbove = f(hot);
    for (; std::isnan(atAbove) && above > cold; atAbove = f(above)) above *= ratio;  // beyond a correlation's reference
    if (!(atAbove <= 0)) return kNone;
    while (above > cold && ratio < kLeastStep) {
        const double below = std::max(cold, ratio * above);
        const double atBelow = f(below);
        if (atBelow >= 0) return rootBetween(f, above, atAbove, below, atBelow);
        if (std::isnan(atBelow)) {
            ratio = std::sqrt(ratio);  // towards where a correlation ends
        } else {
            above = below;
            atAbove = atBelow;
        }
    }
    return kNone;
}

// By secants over 1/T, in which such functions are nearly straight; NaN where they lead out of the bounds.
template <class Function>
double rootBySecants(const Function& f, double cold, double hot) {
    constexpr int kSteps = 12;
    constexpr double kRest = 1e-9;  // from there the next step is exact
    double before = hot, atBefore = f(hot), T = 0.8 * hot, at = f(T);
    for (int step = 0; step < kSteps && at != atBefore; ++step) {
        const double next = 1.0 / (1.0 / T - at * (1.0 / T - 1.0 / before) / (at - atBefore));
        if (!(next > cold && next < hot)) return kNone;
        const bool isAtRest = std::abs(next - T) <= kRest * T;
        if (isAtRest) return next;
        before = T;
        atBefore = at;
        T = next;
        at = f(T);
    }
    return kNone;
}

// The highest zero. An extrapolated vapour pressure may rise again where it is cold: then secants may find another
// zero, and two may lie between two long steps. isCertain(T) tells that nothing is extrapolated there.
template <class Function, class Certainty>
double highestRoot(const Function& f, double cold, double hot, const Certainty& isCertain) {
    if (const double T = rootBySecants(f, cold, hot); isCertain(T)) return T;
    const double T = rootInSteps(f, cold, hot, kLongStep);
    return std::isnan(T) ? rootInSteps(f, cold, hot, kShortStep) : T;
}

}  // namespace

bool PropertyPoint::hasVapourPressuresInRange(double T) const {
    const Temperature at(T);
    for (std::size_t i = 0; i < count_; ++i)
        if (T < component(i).record().Tkr && component(i).pure(kTENS, at).standing != Standing::InRange) return false;
    return T > 0;
}

// ln(P / sum(x Ps)): falls with the temperature. NaN where a vapour pressure is missing.
double PropertyPoint::boilingExcess(double T) const {
    const Temperature at(T);
    double sum = 0;
    for (std::size_t i = 0; i < count_; ++i) {
        const PropertyValue Ps = component(i).pure(kTENS, at);
        if (!Ps.isComputed()) return kNone;
        sum += x_[i] * Ps.value;
    }
    return std::clamp(std::log(P_ / sum), -kMost, kMost);
}

// ln(sum(y P / Ps)) over what can condense at T: falls with the temperature.
double PropertyPoint::condensingExcess(double T) const {
    const Temperature at(T);
    double sum = 0;
    for (std::size_t i = 0; i < count_; ++i) {
        if (T >= component(i).record().Tkr) continue;
        const PropertyValue Ps = component(i).pure(kTENS, at);
        if (!Ps.isComputed()) return kNone;
        sum += x_[i] * P_ / Ps.value;
    }
    return std::clamp(std::log(sum), -kMost, kMost);
}

// The verdict on a point found: that of the vapour pressures, or that some components do not condense.
PropertyValue PropertyPoint::saturationPoint(double T) {
    for (std::size_t i = 0; i < count_; ++i) {
        const bool isInert = T >= component(i).record().Tkr;
        take(isInert ? Standing::Inert : component(i).pure(kTENS, T).standing);
    }
    return PropertyValue{worst_}.isComputed() ? PropertyValue{worst_, T} : PropertyValue{worst_, kNone};
}

std::optional<Standing> PropertyPoint::missingVapourPressure() const {
    for (std::size_t i = 0; i < count_; ++i)
        if (component(i).record().Korelace[kTENS - 1].Priznak == 0) return Standing::NotGiven;
    return std::nullopt;
}

// Of gases no liquid is made: a bubble point lies below all critical temperatures.
PropertyValue PropertyPoint::bubblePoint() {
    double hot = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < count_; ++i) hot = std::min(hot, kWithin * component(i).record().Tkr);
    const double T = highestRoot([&](double t) { return boilingExcess(t); }, kLowest, hot,
                                 [&](double t) { return hasVapourPressuresInRange(t); });
    return std::isnan(T) ? kDivergence : saturationPoint(T);
}

// Between each two critical temperatures, from the lowest: what is above its own does not condense.
PropertyValue PropertyPoint::dewPoint() {
    std::array<double, kMostComponents> critical;
    for (std::size_t i = 0; i < count_; ++i) critical[i] = component(i).record().Tkr;
    std::sort(critical.begin(), critical.begin() + static_cast<std::ptrdiff_t>(count_));
    const auto isCertain = [&](double t) { return hasVapourPressuresInRange(t); };
    double cold = kLowest;
    for (std::size_t i = 0; i < count_; ++i) {
        const double hot = kWithin * critical[i];
        if (hot > cold) {
            const double T = highestRoot([&](double t) { return condensingExcess(t); }, cold, hot, isCertain);
            if (!std::isnan(T)) return saturationPoint(T);
            // What condenses at any lower temperature is a gas from here on.
            if (i > 0 && condensingExcess(hot) <= 0) return saturationPoint(cold);
        }
        cold = critical[i];
    }
    return kDivergence;
}

}  // namespace velor
