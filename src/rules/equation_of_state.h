// The real gas's equation of state, a two-parameter cubic of the Redlich-Kwong form (Redlich and Kwong, 1949; Soave,
// 1972), independent of any mixture object:
//
//     p = R T / (V - b) - theta / (V (V + b)),     theta = S^2,     b = sum(x b_i),     S = sum(x s_i(T))
//
// Units of this file: pressure MPa, molar volume cm3/mol, energy J/mol (MPa cm3 = J), temperature K. Primes are d/dT.
#pragma once

#include <span>

namespace velor {

// The temperature function of the attraction.
enum class Attraction {
    RedlichKwong,  // sqrt(alpha) = (Tc/T)^(1/4)
    Soave,         // sqrt(alpha) = 1 + m (1 - sqrt(T/Tc)), m = 0.480 + 1.574 w - 0.176 w^2; may turn negative, kept so
};

// A component's constants, prepared once: s(T) = first T^(-1/4) or first - second sqrt(T).
struct CubicComponent {
    double b = 0;
    double first = 0;
    double second = 0;
};

// From the critical temperature, the critical pressure in MPa and the acentric factor. Errors: 5 and 11 for
// a temperature or a pressure that is negative or 0.
CubicComponent cubicComponent(Attraction attraction, double Tc, double pc, double acentric);

// A mixture's parameters at a temperature.
struct CubicParameters {
    double b = 0;
    double S = 0, dS = 0, d2S = 0;

    double theta() const { return S * S; }
    double dTheta() const { return 2.0 * S * dS; }
    double d2Theta() const { return 2.0 * (dS * dS + S * d2S); }
};

// Errors: 5, 11 for a temperature that is not positive.
CubicParameters mixtureParameters(Attraction attraction, double T, std::span<const double> x,
                                  std::span<const CubicComponent> components);

struct CubicVolume {
    double V = 0;
    int steps = 0;
};

// The vapour's volume, the largest root, and where a vapour does not exist the one root above b; never V <= b. Newton's
// method from RT/p + b, at most 30 steps, until the change falls below 0.01 cm3/mol. Errors: 11 p = 0, 5 p < 0.
CubicVolume gasVolume(double T, double p, const CubicParameters& mixture);

// Residual quantities at T, p and the volume that belongs to them.
struct CubicState {
    double enthalpy = 0;       // H^R(T, p), J/mol
    double entropy = 0;        // S^R(T, p), J/(mol K)
    double lnPhi = 0;          // logarithm of the fugacity coefficient
    double heatCapacityV = 0;  // Cv^R, J/(mol K)
    double dpdT = 0;           // MPa/K
    double dpdV = 0;           // MPa mol/cm3
};

CubicState residualState(double T, double p, double V, const CubicParameters& mixture);

// ln(phi) alone.
double logFugacityCoefficient(double T, double p, double V, const CubicParameters& mixture);

}  // namespace velor
