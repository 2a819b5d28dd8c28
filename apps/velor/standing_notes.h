// The signs behind values and, collected for the end of the table, what they mean.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "properties/standing.h"
#include "report.h"

namespace velor::app {

class StandingNotes {
  public:
    // The cell of a value, with its sign.
    Cell cell(const PropertyValue& value);
    // One note for each sign given out.
    std::vector<std::string> notes() const;

  private:
    std::array<bool, kStandings> seen_{};
};

}  // namespace velor::app
