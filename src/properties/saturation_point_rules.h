// Bubble and dew points of the table: solved in full, and past the critical temperatures of gases that do not condense.
// Included by those who instantiate them.
#pragma once

#include <algorithm>
#include <cmath>
#include <concepts>
#include <limits>

#include "properties/property_point.h"
#include "rules/root.h"
#include "runtime/checked.h"

namespace velor {

namespace point {

inline constexpr double kLowest = 1.0;     // K, below which no point is sought
inline constexpr double kLongStep = 0.94;  // from one temperature to the next colder one
inline constexpr double kShortStep = 0.99;
inline constexpr double kLeastStep = 0.9999;
inline constexpr double kWithin = 0.9999;  // of a critical temperature: just below it
inline constexpr double kMost = 700;       // of a logarithm, so that a pressure that vanished leaves a number

// The highest zero below hot of a function that is negative beyond its zero on the hot side; NaN where there is none.
template <class Function>
double rootInSteps(const Function& f, double cold, double hot, double ratio) {
    double above = hot, atAbove = f(hot);
    for (; std::isnan(atAbove) && above > cold; atAbove = f(above)) above *= ratio;  // beyond a correlation's reference
    if (!(atAbove <= 0)) return numbers::kNan;
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
    return numbers::kNan;
}

// By secants over 1/T, in which such functions are nearly straight; NaN where they lead out of the bounds.
template <class Number, class Function>
Number rootBySecants(const Function& f, double cold, double hot) {
    using namespace numbers;
    constexpr int kSteps = 12;
    constexpr double kRest = 1e-9;  // from there the next step is exact
    Number found = kNan, before = hot, atBefore = f(before), T = 0.8 * hot, at = f(T);
    for (int step = 0; step < kSteps; ++step) {
        const Number next = 1.0 / (1.0 / T - at * (1.0 / T - 1.0 / before) / (at - atBefore));
        const auto isInside = (next > cold) & (next < hot);
        const auto isAtRest = isInside & (absolute(next - T) <= kRest * T);
        found = select(isAtRest & isNan(found), next, found);
        if (!isAny(isInside & isNan(found))) break;
        before = T;
        atBefore = at;
        T = select(isInside, next, kNan);
        at = f(T);
    }
    return found;
}

// The highest zero. An extrapolated vapour pressure may rise again where it is cold: then secants may find another
// zero, and two may lie between two long steps. isCertain(T) tells that nothing is extrapolated there.
template <class Number, class Function, class Certainty>
Number highestRoot(const Function& f, double cold, double hot, const Certainty& isCertain) {
    using namespace numbers;
    const Number T = rootBySecants<Number>(f, cold, hot);
    if constexpr (std::same_as<Number, double>) {
        if (isCertain(T)) return T;
        const double found = rootInSteps(f, cold, hot, kLongStep);
        return std::isnan(found) ? rootInSteps(f, cold, hot, kShortStep) : found;
    } else {
        return select(isCertain(T), T, kNan);
    }
}

}  // namespace point

template <class Number>
auto BasicPropertyPoint<Number>::isCertain(const Number& T) const {
    auto isInRange = T > 0.0;
    for (std::size_t i = 0; i < count_; ++i)
        isInRange = isInRange & ((T >= component(i).record().Tkr) | component(i).isVapourPressureInRange(T));
    return isInRange;
}

// ln(P / sum(x Ps)): falls with the temperature. NaN where a vapour pressure is missing.
template <class Number>
Number BasicPropertyPoint<Number>::boilingExcess(const Number& T) const {
    using namespace numbers;
    const At at(T);
    Number sum = 0.0;
    for (std::size_t i = 0; i < count_; ++i) sum += x_[i] * pure(i, kTENS, at);
    return larger(smaller(plainLogarithm(P_ / sum), point::kMost), -point::kMost);
}

// ln(sum(y P / Ps)) over what can condense at T: falls with the temperature.
template <class Number>
Number BasicPropertyPoint<Number>::condensingExcess(const Number& T) const {
    using namespace numbers;
    const At at(T);
    Number sum = 0.0;
    for (std::size_t i = 0; i < count_; ++i) {
        const auto isGas = T >= component(i).record().Tkr;
        if (!isAll(isGas)) sum += select(isGas, 0.0, x_[i] * P_ / pure(i, kTENS, at));
    }
    return larger(smaller(plainLogarithm(sum), point::kMost), -point::kMost);
}

// A point found, with the verdict of the vapour pressures or that some components do not condense.
template <class Number>
Number BasicPropertyPoint<Number>::saturationPoint(const Number& T) {
    if constexpr (std::same_as<Number, double>) {
        if (std::isnan(T)) standings_.take(Standing::Diverged);
        for (std::size_t i = 0; i < count_ && !std::isnan(T); ++i)
            standings_.take(T >= component(i).record().Tkr ? Standing::Inert : component(i).pure(kTENS, T).standing);
    }
    return T;  // of several points only those that nothing is told of are found together
}

template <class Number>
bool BasicPropertyPoint<Number>::hasVapourPressures() {
    for (std::size_t i = 0; i < count_; ++i)
        if (component(i).record().Korelace[kTENS - 1].Priznak == 0) standings_.take(Standing::NotGiven);
    return standings_.isComputed();
}

// Of gases no liquid is made: a bubble point lies below all critical temperatures.
template <class Number>
Number BasicPropertyPoint<Number>::TBV() {
    double hot = std::numeric_limits<double>::infinity();
    for (std::size_t i = 0; i < count_; ++i) hot = std::min(hot, point::kWithin * component(i).record().Tkr);
    return saturationPoint(point::highestRoot<Number>([&](const Number& t) { return boilingExcess(t); }, point::kLowest,
                                                      hot, [&](const Number& t) { return isCertain(t); }));
}

// Between each two critical temperatures, from the lowest: what is above its own does not condense. Several points are
// sought together below the lowest only.
template <class Number>
Number BasicPropertyPoint<Number>::TRB() {
    const auto excess = [&](const Number& t) { return condensingExcess(t); };
    const auto isCertainAt = [&](const Number& t) { return isCertain(t); };
    Constants critical = constants(&TLatka::Tkr);
    if constexpr (!std::same_as<Number, double>) {
        double lowest = critical[0];
        for (std::size_t i = 1; i < count_; ++i) lowest = critical[i] < lowest ? critical[i] : lowest;
        return point::highestRoot<Number>(excess, point::kLowest, point::kWithin * lowest, isCertainAt);
    } else {
        std::sort(critical.begin(), critical.begin() + static_cast<std::ptrdiff_t>(count_));
        double cold = point::kLowest;
        for (std::size_t i = 0; i < count_; ++i) {
            const double hot = point::kWithin * critical[i];
            if (hot > cold) {
                const double T = point::highestRoot<Number>(excess, cold, hot, isCertainAt);
                if (!std::isnan(T)) return saturationPoint(T);
                // What condenses at any lower temperature is a gas from here on.
                if (i > 0 && condensingExcess(hot) <= 0) return saturationPoint(cold);
            }
            cold = critical[i];
        }
        return saturationPoint(numbers::kNan);
    }
}

}  // namespace velor
