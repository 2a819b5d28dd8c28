#include "rules/composition.h"

#include <cstddef>

#include "runtime/checked.h"

namespace velor {

namespace {

void divideBySum(std::span<double> parts) {
    double sum = sumOf(parts);
    if (sum < kFractionTolerance) sum = 1.0;
    for (double& part : parts) part = checked::divide(part, sum);
}

}  // namespace

double sumOf(std::span<const double> x) {
    double sum = 0.0;
    for (const double fraction : x) sum += fraction;
    return sum;
}

void normalise(std::span<double> x) {
    const double sum = sumOf(x);
    for (double& fraction : x) fraction = checked::divide(fraction, sum);
}

void massParts(std::span<const double> x, std::span<const double> M, std::span<double> parts) {
    for (std::size_t i = 0; i < x.size(); ++i) parts[i] = x[i] * M[i];
}

void moleParts(std::span<const double> w, std::span<const double> M, std::span<double> parts) {
    for (std::size_t i = 0; i < w.size(); ++i) parts[i] = checked::divide(w[i], M[i]);
}

void massFractions(std::span<const double> x, std::span<const double> M, std::span<double> w) {
    massParts(x, M, w);
    divideBySum(w);
}

void moleFractions(std::span<const double> w, std::span<const double> M, std::span<double> x) {
    moleParts(w, M, x);
    divideBySum(x);
}

}  // namespace velor
