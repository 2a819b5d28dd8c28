// The correlation equations: y of a temperature and six coefficients.
#pragma once

#include <array>
#include <string_view>

#include "rules/temperature.h"

namespace velor {

using Coefficients = std::array<float, 6>;  // A1..A6

// The value where an equation has none: beyond its reference temperature, or after an error.
inline constexpr double kNoValue = 1E-8;

inline constexpr int kEquationTypes = 19;

inline constexpr bool isEquationType(int type) { return type >= 1 && type <= kEquationTypes; }

// Equation type 1..19 at T kelvin, in the unit of its coefficients; double precision on single-precision
// coefficients. Types 7, 8, 13, 14, 15 and 16 give kNoValue beyond their reference temperature (A3, A4, A5, A2, A3,
// A6). Errors: 5 a logarithm, root or power that does not exist, 6 a result that is not finite or a damaged
// coefficient, 11 a zero denominator; 9 another type.
double evaluateEquation(int type, const Coefficients& A, const Temperature& T);

// How an equation is shown to the user.
std::string_view equationText(int type);

// Saturated liquid density of water, kg/m3, up to 647.096 K (error 5 above): the saturated-liquid equation of IAPWS
// (Wagner and Pruss, 1993), with b4 = -1.7549379 where the release has -1.75493479, on purpose.
double waterDensity(double T);

}  // namespace velor
