// The text report of a flash.
#pragma once

#include <span>
#include <string>

#include "velor/flash_record.h"

namespace velor {

// The lines behind the heading: CR LF at the ends, TAB between the columns.
struct FlashReport {
    double startTemperature = 0;  // K
    double endTemperature = 0;    // K
    double startPressure = 0;     // Pa
    double endPressure = 0;       // Pa
};

void appendFlashReport(std::string& report, const FlashReport& conditions, const FlashRecord& result,
                       std::span<const std::string> names);

}  // namespace velor
