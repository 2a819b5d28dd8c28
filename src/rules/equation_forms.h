// The correlation equations, each with what is known of it. Number is a double or the Lanes of several points.
#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <tuple>

#include "rules/equation_constants.h"
#include "rules/number.h"
#include "rules/temperature.h"

namespace velor {

// The value where an equation has none: beyond its reference temperature, or after an error.
inline constexpr double kNoValue = 1E-8;

// What is known of an equation besides its value.
struct EquationFacts {
    std::string_view text;         // how it is shown to the user
    std::uint8_t used = 0;         // its coefficients, A1 the lowest bit
    int degree = 0;                // of a polynomial a1 + a2 T + ...; 0: it is none
    int reference = 0;             // the coefficient that is the reference temperature, 1 A1 ...; 0: it has none
    std::string_view source = {};  // author and year, where the form is anybody's

    constexpr bool uses(std::size_t coefficient) const { return (used >> coefficient & 1U) != 0; }  // 0 is A1
};

namespace forms {

using namespace numbers;

template <class... Numbers>
constexpr std::uint8_t coefficients(Numbers... numbers) {
    return static_cast<std::uint8_t>(((1U << (numbers - 1)) | ...));
}

// What an equation has beyond its reference temperature. Lanes have nothing: why, is for the single point to tell.
template <class Number>
Number none() {
    return std::same_as<Number, double> ? kNoValue : kNan;
}

// Where only some lanes are beyond it, y holds for the others.
inline double except(bool, double y) { return y; }
template <class Mask, class Number>
Number except(const Mask& isBeyond, const Number& y) {
    return select(isBeyond, kNan, y);
}

template <class Number>
Number tenTo(const Number& exponent) {
    return exponential(checked::kLn10 * exponent);
}

// Within a few last bits, and a quarter cheaper than std::pow.
inline double power(double base, double exponent) {
    return base > 0.0 ? exponential(exponent * std::log(base)) : checked::power(base, exponent);
}

// T^exponent by the logarithm that T shares.
template <class Number>
Number power(const BasicTemperature<Number>& T, double exponent) {
    if constexpr (std::same_as<Number, double>)
        if (!(T > 0.0)) return checked::power(T, exponent);
    return exponential(exponent * T.logarithm());
}

// Of A1 or A2, by its prepared logarithm.
template <class Number>
Number powerOf(const EquationConstants& A, std::size_t j, const Number& exponent) {
    if constexpr (std::same_as<Number, double>)
        if (!(A[j] > 0.0)) return checked::power(A[j], exponent);
    return exponential(exponent * A.logarithm(j));
}

// Nearly every vapour pressure has one of three whole exponents; a product is a third of a power's cost.
template <class Number>
Number powerOfVapourPressure(const BasicTemperature<Number>& at, double exponent) {
    const Number& T = at.kelvin();
    if (exponent == 1.0) return T;
    if (exponent == 2.0) return T * T;
    if (exponent == 6.0) {
        const Number cube = T * T * T;
        return cube * cube;
    }
    return power(at, exponent);
}

constexpr std::array<std::string_view, 5> kPolynomialTexts{
    " y = A1 + A2.T   přímka ", " y = A1 + A2.T + A3.T^2   parabola ", " y = A1 + A2.T + A3.T^2 + A4.T^3  polynom ",
    " y = A1 + A2.T + A3.T^2 + A4.T^3 + A5.T^4  polynom ",
    " y = A1 + A2.T + A3.T^2 + A4.T^3 + A5.T^4 + A6.T^5  polynom "};

// By Horner's scheme from the top.
template <std::size_t degree>
struct Polynomial {
    static constexpr EquationFacts kFacts{.text = kPolynomialTexts[degree - 1],
                                          .used = static_cast<std::uint8_t>((2U << degree) - 1U),
                                          .degree = static_cast<int>(degree)};

    template <class Number>
    static Number value(const EquationConstants& A, const BasicTemperature<Number>& at) {
        const Number& T = at.kelvin();
        Number y = A[degree];
        for (std::size_t j = degree; j-- > 0;) y = y * T + A[j];
        return y;
    }
};

struct Antoine {
    static constexpr EquationFacts kFacts{
        .text = " ln(y) = A1+ A2/(A3 + T)   Antoine ", .used = coefficients(1, 2, 3), .source = "Antoine (1888)"};

    template <class Number>
    static Number value(const EquationConstants& A, const BasicTemperature<Number>& at) {
        return exponential(A[0] + divide(A[1], A[2] + at.kelvin()));
    }
};

struct Rackett {
    static constexpr EquationFacts kFacts{.text = " log(y) = 3 + log(A1) - (1 - T/A3)^(2/7) .log(A2)    A3=Tkr ",
                                          .used = coefficients(1, 2, 3),
                                          .reference = 3,
                                          .source = "Rackett (1970)"};

