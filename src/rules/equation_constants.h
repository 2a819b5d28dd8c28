// The coefficients of an equation as it computes with them.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

#include "runtime/checked.h"

namespace velor {

using Coefficients = std::array<float, 6>;  // A1..A6

class EquationConstants {
  public:
    EquationConstants() = default;
    EquationConstants(const Coefficients& A) : A_{A[0], A[1], A[2], A[3], A[4], A[5]} {}

    double operator[](std::size_t j) const { return A_[j]; }  // 0 is A1

    // Of A1 or A2. Errors: 5 it does not exist, 6 a damaged coefficient.
    double logarithm(std::size_t j) const {
        return std::isnan(logarithms_[j]) ? checked::naturalLogarithm(A_[j]) : logarithms_[j];
    }
    // Computes those that exist beforehand; the others stay to be refused when they are asked for.
    void prepareLogarithms();

  private:
    static constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

    std::array<double, 6> A_{};
    std::array<double, 2> logarithms_{kUnknown, kUnknown};
};

}  // namespace velor
