// The table of correlations: one row a substance and property.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "baze/fault.h"
#include "velor/record.h"

namespace velor::baze {

struct CorrelationRow {
    int line = 0;
    int number = 0;    // of the record
    int property = 0;  // 1..11
    TKorelace block;
};

// Rows whose number and property are known and not a second time there.
std::vector<CorrelationRow> readCorrelations(std::string_view text, Checks checks, LineFaults& faults);

std::vector<std::string> correlationCells(int number, int property, const TKorelace& block);
std::string writeCorrelations(const std::vector<std::vector<std::string>>& rows);

}  // namespace velor::baze