    template <class Number>
    static Number value(const EquationConstants& A, const BasicTemperature<Number>& at) {
        constexpr double kTwoSevenths = 0.285714;  // six digits, kept
        const Number& T = at.kelvin();
        const auto isBeyond = T > A[2];
        if (isAll(isBeyond)) return none<Number>();
        const Number root = power(1.0 - divide(T, A[2]), kTwoSevenths);
        return except(isBeyond, 1000.0 * exponential(A.logarithm(0) - root * A.logarithm(1)));
    }
};

struct Watson {
    static constexpr EquationFacts kFacts{.text = " y = A1.[(A4 - T)/(A4 - A2)]^A3    A4=Tkr ",
                                          .used = coefficients(1, 2, 3, 4),
                                          .reference = 4,
                                          .source = "Watson (1943)"};

    template <class Number>
    static Number value(const EquationConstants& A, const BasicTemperature<Number>& at) {
        const Number& T = at.kelvin();
        const auto isBeyond = T > A[3];
        if (isAll(isBeyond)) return none<Number>();
        const Number ratio = divide(A[3] - T, A[3] - A[1]);
        if (isAll(ratio < 0.0)) return none<Number>();
        return except(isBeyond, A[0] * power(ratio, A[2]));
    }
};

struct DecimalWithLogarithm {
    static constexpr EquationFacts kFacts{.text = " log(y) = A1 + A2/(A3 + T) + A4.log(T) + A5.T + A6.T^2 ",
                                          .used = coefficients(1, 2, 3, 4, 5, 6)};

    template <class Number>
    static Number value(const EquationConstants& A, const BasicTemperature<Number>& at) {
        const Number& T = at.kelvin();
        return exponential(checked::kLn10 * (A[0] + divide(A[1], A[2] + T) + A[4] * T + A[5] * T * T) +
                           A[3] * at.logarithm());
    }
};

struct DecimalQuadratic {
    static constexpr EquationFacts kFacts{.text = " log(y) = A1 + A2/(A5 + T) + A3.T + A4.T^2 ",
                                          .used = coefficients(1, 2, 3, 4, 5)};

    template <class Number>
    static Number value(const EquationConstants& A, const BasicTemperature<Number>& at) {
        const Number& T = at.kelvin();
        return tenTo(A[0] + divide(A[1], A[4] + T) + A[2] * T + A[3] * T * T);
    }
};

struct ReciprocalCubic {
    static constexpr EquationFacts kFacts{.text = " ln(y) = A1 + A2/T + A3/T^2 + A4/T^3 ",
                                          .used = coefficients(1, 2, 3, 4)};

    template <class Number>
    static Number value(const EquationConstants& A, const BasicTemperature<Number>& at) {
        const Number& r = at.reciprocal();
        return exponential(A[0] + r * (A[1] + r * (A[2] + r * A[3])));
    }
};

struct Sutherland {
    static constexpr EquationFacts kFacts{
        .text = " y = A1.T^1.5 /(T + A2) ", .used = coefficients(1, 2), .source = "Sutherland (1893)"};

    template <class Number>
    static Number value(const EquationConstants& A, const BasicTemperature<Number>& at) {
        const Number& T = at.kelvin();
        return divide(A[0] * (T * squareRoot(T)), T + A[1]);
    }
};

struct Wagner {
    static constexpr EquationFacts kFacts{
        .text = " ln(y/A6) = (A1.t + A2.t^1.5 + A3.t^3 + A4.t^6) /T.A5   t=1-T/A5; A5=Tkr; A6=Pkr Wagner ",
        .used = coefficients(1, 2, 3, 4, 5, 6),
        .reference = 5,
        .source = "Wagner (1973)"};

    template <class Number>
    static Number value(const EquationConstants& A, const BasicTemperature<Number>& at) {
        const Number& T = at.kelvin();
        const auto isBelow = T < A[4];
        if (!isAny(isBelow)) return none<Number>();
        const Number Tr = divide(T, A[4]);
        const Number t = 1.0 - Tr;
        const Number cube = t * t * t;
        const Number sum = A[0] * t + A[1] * (t * squareRoot(t)) + A[2] * cube + A[3] * (cube * cube);
        return except(!isBelow, A[5] * exponential(divide(sum * A[4], T)));
    }
};

struct ReducedTension {
    static constexpr EquationFacts kFacts{
        .text = " y = A1.(1 - Tr)^0.38 / Tr^(1/6) ", .used = coefficients(1, 2), .reference = 2};

    template <class Number>
    static Number value(const EquationConstants& A, const BasicTemperature<Number>& at) {
        constexpr double kOneSixth = 0.166667;  // six digits, kept
        const Number& T = at.kelvin();
        const auto isBelow = T < A[1];
        if (!isAny(isBelow)) return none<Number>();
        const Number Tr = divide(T, A[1]);
        return except(!isBelow, divide(A[0] * power(1.0 - Tr, 0.38), power(Tr, kOneSixth)));
    }
};

struct Daubert {
    static constexpr EquationFacts kFacts{.text = " y = A1 / A2^[1 + (1 - T/A3)^A4] ",
                                          .used = coefficients(1, 2, 3, 4),
                                          .reference = 3,
                                          .source = "Daubert and Danner (1985)"};

