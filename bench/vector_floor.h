// Loops over many points as the compiler makes vector instructions of them for the machine at hand, with the vector
// mathematics of the C library: what the table is measured against.
#pragma once

#include <vector>

#include "real_gas_floor.h"
#include "velor/record.h"

namespace velor::bench {

using Points = std::vector<double>;

// A correlation of type 10, 13, 15, 18 or 19.
void vectorEquation(const TKorelace& block, const Points& T, Points& values);

// The viscosity of a gas (Herning and Zipperer, 1936) whose components have correlations of type 19 or polynomials.
void vectorGasViscosity(const std::vector<TLatka>& records, const std::vector<double>& x, const Points& T,
                        Points& values);

// Molar volume in cm3/mol, and enthalpy in J/mol, of the real gas.
void vectorGasVolume(const RealGasFloor::Constants& gas, const Points& T, const Points& P, Points& values);
void vectorGasEnthalpy(const RealGasFloor::Constants& gas, const Points& T, const Points& P, Points& values);

}  // namespace velor::bench
