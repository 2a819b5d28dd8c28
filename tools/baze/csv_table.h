// A comma-separated text whose first row names the columns.
#pragma once

#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "baze/csv.h"

namespace velor::baze {

enum class Presence { Always, WhenNeeded };

struct Column {
    std::string_view name;
    Presence presence = Presence::Always;
};

class CsvTable {
  public:
    // Columns stand in any order. Empty when the header does not fit; then the rows are not looked at.
    // Empty columns at its end, which worksheets leave behind, are no columns. Lines count from the first one told.
    static std::optional<CsvTable> read(std::string_view text, std::span<const Column> columns, LineFaults& faults,
                                        int firstLine = 1);

    // Rows with as many cells as the header.
    const std::vector<CsvRow>& rows() const { return rows_; }
    bool has(std::string_view column) const { return std::ranges::find(header_, column) != header_.end(); }
    // Whether no row had to be left out.
    bool isComplete() const { return complete_; }
    // Empty where the table lacks the column.
    std::string_view cell(const CsvRow& row, std::string_view column) const;

  private:
    bool readHeader(const CsvRow& header, std::span<const Column> columns, LineFaults& faults);

    std::vector<std::string> header_;
    std::vector<CsvRow> rows_;
    bool complete_ = true;
};

// The text of a table. Every row has a cell for every column; a column that is present only when needed is left out
// where all its cells are empty.
std::string writeTable(std::span<const Column> columns, std::span<const std::vector<std::string>> rows);

}  // namespace velor::baze