    template <class Number>
    static Number value(const EquationConstants& A, const BasicTemperature<Number>& at) {
        const Number& T = at.kelvin();
        const auto isBeyond = T > A[2];
        if (isAll(isBeyond)) return none<Number>();
        const Number base = 1.0 - divide(T, A[2]);
        if (isAll(base < 0.0)) return none<Number>();
        return except(isBeyond, divide(A[0], powerOf(A, 1, 1.0 + power(base, A[3]))));
    }
};

struct ReducedQuadratic {
    static constexpr EquationFacts kFacts{.text = " y = A1.(1 - Tr)[A2 + A3.Tr + A4.Tr^2]   Tr=T/A6 ",
                                          .used = coefficients(1, 2, 3, 4, 6),
                                          .reference = 6};

    template <class Number>
    static Number value(const EquationConstants& A, const BasicTemperature<Number>& at) {
        const Number& T = at.kelvin();
        const auto isBeyond = T > A[5];
        if (isAll(isBeyond)) return none<Number>();
        const Number Tr = divide(T, A[5]);
        return except(isBeyond, A[0] * (1.0 - Tr) * (A[1] + A[2] * Tr + A[3] * Tr * Tr));
    }
};

struct ReferenceReciprocal {
    static constexpr EquationFacts kFacts{.text = " log(y) = A1.(1/T - 1/A2)+A3 ", .used = coefficients(1, 2, 3)};

    template <class Number>
    static Number value(const EquationConstants& A, const BasicTemperature<Number>& at) {
        return tenTo(A[0] * (at.reciprocal() - divide(1.0, A[1])) + A[2]);
    }
};

struct ExtendedAntoine {
    static constexpr EquationFacts kFacts{.text = " ln(y) = A1 + A2/T + A3.ln(T) + A4.T^A5 ",
                                          .used = coefficients(1, 2, 3, 4, 5)};

    template <class Number>
    static Number value(const EquationConstants& A, const BasicTemperature<Number>& at) {
        return exponential(A[0] + divide(A[1], at.kelvin()) + A[2] * at.logarithm() +
                           A[3] * powerOfVapourPressure(at, A[4]));
    }
};

struct GasTransport {
    static constexpr EquationFacts kFacts{.text = " y = A1.T^A2/(1 + A3/T + A4/T^2) ",
                                          .used = coefficients(1, 2, 3, 4)};

    template <class Number>
    static Number value(const EquationConstants& A, const BasicTemperature<Number>& at) {
        const Number& r = at.reciprocal();
        return divide(A[0] * power(at, A[1]), 1.0 + r * (A[2] + r * A[3]));
    }
};

}  // namespace forms

// The one list of them: type 1, 2 ... in this order. A new equation is a form above and its name at the end.
using EquationForms =
    std::tuple<forms::Polynomial<1>, forms::Polynomial<2>, forms::Polynomial<3>, forms::Polynomial<4>,
               forms::Polynomial<5>, forms::Antoine, forms::Rackett, forms::Watson, forms::DecimalWithLogarithm,
               forms::DecimalQuadratic, forms::ReciprocalCubic, forms::Sutherland, forms::Wagner, forms::ReducedTension,
               forms::Daubert, forms::ReducedQuadratic, forms::ReferenceReciprocal, forms::ExtendedAntoine,
               forms::GasTransport>;
inline constexpr std::size_t kEquationCount = std::tuple_size_v<EquationForms>;

// An equation at a temperature, in the unit of its coefficients; the result has to be finite.
template <class Number>
using EquationFunction = Number (*)(const EquationConstants& A, const BasicTemperature<Number>& T);

template <class Form, class Number>
Number finiteValue(const EquationConstants& A, const BasicTemperature<Number>& T) {
    if constexpr (std::same_as<Number, double>)
        return checked::finite(Form::value(A, T));
    else
        return Form::value(A, T);  // what comes of it all has to be
}

// By type, from 0.
template <class Number>
inline constexpr auto kEquationFunctions = []<class... Forms>(std::tuple<Forms...>*) {
    return std::array<EquationFunction<Number>, sizeof...(Forms)>{&finiteValue<Forms, Number>...};
}(static_cast<EquationForms*>(nullptr));

// Saturated liquid density of water, kg/m3, up to 647.096 K (error 5 above): the saturated-liquid equation of IAPWS
// (Wagner and Pruss, 1993), with b4 = -1.7549379 where the release has -1.75493479, on purpose.
template <class Number>
Number waterDensity(const Number& T) {
    using namespace numbers;
    const Number tau = 1.0 - T / 647.096;
    if (isAll(tau < 0.0)) checked::raise(RunTimeError::kInvalidCall);  // no power of it exists
    const Number c = cubeRoot(tau);                                    // every exponent is a multiple of 1/3
    const Number c2 = c * c, c5 = c2 * c2 * c, c16 = c5 * c5 * c5 * c;
    const Number c32 = c16 * c16, c43 = c32 * c5 * c5 * c, c110 = c43 * c43 * c16 * c5 * c2 * c;
    return finite(322.0 * (1.0 + 1.99274064 * c + 1.09965342 * c2 - 0.510839303 * c5 - 1.7549379 * c16 -
                           45.5170352 * c43 - 674694.45 * c110));
}

}  // namespace velor
