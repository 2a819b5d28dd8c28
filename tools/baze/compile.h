// From the two tables to the bytes of a database.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "baze/fault.h"
#include "baze/supplement_table.h"

namespace velor::baze {

inline constexpr std::string_view kSubstancesFile = "latky.csv";
inline constexpr std::string_view kCorrelationsFile = "korelace.csv";

struct Compilation {
    std::string bytes;       // empty after a fault
    std::string supplement;  // likewise
    int substances = 0;
    int correlations = 0;
    LineFaults substanceFaults;  // by line
    LineFaults correlationFaults;
    SupplementFaults supplementFaults;
    bool hasMoreFaults = false;  // than were kept: reading stopped there

    bool succeeded() const { return substanceFaults.empty() && correlationFaults.empty() && supplementFaults.empty(); }
};

// Records by their numbers, blank ones between them where a number has none.
std::string databaseBytes(const std::map<int, TLatka>& records);

// Does not stop at the first fault.
Compilation compile(std::string_view substances, std::string_view correlations, Checks checks,
                    const SupplementTexts& further = {});

}  // namespace velor::baze
