// The correlation equations: y of a temperature and six coefficients.
#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>

#include "rules/temperature.h"

namespace velor {

using Coefficients = std::array<float, 6>;  // A1..A6

// The value where an equation has none: beyond its reference temperature, or after an error.
inline constexpr double kNoValue = 1E-8;

// The coefficients as an equation computes with them.
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

// What is known of one equation.
struct Equation {
    double (*value)(const EquationConstants& A, const Temperature& T);  // see evaluateEquation
    std::string_view text;                                              // how it is shown to the user
    std::uint8_t used;                                                  // its coefficients, A1 the lowest bit
    int degree = 0;                // of a polynomial a1 + a2 T + ...; 0: it is none
    int reference = 0;             // the coefficient that is the reference temperature, 1 A1 ...; 0: it has none
    std::string_view source = {};  // author and year, where the form is anybody's

    constexpr bool uses(std::size_t coefficient) const { return (used >> coefficient & 1U) != 0; }  // 0 is A1
};

// The one list of them: type 1, 2 ... in this order. A new equation is a function and a row at its end.
extern const std::span<const Equation> kEquations;

inline bool isEquationType(int type) { return type >= 1 && static_cast<std::size_t>(type) <= kEquations.size(); }

// Error 9: no type.
inline const Equation& equationOf(int type) {
    if (!isEquationType(type)) [[unlikely]]
        checked::raise(RunTimeError::kSubscript);
    return kEquations[static_cast<std::size_t>(type - 1)];
}

// The equation at T kelvin, in the unit of its coefficients; double precision on single-precision coefficients. One
// with a reference temperature gives kNoValue beyond it. Errors: 5 a logarithm, root or power that does not exist, 6 a
// result that is not finite or a damaged coefficient, 11 a zero denominator; 9 no type.
inline double evaluateEquation(int type, const Coefficients& A, const Temperature& T) {
    return equationOf(type).value(A, T);
}

// An equation with its coefficients, for many temperatures.
class PreparedEquation {
  public:
    PreparedEquation() = default;  // not to be evaluated
    // Error 9: no type.
    PreparedEquation(int type, const Coefficients& A) : value_(equationOf(type).value), constants_(A) {
        constants_.prepareLogarithms();
    }

    // See evaluateEquation.
    double operator()(const Temperature& T) const { return value_(constants_, T); }

  private:
    double (*value_)(const EquationConstants& A, const Temperature& T) = nullptr;
    EquationConstants constants_;
};

// The degree of a polynomial; 0 where the type is none.
inline int polynomialDegree(int type) { return isEquationType(type) ? equationOf(type).degree : 0; }

// How an equation is shown to the user.
std::string_view equationText(int type);

// The types as a sentence names them: "1 až 19".
std::string equationTypesText();

// Saturated liquid density of water, kg/m3, up to 647.096 K (error 5 above): the saturated-liquid equation of IAPWS
// (Wagner and Pruss, 1993), with b4 = -1.7549379 where the release has -1.75493479, on purpose.
double waterDensity(double T);

}  // namespace velor
