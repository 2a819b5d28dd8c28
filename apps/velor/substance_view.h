// The parts of a report that introduce one substance.
#pragma once

#include "report.h"
#include "substance_list.h"
#include "velor/smes.h"

namespace velor::app {

// Number, names, formula and CAS number.
Section identitySection(const Substance& substance);

// The constants of the component in the slot; those that are not known have no value.
Section constantsSection(const Smes& smes, int slot);

}  // namespace velor::app
