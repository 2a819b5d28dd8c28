// The supplement of a database, made of its text tables and taken apart again.
#pragma once

#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "baze/correlations_table.h"
#include "baze/fault.h"
#include "velor/record.h"

namespace velor::baze {

// Further names; names that cover several substances; the groups of which molecules consist, and which groups there
// are. A database may have all of them or none.
inline constexpr std::string_view kNamesFile = "jmena.csv";
inline constexpr std::string_view kSharedNamesFile = "spolecna_jmena.csv";
inline constexpr std::string_view kGroupsFile = "unifac/substances_groups.csv";
inline constexpr std::string_view kKnownGroupsFile = "unifac/groups.csv";

struct SupplementTexts {
    std::string names, sharedNames, groups, knownGroups;  // empty where there is no such file
};

struct SupplementFaults {
    LineFaults names, sharedNames, groups;

    bool empty() const { return names.empty() && sharedNames.empty() && groups.empty(); }
};

// The whole supplement. A substance without a CAS number has no part in it.
std::string makeSupplement(const std::map<int, TLatka>& records, std::span<const CorrelationRow> correlations,
                           const SupplementTexts& texts, SupplementFaults& faults);

// The tables again, of the substances that the database holds; those of correlations get their provenance from the
// supplement directly.
SupplementTexts takeApart(std::string_view supplement, const std::map<int, TLatka>& records);

}  // namespace velor::baze
