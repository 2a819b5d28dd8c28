#include "baze/csv_table.h"

#include <algorithm>
#include <utility>

#include "records/field_text.h"

namespace velor::baze {

namespace {

void dropEmptyEnd(std::vector<std::string>& cells, std::size_t least) {
    while (cells.size() > least && cells.back().empty()) cells.pop_back();
}

}  // namespace

std::optional<CsvTable> CsvTable::read(std::string_view text, std::span<const Column> columns, LineFaults& faults,
                                       int firstLine) {
    const std::size_t faultsBefore = faults.size();
    CsvTable table;
    table.rows_ = readCsv(text, faults, firstLine);
    table.complete_ = faults.size() == faultsBefore;
    if (table.rows_.empty() || table.rows_.front().line != firstLine) {
        if (table.complete_) faults.push_back({firstLine, "chybí záhlaví se jmény sloupců"});
        return std::nullopt;
    }
    CsvRow header = std::move(table.rows_.front());
    dropEmptyEnd(header.cells, 1);
    table.rows_.erase(table.rows_.begin());
    if (!table.readHeader(header, columns, faults)) return std::nullopt;

    const auto isOdd = [&](CsvRow& row) {
        dropEmptyEnd(row.cells, table.header_.size());
        if (row.cells.size() == table.header_.size()) return false;
        faults.push_back({row.line, "polí je " + std::to_string(row.cells.size()) + ", záhlaví jich má " +
                                        std::to_string(table.header_.size())});
        return true;
    };
    if (std::erase_if(table.rows_, isOdd) > 0) table.complete_ = false;
    return table;
}

bool CsvTable::readHeader(const CsvRow& header, std::span<const Column> columns, LineFaults& faults) {
    const std::size_t faultsBefore = faults.size();
    header_ = header.cells;
    for (auto name = header_.begin(); name != header_.end(); ++name) {
        const bool known =
            std::any_of(columns.begin(), columns.end(), [&](const Column& c) { return c.name == *name; });
        if (!known) faults.push_back({header.line, "neznámý sloupec " + quoted(*name)});
        if (known && std::find(header_.begin(), name, *name) != name)
            faults.push_back({header.line, "sloupec " + *name + " je v záhlaví dvakrát"});
    }
    for (const Column& column : columns) {
        if (column.presence == Presence::Always &&
            std::find(header_.begin(), header_.end(), column.name) == header_.end())
            faults.push_back({header.line, "v záhlaví chybí sloupec " + std::string(column.name)});
    }
    return faults.size() == faultsBefore;
}

std::string_view CsvTable::cell(const CsvRow& row, std::string_view column) const {
    const auto found = std::find(header_.begin(), header_.end(), column);
    if (found == header_.end()) return {};
    return row.cells[static_cast<std::size_t>(found - header_.begin())];
}

std::string writeTable(std::span<const Column> columns, std::span<const std::vector<std::string>> rows) {
    std::vector<std::size_t> kept;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        const bool needed = std::any_of(rows.begin(), rows.end(), [i](const auto& row) { return !row[i].empty(); });
        if (columns[i].presence == Presence::Always || needed) kept.push_back(i);
    }
    std::string text;
    std::vector<std::string> cells;
    cells.reserve(kept.size());
    for (const std::size_t i : kept) cells.emplace_back(columns[i].name);
    appendCsvRow(text, cells);
    for (const auto& row : rows) {
        cells.clear();
        for (const std::size_t i : kept) cells.push_back(row[i]);
        appendCsvRow(text, cells);
    }
    return text;
}

}  // namespace velor::baze
