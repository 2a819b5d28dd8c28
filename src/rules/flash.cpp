#include "rules/flash.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "runtime/checked.h"

namespace velor {

using checked::divide;

namespace {

constexpr double kToleranceV = 0.0005;
constexpr double kToleranceT = 0.1;  // K
constexpr int kPassLimit = 30;
constexpr double kLeastTemperature = 50.0;  // K
constexpr double kLeastVapour = 1.0E-6;
constexpr double kTemperatureDamping = 0.7;

}  // namespace

MaterialBalance splitFeed(double V, std::span<const double> z, const Equilibrium& equilibrium, std::span<double> x,
                          std::span<double> y) {
    MaterialBalance balance;
    for (std::size_t i = 0; i < z.size(); ++i) {
        const double K = equilibrium.K[i], deviation = 1.0 - K;
        const double D = 1.0 - V * deviation;
        x[i] = divide(z[i], D);
        y[i] = K * x[i];
        balance.residual += x[i] * deviation;
        balance.byVapour += x[i] * deviation * deviation / D;
        if (!equilibrium.slopes.empty()) balance.byTemperature -= x[i] * equilibrium.slopes[i] / D;
    }
    return balance;
}

EnergyBalance energyBalance(double V, double H0, const Enthalpies& H) {
    const double liquidRise = H.warmerLiquid - H.liquid, vapourRise = H.warmerVapour - H.vapour;
    return {(1.0 - V) * H.liquid + V * H.vapour - H0, H.vapour - H.liquid,
            (1.0 - V) * liquidRise / kFlashTemperatureStep + V * vapourRise / kFlashTemperatureStep};
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

bool advance(FlashSolution& solution, const FlashStep& step, double& relaxation) {
    ++solution.passes;
    relaxation = std::min(relaxation * solution.passes, 1.0);
    double& V = solution.V;
    V += relaxation * step.V;
    if (V > 1.0) V = 1.0;
    if (V <= 0.0) V = kLeastVapour;
    solution.T = std::max(solution.T + kTemperatureDamping * relaxation * step.T, kLeastTemperature);
    if (solution.passes == kPassLimit) return true;
    solution.converged = !(std::abs(step.V) > kToleranceV || std::abs(step.T) > kToleranceT);
    return solution.converged;
}

}  // namespace velor
