// The table of correlations: one row a substance and property.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "baze/fault.h"
#include "velor/record.h"
#include "velor/supplement.h"

namespace velor::baze {

struct CorrelationRow {
    int line = 0;
    int number = 0;    // of the record
    int property = 0;  // 1..11
    TKorelace block;
    std::string source;     // where it comes from; for the supplement, as the rest
    std::string deviation;  // from the source, %; empty where it is not known
    bool isEstimate = false;
};

// Rows whose number and property are known and not a second time there.
std::vector<CorrelationRow> readCorrelations(std::string_view text, Checks checks, LineFaults& faults);

// Rows of own substances: the CAS number tells the substance, or the number of one that the database has.
struct OwnCorrelation {
    std::int32_t cas = 0;  // 0: by the number
    CorrelationRow row;
};
std::vector<OwnCorrelation> readOwnCorrelations(std::string_view text, int firstLine, LineFaults& faults);
std::string ownCorrelationsHeader();
std::string ownCorrelationRow(const std::string& cas, int property, const TKorelace& block,
                              const Provenance& provenance);

std::vector<std::string> correlationCells(int number, int property, const TKorelace& block,
                                          const Provenance& provenance);
std::string writeCorrelations(const std::vector<std::vector<std::string>>& rows);

}  // namespace velor::baze
