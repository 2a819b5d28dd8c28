// Comma-separated text: quoted cells may hold commas, doubled quotes and line breaks; lines end in LF or CR LF.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "baze/fault.h"

namespace velor::baze {

struct CsvRow {
    int line = 0;  // on which the row begins, counted from 1
    std::vector<std::string> cells;
};

// The well-formed rows of a UTF-8 text, whose lines are counted from the first one told; a row that is not is reported
// and left out.
std::vector<CsvRow> readCsv(std::string_view text, LineFaults& faults, int firstLine = 1);

// Adds one row that reads back as the same cells.
void appendCsvRow(std::string& text, std::span<const std::string> cells);

}  // namespace velor::baze
