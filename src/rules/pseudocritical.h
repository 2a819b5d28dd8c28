// Pseudocritical values of a mixture.
#pragma once

#include <span>

namespace velor {

struct Pseudocritical {
    double temperature = 0;      // K
    double pressure = 0;         // Pa
    double volume = 0;           // m3/mol
    double compressibility = 0;  // -
    double molarMass = 0;        // kg/mol
};

// Linear mixing (Kay, 1936) of molar mass, critical volume, temperature and compressibility factor, with the pressure
// Z R T / V. Error 11: a critical temperature of 0, or no critical volume at all.
Pseudocritical pseudocriticalValues(std::span<const double> x, std::span<const double> M, std::span<const double> Tc,
                                    std::span<const double> Pc, std::span<const double> Vc);

}  // namespace velor
