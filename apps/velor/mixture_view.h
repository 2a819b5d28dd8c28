// The parts of a report that introduce a mixture.
#pragma once

#include <string>
#include <vector>

#include "mixture.h"
#include "mixture_value.h"
#include "report.h"
#include "standing_notes.h"

namespace velor::app {

// One row for each substance: mole and mass fraction.
Section compositionSection(const Mixture& mixture);

// Bubble and dew point at P pascals.
Section boilingSection(const BoilingRange& range, double P);

// The signs behind values, and why some are missing.
class MixtureNotes {
  public:
    Cell cell(const MixtureValue& value);
    std::vector<std::string> notes() const;

  private:
    StandingNotes signs_;
    std::vector<std::string> reasons_;  // each once, in the order met
};

}  // namespace velor::app
