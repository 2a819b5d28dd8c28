// What pressure adds to the viscosity and the thermal conductivity of a gas, by the reduced density.
#pragma once

#include "rules/pseudocritical.h"

namespace velor {

// Dean and Stiel (1965): 0.000108 (e^(1.439 r) - e^(-1.111 r^1.858)) / (1000 xi),
// xi = T^(1/6) / (sqrt(1000 M) (P/101324)^(2/3)). [Pa s] 101324 stands for the standard atmosphere, kept.
// Errors: 5, 6, 11 pseudocritical values that are 0 or negative.
double excessViscosity(const Pseudocritical& mixture, double reducedDensity);

// Stiel and Thodos (1964) in three ranges of the reduced density, constant above 2.8, divided by Gamma Zc^5,
// Gamma = T^(1/6) sqrt(1000 M) / (P/101324)^(2/3). [W/(m K)] The constants are ours and differ from the published ones:
// the result is about 4.6 times the published correlation's, as built. Errors as above.
double excessConductivity(const Pseudocritical& mixture, double reducedDensity);

}  // namespace velor
