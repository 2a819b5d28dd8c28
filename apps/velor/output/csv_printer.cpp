#include <algorithm>

#include "output/output.h"
#include "velor/text.h"

namespace velor::app {

namespace {

struct TextOf {
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(int number) const { return std::to_string(number); }
    std::string operator()(float number) const { return exactText(number); }
    std::string operator()(double number) const { return exactText(number); }
    std::string operator()(const std::string& text) const { return text; }
};

std::string quoted(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    std::string result = "\"";
    for (const char c : text) result += c == '"' ? std::string("\"\"") : std::string(1, c);
    return result + "\"";
}

void appendRow(std::string& csv, const std::vector<std::string>& cells) {
    for (std::size_t i = 0; i < cells.size(); ++i) csv += (i == 0 ? "" : ",") + quoted(cells[i]);
    csv += '\n';
}

void appendTable(std::string& csv, const Table& table) {
    std::vector<std::string> cells;
    for (const Column& column : table.columns)
        cells.push_back(column.unit.empty() ? column.caption : column.caption + " [" + column.unit + "]");
    appendRow(csv, cells);
    for (const auto& row : table.rows) {
        cells.clear();
        for (const Cell& cell : row) cells.push_back(std::visit(TextOf{}, cell.value));
        appendRow(csv, cells);
    }
}

void appendLines(std::string& csv, const Entries& entries) {
    for (const Entry& entry : entries)
        appendRow(csv, {entry.key, entry.caption, std::visit(TextOf{}, entry.value), entry.unit.value_or("")});
}

// A table's cell is called by its row and column: TENS.Tmin.
void appendLines(std::string& csv, const Table& table) {
    for (const auto& row : table.rows) {
        const std::string name = std::visit(TextOf{}, row.front().value);
        for (std::size_t i = 1; i < row.size(); ++i) {
            const Column& column = table.columns[i];
            appendRow(csv, {name + "." + column.key, column.caption, std::visit(TextOf{}, row[i].value), column.unit});
        }
    }
}

}  // namespace

std::string asCsv(const Report& report) {
    std::string csv;
    if (report.csvTable.empty()) {
        appendRow(csv, {"klic", "popis", "hodnota", "jednotka"});
        for (const Section& section : report.sections)
            std::visit([&](const auto& content) { appendLines(csv, content); }, section.content);
        return csv;
    }
    for (const Section& section : report.sections)
        if (section.key == report.csvTable) appendTable(csv, std::get<Table>(section.content));
    return csv;
}

}  // namespace velor::app
