// From the two tables to the bytes of a database.
#pragma once

#include <string>
#include <string_view>

#include "baze/fault.h"

namespace velor::baze {

inline constexpr std::string_view kSubstancesFile = "latky.csv";
inline constexpr std::string_view kCorrelationsFile = "korelace.csv";

struct Compilation {
    std::string bytes;  // empty after a fault
    int substances = 0;
    int correlations = 0;
    LineFaults substanceFaults;  // by line
    LineFaults correlationFaults;
    bool hasMoreFaults = false;  // than were kept: reading stopped there

    bool succeeded() const { return substanceFaults.empty() && correlationFaults.empty(); }
};

// Does not stop at the first fault.
Compilation compile(std::string_view substances, std::string_view correlations, Checks checks);

}  // namespace velor::baze
