#include "rules/equations.h"

#include <cmath>

#include "runtime/checked.h"

namespace velor {

namespace {

using checked::divide;
using checked::exponential;
using checked::finite;
using checked::kLn10;
using checked::squareRoot;

double tenTo(double exponent) { return exponential(kLn10 * exponent); }

// Within a few last bits, and a quarter cheaper than std::pow.
double power(double base, double exponent) {
    return base > 0.0 ? exponential(exponent * std::log(base)) : checked::power(base, exponent);
}

// T^exponent by the logarithm that T shares.
double power(const Temperature& T, double exponent) {
    return T > 0.0 ? exponential(exponent * T.logarithm()) : checked::power(T, exponent);
}

// Of A1 or A2, by its prepared logarithm.
double powerOf(const EquationConstants& A, std::size_t j, double exponent) {
    return A[j] > 0.0 ? exponential(exponent * A.logarithm(j)) : checked::power(A[j], exponent);
}

// Nearly every vapour pressure has one of three whole exponents; a product is a third of a power's cost.
double powerOfVapourPressure(const Temperature& T, double exponent) {
    if (exponent == 1.0) return T;
    if (exponent == 2.0) return T * T;
    if (exponent == 6.0) {
        const double cube = T * T * T;
        return cube * cube;
    }
    return power(T, exponent);
}

// By Horner's scheme from the top.
template <std::size_t degree>
double polynomial(const EquationConstants& A, double T) {
    double y = A[degree];
    for (std::size_t j = degree; j-- > 0;) y = y * T + A[j];
    return y;
}

double antoine(const EquationConstants& A, double T) { return exponential(A[0] + divide(A[1], A[2] + T)); }

double rackett(const EquationConstants& A, double T) {
    constexpr double kTwoSevenths = 0.285714;  // six digits, kept
    if (T > A[2]) return kNoValue;
    const double root = power(1.0 - divide(T, A[2]), kTwoSevenths);
    return 1000.0 * exponential(A.logarithm(0) - root * A.logarithm(1));
}

double watson(const EquationConstants& A, double T) {
    if (T > A[3]) return kNoValue;
    const double ratio = divide(A[3] - T, A[3] - A[1]);
    if (ratio < 0.0) return kNoValue;
    return A[0] * power(ratio, A[2]);
}

double decimalWithLogarithm(const EquationConstants& A, const Temperature& T) {
    return exponential(kLn10 * (A[0] + divide(A[1], A[2] + T) + A[4] * T + A[5] * T * T) + A[3] * T.logarithm());
}

double decimalQuadratic(const EquationConstants& A, double T) {
    return tenTo(A[0] + divide(A[1], A[4] + T) + A[2] * T + A[3] * T * T);
}

double reciprocalCubic(const EquationConstants& A, double T) {
    const double r = divide(1.0, T);
    return exponential(A[0] + r * (A[1] + r * (A[2] + r * A[3])));
}

double sutherland(const EquationConstants& A, double T) { return divide(A[0] * (T * squareRoot(T)), T + A[1]); }

double wagner(const EquationConstants& A, double T) {
    if (!(T < A[4])) return kNoValue;
    const double Tr = divide(T, A[4]);
    const double t = 1.0 - Tr;
    const double cube = t * t * t;
    const double sum = A[0] * t + A[1] * (t * squareRoot(t)) + A[2] * cube + A[3] * (cube * cube);
    return A[5] * exponential(divide(sum * A[4], T));
}

double reducedTension(const EquationConstants& A, double T) {
    constexpr double kOneSixth = 0.166667;  // six digits, kept
    if (!(T < A[1])) return kNoValue;
    const double Tr = divide(T, A[1]);
    return divide(A[0] * power(1.0 - Tr, 0.38), power(Tr, kOneSixth));
}

double daubert(const EquationConstants& A, double T) {
    if (T > A[2]) return kNoValue;
    const double base = 1.0 - divide(T, A[2]);
    if (base < 0.0) return kNoValue;
    return divide(A[0], powerOf(A, 1, 1.0 + power(base, A[3])));
}

double reducedQuadratic(const EquationConstants& A, double T) {
    if (T > A[5]) return kNoValue;
    const double Tr = divide(T, A[5]);
    return A[0] * (1.0 - Tr) * (A[1] + A[2] * Tr + A[3] * Tr * Tr);
}

double referenceReciprocal(const EquationConstants& A, double T) {
    return tenTo(A[0] * (divide(1.0, T) - divide(1.0, A[1])) + A[2]);
}

double extendedAntoine(const EquationConstants& A, const Temperature& T) {
    return exponential(A[0] + divide(A[1], T) + A[2] * T.logarithm() + A[3] * powerOfVapourPressure(T, A[4]));
}

double gasTransport(const EquationConstants& A, const Temperature& T) {
    const double r = divide(1.0, T);
    return divide(A[0] * power(T, A[1]), 1.0 + r * (A[2] + r * A[3]));
}

// What the table calls: the result has to be finite.
template <auto equation>
double finiteValue(const EquationConstants& A, const Temperature& T) {
    return finite(equation(A, T));
}

template <class... Numbers>
constexpr std::uint8_t coefficients(Numbers... numbers) {
    return static_cast<std::uint8_t>(((1U << (numbers - 1)) | ...));
}

constexpr auto kTable = std::to_array<Equation>({
    {.value = finiteValue<polynomial<1>>, .text = " y = A1 + A2.T   přímka ", .used = coefficients(1, 2), .degree = 1},
    {.value = finiteValue<polynomial<2>>,
     .text = " y = A1 + A2.T + A3.T^2   parabola ",
     .used = coefficients(1, 2, 3),
     .degree = 2},
    {.value = finiteValue<polynomial<3>>,
     .text = " y = A1 + A2.T + A3.T^2 + A4.T^3  polynom ",
     .used = coefficients(1, 2, 3, 4),
     .degree = 3},
    {.value = finiteValue<polynomial<4>>,
     .text = " y = A1 + A2.T + A3.T^2 + A4.T^3 + A5.T^4  polynom ",
     .used = coefficients(1, 2, 3, 4, 5),
     .degree = 4},
    {.value = finiteValue<polynomial<5>>,
     .text = " y = A1 + A2.T + A3.T^2 + A4.T^3 + A5.T^4 + A6.T^5  polynom ",
     .used = coefficients(1, 2, 3, 4, 5, 6),
     .degree = 5},
    {.value = finiteValue<antoine>,
     .text = " ln(y) = A1+ A2/(A3 + T)   Antoine ",
     .used = coefficients(1, 2, 3),
     .source = "Antoine (1888)"},
    {.value = finiteValue<rackett>,
     .text = " log(y) = 3 + log(A1) - (1 - T/A3)^(2/7) .log(A2)    A3=Tkr ",
     .used = coefficients(1, 2, 3),
     .reference = 3,
     .source = "Rackett (1970)"},
    {.value = finiteValue<watson>,
     .text = " y = A1.[(A4 - T)/(A4 - A2)]^A3    A4=Tkr ",
     .used = coefficients(1, 2, 3, 4),
     .reference = 4,
     .source = "Watson (1943)"},
    {.value = finiteValue<decimalWithLogarithm>,
     .text = " log(y) = A1 + A2/(A3 + T) + A4.log(T) + A5.T + A6.T^2 ",
     .used = coefficients(1, 2, 3, 4, 5, 6)},
    {.value = finiteValue<decimalQuadratic>,
     .text = " log(y) = A1 + A2/(A5 + T) + A3.T + A4.T^2 ",
     .used = coefficients(1, 2, 3, 4, 5)},
    {.value = finiteValue<reciprocalCubic>,
     .text = " ln(y) = A1 + A2/T + A3/T^2 + A4/T^3 ",
     .used = coefficients(1, 2, 3, 4)},
    {.value = finiteValue<sutherland>,
     .text = " y = A1.T^1.5 /(T + A2) ",
     .used = coefficients(1, 2),
     .source = "Sutherland (1893)"},
    {.value = finiteValue<wagner>,
     .text = " ln(y/A6) = (A1.t + A2.t^1.5 + A3.t^3 + A4.t^6) /T.A5   t=1-T/A5; A5=Tkr; A6=Pkr Wagner ",
     .used = coefficients(1, 2, 3, 4, 5, 6),
     .reference = 5,
     .source = "Wagner (1973)"},
    {.value = finiteValue<reducedTension>,
     .text = " y = A1.(1 - Tr)^0.38 / Tr^(1/6) ",
     .used = coefficients(1, 2),
     .reference = 2},
    {.value = finiteValue<daubert>,
     .text = " y = A1 / A2^[1 + (1 - T/A3)^A4] ",
     .used = coefficients(1, 2, 3, 4),
     .reference = 3,
     .source = "Daubert and Danner (1985)"},
    {.value = finiteValue<reducedQuadratic>,
     .text = " y = A1.(1 - Tr)[A2 + A3.Tr + A4.Tr^2]   Tr=T/A6 ",
     .used = coefficients(1, 2, 3, 4, 6),
     .reference = 6},
    {.value = finiteValue<referenceReciprocal>, .text = " log(y) = A1.(1/T - 1/A2)+A3 ", .used = coefficients(1, 2, 3)},
    {.value = finiteValue<extendedAntoine>,
     .text = " ln(y) = A1 + A2/T + A3.ln(T) + A4.T^A5 ",
     .used = coefficients(1, 2, 3, 4, 5)},
    {.value = finiteValue<gasTransport>, .text = " y = A1.T^A2/(1 + A3/T + A4/T^2) ", .used = coefficients(1, 2, 3, 4)},
});

}  // namespace

constinit const std::span<const Equation> kEquations = kTable;

void EquationConstants::prepareLogarithms() {
    for (std::size_t j = 0; j < logarithms_.size(); ++j)
        if (A_[j] > 0.0 && std::isfinite(A_[j])) logarithms_[j] = std::log(A_[j]);
}

std::string_view equationText(int type) { return isEquationType(type) ? equationOf(type).text : " Neznámý vztah! "; }

std::string equationTypesText() { return "1 až " + std::to_string(kEquations.size()); }

double waterDensity(double T) {
    const double tau = 1.0 - T / 647.096;
    if (tau < 0.0) checked::raise(RunTimeError::kInvalidCall);  // no power of it exists
    const double c = std::cbrt(tau);                            // every exponent is a multiple of 1/3
    const double c2 = c * c, c5 = c2 * c2 * c, c16 = c5 * c5 * c5 * c;
    const double c32 = c16 * c16, c43 = c32 * c5 * c5 * c, c110 = c43 * c43 * c16 * c5 * c2 * c;
    return finite(322.0 * (1.0 + 1.99274064 * c + 1.09965342 * c2 - 0.510839303 * c5 - 1.7549379 * c16 -
                           45.5170352 * c43 - 674694.45 * c110));
}

}  // namespace velor
