// The flash of a feed z into liquid x and vapour y by the Rachford-Rice balance (Rachford and Rice, 1952), at a given
// temperature or at a given enthalpy, by Newton's method in the vapour fraction V and the temperature T. Every array
// has one element a component.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "rules/composition.h"
#include "runtime/checked.h"

namespace velor {

// Slopes in the temperature are differences over so many kelvin.
inline constexpr double kFlashTemperatureStep = 6.0;

struct Equilibrium {
    std::span<const double> K;       // y / x
    std::span<const double> slopes;  // K' = dK/dT, 1/K; nothing where the temperature is given
};

// Of the last pass, converged or not.
struct FlashSolution {
    bool converged = false;
    int passes = 0;
    double V = 1.0;               // moles of vapour per mole of feed
    double T = 0;                 // K
    double materialResidual = 0;  // F1 = sum(x (1 - K))
    double energyResidual = 0;    // F2 = (1 - V) HL + V HV - H0, J/mol
    std::vector<double> x, y;     // normalised where the enthalpy is given
};

// ---- One pass ------------------------------------------------------------------------------------------------------

// x = z / D, y = K x with D = 1 - V (1 - K).
struct MaterialBalance {
    double residual = 0;       // F1
    double byVapour = 0;       // A = dF1/dV = sum(z (1 - K)^2 / D^2)
    double byTemperature = 0;  // B = dF1/dT = -sum(z K' / D^2)
};

// Splits the feed into liquid x and vapour y. Error 11: some D is 0.
MaterialBalance splitFeed(double V, std::span<const double> z, const Equilibrium& equilibrium, std::span<double> x,
                          std::span<double> y);

struct EnergyBalance {
    double residual = 0;       // F2
    double byVapour = 0;       // C = dF2/dV
    double byTemperature = 0;  // E = dF2/dT
};

// Of molar enthalpies at T and at T + kFlashTemperatureStep, H0 that of the feed.
struct Enthalpies {
    double liquid = 0, vapour = 0, warmerLiquid = 0, warmerVapour = 0;
};
EnergyBalance energyBalance(double V, double H0, const Enthalpies& enthalpies);

struct FlashStep {
    double V = 0;
    double T = 0;
};

// Error 11: a singular matrix.
FlashStep isothermalStep(const MaterialBalance& material);
FlashStep adiabaticStep(const MaterialBalance& material, const EnergyBalance& energy);

// ---- The iteration -------------------------------------------------------------------------------------------------

// Takes the step, damped at first: by 0.1, 0.2, 0.6, then in full, and by 0.7 of that in the temperature. Tells whether
// the iteration ends: converged, or after 30 passes, whatever the last of them found.
bool advance(FlashSolution& solution, const FlashStep& step, double& relaxation);

// Into a solution that may be an earlier one, whose room is used again.
template <class Pass>
void iterateFlash(FlashSolution& solution, double T, std::size_t components, const Pass& pass) {
    solution.converged = false;
    solution.passes = 0;
    solution.V = 1.0;
    solution.T = T;
    solution.materialResidual = solution.energyResidual = 0;
    solution.x.resize(components);
    solution.y.resize(components);
    double relaxation = 0.1;
    while (!advance(solution, pass(solution), relaxation)) {
    }
}

// At T kelvin. equilibrium(T) gives the K-values, asked for in each pass. Errors: those of a pass.
template <class EquilibriumAt>
void isothermalFlash(FlashSolution& solution, double T, std::span<const double> z, const EquilibriumAt& equilibrium) {
    iterateFlash(solution, T, z.size(), [&](FlashSolution& now) {
        const MaterialBalance material = splitFeed(now.V, z, equilibrium(now.T), now.x, now.y);
        now.materialResidual = checked::finite(material.residual);
        return isothermalStep(material);
    });
}

// At the feed's enthalpy H0, J/mol, from the first estimate T kelvin. equilibrium(T) gives K and its slopes;
// liquidEnthalpy(T, x) and vapourEnthalpy(T, y) molar enthalpies from one reference state, J/mol, asked for at T and
// then at the warmer temperature. Errors: those of a pass, 11 a phase whose fractions sum to 0.
template <class EquilibriumAt, class LiquidEnthalpy, class VapourEnthalpy>
void adiabaticFlash(FlashSolution& solution, double H0, double T, std::span<const double> z,
                    const EquilibriumAt& equilibrium, const LiquidEnthalpy& liquidEnthalpy,
                    const VapourEnthalpy& vapourEnthalpy) {
    iterateFlash(solution, T, z.size(), [&](FlashSolution& now) {
        const MaterialBalance material = splitFeed(now.V, z, equilibrium(now.T), now.x, now.y);
        now.materialResidual = checked::finite(material.residual);
        normalise(now.x);
        normalise(now.y);
        const double warmer = now.T + kFlashTemperatureStep;
        Enthalpies enthalpies;
        enthalpies.liquid = liquidEnthalpy(now.T, now.x);
        enthalpies.vapour = vapourEnthalpy(now.T, now.y);
        enthalpies.warmerLiquid = liquidEnthalpy(warmer, now.x);
        enthalpies.warmerVapour = vapourEnthalpy(warmer, now.y);
        const EnergyBalance energy = energyBalance(now.V, H0, enthalpies);
        now.energyResidual = checked::finite(energy.residual);
        return adiabaticStep(material, energy);
    });
}

}  // namespace velor
