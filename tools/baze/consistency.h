// Whether the figures of a substance agree with each other, as the laws behind them want it.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "baze/fault.h"
#include "velor/record.h"

namespace velor::baze {

// One look at one substance.
struct Finding {
    int number = 0;     // of the substance
    std::string check;  // TENS, DHV, ROLW, ALAL or Zc
    double value = 0;   // what should be near its law: a ratio, but for Zc
    bool isOutlier = false;
    std::string reason;  // of an outlier, where one is told
};

// All looks at all substances that have what is needed, in their order. Reasons come from a table Cislo, co, duvod.
// What its rows explain has to be an outlier.
std::vector<Finding> consistencyOf(const std::vector<TLatka>& records, std::string_view reasons, LineFaults& faults);

// A page of them in Markdown, Czech.
std::string consistencyPage(const std::vector<TLatka>& records, std::span<const Finding> findings);

}  // namespace velor::baze
