// One pass of the flash: the Rachford-Rice sums of an ideal mixture (Rachford and Rice, 1952) and the Newton steps
// that follow from them. z is the feed, one element a component in every array.
#pragma once

#include <span>

namespace velor {

// x = z / D, y = K x with D = 1 - V (1 - K), V moles of vapour per mole of feed.
struct MaterialBalance {
    double residual = 0;       // F1 = sum(x (1 - K))
    double byVapour = 0;       // A = dF1/dV = sum(z (1 - K)^2 / D^2)
    double byTemperature = 0;  // B = dF1/dT = -sum(z K' / D^2)
};

// Splits the feed into liquid x and vapour y. slopes holds K' = dK/dT, or nothing where the temperature is given.
// Error 11: some D is 0.
MaterialBalance splitFeed(double V, std::span<const double> z, std::span<const double> K,
                          std::span<const double> slopes, std::span<double> x, std::span<double> y);

// Divides by the sum. Error 11: it is 0.
void normalise(std::span<double> fractions);

struct EnergyBalance {
    double residual = 0;       // F2 = (1 - V) HL + V HV - H0
    double byVapour = 0;       // C = dF2/dV
    double byTemperature = 0;  // E = dF2/dT
};

struct FlashStep {
    double V = 0;
    double T = 0;
};

// Error 11: a singular matrix.
FlashStep isothermalStep(const MaterialBalance& material);
FlashStep adiabaticStep(const MaterialBalance& material, const EnergyBalance& energy);

}  // namespace velor
