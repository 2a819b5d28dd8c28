// Own substances: tables that are added to a database that was delivered.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "baze/fault.h"
#include "velor/supplement.h"

namespace velor::baze {

struct Addition {
    std::string bytes;                // of the new database; empty after a fault
    std::string supplement;           // likewise
    std::vector<std::string> report;  // a Czech sentence a substance that came or changed
    int added = 0;
    int changed = 0;
};

// A text with a table of substances, one of correlations or both, an empty line between them. A substance that the
// database has by its CAS number gets the constants and correlations that are told and keeps its number and its other
// correlations; a new one gets the next number.
Addition addOwnSubstances(std::string_view databaseBytes, const Supplement& supplement, std::string_view text,
                          LineFaults& faults);

// A text to write own figures over: water, by its CAS number.
std::string ownTablesTemplate();

}  // namespace velor::baze
