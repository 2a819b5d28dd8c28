// The parts of a report that introduce one substance and show its correlations and what they give. The substance is the
// component in the slot.
#pragma once

#include "substances/substances.h"

namespace velor::app {

// Number, names, formula and CAS number.
Section identitySection(const Substance& substance);

// The constants; those that are not known have no value.
Section constantsSection(const Smes& smes, int slot);

// One row for each of the ten properties: range, equation, coefficients.
Section correlationsSection(const Smes& smes, const Substance& substance, int slot);

// One row for each of the ten properties: its value at T kelvin, range, equation.
Section valuesSection(Smes& smes, double T, const Substance& substance, int slot);

// One row for each substance, in the order of the slots: the range and equation of one property.
Section rangesSection(const Smes& smes, const SubstanceList& substances, int property);

}  // namespace velor::app
