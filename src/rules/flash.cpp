#include "rules/flash.h"

#include <cstddef>

#include "runtime/checked.h"

namespace velor {

using checked::divide;

MaterialBalance splitFeed(double V, std::span<const double> z, std::span<const double> K,
                          std::span<const double> slopes, std::span<double> x, std::span<double> y) {
    MaterialBalance balance;
    for (std::size_t i = 0; i < z.size(); ++i) {
        const double deviation = 1.0 - K[i];
        const double D = 1.0 - V * deviation;
        x[i] = divide(z[i], D);
        y[i] = K[i] * x[i];
        balance.residual += x[i] * deviation;
        balance.byVapour += x[i] * deviation * deviation / D;
        if (!slopes.empty()) balance.byTemperature -= x[i] * slopes[i] / D;
    }
    return balance;
}

void normalise(std::span<double> fractions) {
    double sum = 0.0;
    for (const double fraction : fractions) sum += fraction;
    for (double& fraction : fractions) fraction = divide(fraction, sum);
}

FlashStep isothermalStep(const MaterialBalance& material) {
    return {divide(-material.residual, material.byVapour), 0.0};
}

FlashStep adiabaticStep(const MaterialBalance& material, const EnergyBalance& energy) {
    const double determinant = material.byVapour * energy.byTemperature - material.byTemperature * energy.byVapour;
    const double V = material.byTemperature * energy.residual - energy.byTemperature * material.residual;
    const double T = energy.byVapour * material.residual - material.byVapour * energy.residual;
    return {divide(V, determinant), divide(T, determinant)};
}

}  // namespace velor
