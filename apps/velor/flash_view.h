// The report of a flash.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "report.h"
#include "substance_list.h"
#include "velor/flash_record.h"

namespace velor::app {

struct FlashAnswer {
    std::string text;  // the library's own report
    FlashRecord record;
    std::optional<double> T0;  // K; not known where the library asked for it
    double P = 0;              // Pa
    bool hasBubblePoint = false;
    bool hasDewPoint = false;
    std::vector<std::string> notes;
};

Report reportOf(const FlashAnswer& flash, const SubstanceList& substances);

}  // namespace velor::app
