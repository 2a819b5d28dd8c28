// The correlation equations: y of a temperature and six coefficients.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "rules/equation_forms.h"

namespace velor {

struct Equation : EquationFacts {
    EquationFunction<double> value;  // see evaluateEquation
};

// By type, from 0.
extern const std::span<const Equation> kEquations;

inline bool isEquationType(int type) { return type >= 1 && static_cast<std::size_t>(type) <= kEquationCount; }

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
    PreparedEquation(int type, const Coefficients& A) : value_(equationOf(type).value), type_(type), constants_(A) {
        constants_.prepareLogarithms();
    }

    // See evaluateEquation.
    double operator()(const Temperature& T) const { return value_(constants_, T); }
    // Of several points; those without a value are NaN.
    template <class Number>
    Number operator()(const BasicTemperature<Number>& T) const {
        return kEquationFunctions<Number>[static_cast<std::size_t>(type_ - 1)](constants_, T);
    }

  private:
    EquationFunction<double> value_ = nullptr;
    int type_ = 0;
    EquationConstants constants_;
};

// The degree of a polynomial; 0 where the type is none.
inline int polynomialDegree(int type) { return isEquationType(type) ? equationOf(type).degree : 0; }

// How an equation is shown to the user.
std::string_view equationText(int type);

// The types as a sentence names them: "1 až 19".
std::string equationTypesText();

}  // namespace velor
