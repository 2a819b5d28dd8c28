// Arithmetic that raises the classic run-time errors where plain arithmetic would give infinity or NaN. Operands that
// are not finite (a damaged coefficient) are refused too, because they could vanish again, as in 1/infinity.
#pragma once

#include <cmath>

#include "velor/run_time_error.h"

namespace velor::checked {

inline constexpr double kLn10 = 2.302585092994046;

[[noreturn]] void raise(RunTimeError::Number number);
[[noreturn]] void raiseDivision(double denominator);  // 11 for zero, else 6

inline double finite(double value) {
    if (!std::isfinite(value)) [[unlikely]]
        raise(RunTimeError::kOverflow);
    return value;
}

inline double divide(double numerator, double denominator) {
    const double quotient = numerator / denominator;  // not finite by zero
    if (!std::isfinite(denominator) || !std::isfinite(quotient)) [[unlikely]]
        raiseDivision(denominator);
    return quotient;
}

inline double exponential(double exponent) { return finite(std::exp(finite(exponent))); }

inline double naturalLogarithm(double value) {
    if (!(value > 0.0)) [[unlikely]]
        raise(RunTimeError::kInvalidCall);
    return std::log(finite(value));
}

inline double decimalLogarithm(double value) { return naturalLogarithm(value) / kLn10; }

inline double squareRoot(double value) {
    if (!(value >= 0.0)) [[unlikely]]
        raise(RunTimeError::kInvalidCall);
    return std::sqrt(finite(value));
}

// A negative base has only whole powers, zero no negative one.
inline double power(double base, double exponent) {
    finite(exponent);
    if ((base < 0.0 && exponent != std::trunc(exponent)) || (base == 0.0 && exponent < 0.0)) [[unlikely]]
        raise(RunTimeError::kInvalidCall);
    return finite(std::pow(finite(base), exponent));
}

}  // namespace velor::checked
