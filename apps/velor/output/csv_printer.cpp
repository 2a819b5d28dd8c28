#include <utility>

#include "output/output.h"
#include "velor/text.h"

namespace velor::app {

namespace {

std::string quoted(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    std::string result = "\"";
    for (const char c : text) result += c == '"' ? std::string("\"\"") : std::string(1, c);
    return result + "\"";
}

class CsvWriter {
  public:
    explicit CsvWriter(CsvReader reader) : reader_(reader) {}

    void appendTable(const Table& table) {
        std::vector<Value> cells;
        for (const Column& column : table.columns)
            cells.emplace_back(column.unit.empty() ? column.caption : column.caption + " [" + column.unit + "]");
        appendRow(cells);
        for (const auto& row : table.rows) {
            cells.clear();
            for (const Cell& cell : row) cells.push_back(cell.value);
            appendRow(cells);
        }
    }

    void appendLines(const Entries& entries) {
        for (const Entry& entry : entries) appendRow({entry.key, entry.caption, entry.value, entry.unit.value_or("")});
    }

    // A table's cell is called by its row and column: TENS.Tmin.
    void appendLines(const Table& table) {
        for (const auto& row : table.rows) {
            const std::string name = textOf(row.front().value);
            for (std::size_t i = 1; i < row.size(); ++i) {
                const Column& column = table.columns[i];
                appendRow({name + "." + column.key, column.caption, row[i].value, column.unit});
            }
        }
    }

    void appendRow(const std::vector<Value>& cells) {
        for (std::size_t i = 0; i < cells.size(); ++i) csv_ += (i == 0 ? "" : ",") + quoted(cellText(cells[i]));
        csv_ += '\n';
    }

    std::string csv() && { return std::move(csv_); }

  private:
    struct TextOf {
        std::string operator()(std::monostate) const { return {}; }
        std::string operator()(int number) const { return std::to_string(number); }
        std::string operator()(float number) const { return exactText(number); }
        std::string operator()(double number) const { return exactText(number); }
        std::string operator()(const std::string& text) const { return text; }
    };

    static std::string textOf(const Value& value) { return std::visit(TextOf{}, value); }

    // A number may begin with a sign, a text is harmless behind an apostrophe.
    std::string cellText(const Value& value) const {
        constexpr std::string_view kFormulaBegins = "=+-@\t\r";
        std::string text = textOf(value);
        const bool isFormula = std::holds_alternative<std::string>(value) && !text.empty() &&
                               kFormulaBegins.find(text.front()) != std::string_view::npos;
        return isFormula && reader_ == CsvReader::Worksheet ? "'" + text : text;
    }

    CsvReader reader_;
    std::string csv_;
};

}  // namespace

std::string asCsv(const Report& report, CsvReader reader) {
    CsvWriter writer(reader);
    if (report.csvTable.empty()) writer.appendRow({"klic", "popis", "hodnota", "jednotka"});
    for (const Section& section : report.sections) {
        if (report.csvTable.empty()) {
            std::visit([&](const auto& content) { writer.appendLines(content); }, section.content);
        } else if (section.key == report.csvTable) {
            writer.appendTable(std::get<Table>(section.content));
        }
    }
    return std::move(writer).csv();
}

}  // namespace velor::app
