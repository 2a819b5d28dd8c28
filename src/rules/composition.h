// Arithmetic of fractions. All arrays have the same length, one element a component.
#pragma once

#include <cstddef>
#include <span>

namespace velor {

// The allowed deviation of a sum from 1, and the denominator below which a conversion takes 1 instead.
inline constexpr double kFractionTolerance = 1e-05;

double sumOf(std::span<const double> x);

// Divides by the sum. Error 11: it is 0.
void normalise(std::span<double> x);

// sum(x y), the mole-fraction mean of pure values y, in their unit.
template <class Number>
Number moleMean(std::span<const double> x, std::span<const Number> y) {
    Number sum = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i) sum += x[i] * y[i];
    return sum;
}
inline double moleMean(std::span<const double> x, std::span<const double> y) { return moleMean<double>(x, y); }

// Parts by mass of mole fractions, x M, and by amount of mass fractions, w / M. Error 11: a molar mass of 0.
void massParts(std::span<const double> x, std::span<const double> M, std::span<double> parts);
void moleParts(std::span<const double> w, std::span<const double> M, std::span<double> parts);

// Mass fractions of mole fractions: x M / sum(x M). All zero stays all zero.
void massFractions(std::span<const double> x, std::span<const double> M, std::span<double> w);

// Mole fractions of mass fractions: (w / M) / sum(w / M). Error 11: a molar mass of 0.
void moleFractions(std::span<const double> w, std::span<const double> M, std::span<double> x);

}  // namespace velor
