#include <algorithm>

#include "output/output.h"
#include "velor/text.h"

namespace velor::app {

namespace {

constexpr std::size_t kLineWidth = 106;
constexpr std::size_t kGap = 2;  // blanks between columns

constexpr const char* kNothing = "–";

struct TextOf {
    const char* unknown;

    std::string operator()(std::monostate) const { return unknown; }
    std::string operator()(int number) const { return std::to_string(number); }
    std::string operator()(float number) const { return exactText(number); }
    std::string operator()(double number) const { return roundedText(number); }
    std::string operator()(const std::string& text) const { return text.empty() ? kNothing : text; }
};

enum class Side { Left, Right };

std::string padded(const std::string& text, std::size_t width, Side side) {
    const std::string blanks(width - std::min(width, characterCount(text)), ' ');
    return side == Side::Left ? text + blanks : blanks + text;
}

// One column as it is printed: lines of one width.
struct PrintedColumn {
    std::vector<std::string> lines;
    std::size_t width = 0;
    Side side = Side::Left;

    void add(std::string line) {
        width = std::max(width, characterCount(line));
        lines.push_back(std::move(line));
    }
};

bool isText(const Cell& cell) { return std::holds_alternative<std::string>(cell.value); }

std::string heading(const Column& column) {
    return column.unit.empty() ? column.caption : column.caption + " [" + column.unit + "]";
}

PrintedColumn printedColumn(const Table& table, std::size_t index) {
    PrintedColumn column;
    const auto& rows = table.rows;
    const bool hasText = std::any_of(rows.begin(), rows.end(), [&](const auto& row) { return isText(row[index]); });
    column.side = hasText ? Side::Left : Side::Right;
    std::size_t markWidth = 0;
    for (const auto& row : rows) markWidth = std::max(markWidth, characterCount(row[index].mark));
    column.add(heading(table.columns[index]) + std::string(markWidth, ' '));
    for (const auto& row : rows) {
        const Cell& cell = row[index];
        column.add(std::visit(TextOf{kNothing}, cell.value) + padded(cell.mark, markWidth, Side::Left));
    }
    return column;
}

void appendLine(std::string& text, std::string line) {
    line.resize(line.find_last_not_of(' ') + 1);
    text += line + "\n";
}

void appendColumns(std::string& text, const std::vector<const PrintedColumn*>& columns) {
    const std::string gap(kGap, ' ');
    for (std::size_t i = 0; i < columns.front()->lines.size(); ++i) {
        std::string line;
        for (const PrintedColumn* column : columns) line += gap + padded(column->lines[i], column->width, column->side);
        appendLine(text, line);
    }
}

void appendTable(std::string& text, const Table& table) {
    std::vector<PrintedColumn> columns;
    for (std::size_t i = 0; i < table.columns.size(); ++i)
        if (table.columns[i].audience == Column::Audience::Everyone) columns.push_back(printedColumn(table, i));
    const std::size_t firstWidth = kGap + columns.front().width;
    std::vector<const PrintedColumn*> block{&columns.front()};
    std::size_t width = firstWidth;
    for (std::size_t i = 1; i < columns.size(); ++i) {
        if (block.size() > 1 && width + kGap + columns[i].width > kLineWidth) {
            appendColumns(text, block);
            text += '\n';
            block.assign(1, &columns.front());
            width = firstWidth;
        }
        block.push_back(&columns[i]);
        width += kGap + columns[i].width;
    }
    appendColumns(text, block);
}

void appendEntries(std::string& text, const Entries& entries) {
    PrintedColumn captions, values, units;
    for (const Entry& entry : entries) {
        captions.add(entry.caption);
        values.add(std::visit(TextOf{"neznámá"}, entry.value));
        units.add(std::holds_alternative<std::monostate>(entry.value) ? "" : entry.unit.value_or(""));
    }
    appendColumns(text, {&captions, &values, &units});
}

void appendSection(std::string& text, const Section& section) {
    if (!text.empty()) text += '\n';
    text += section.title + "\n";
    if (const auto* entries = std::get_if<Entries>(&section.content)) appendEntries(text, *entries);
    if (const auto* table = std::get_if<Table>(&section.content)) appendTable(text, *table);
    if (!section.notes.empty()) text += '\n';
    for (const std::string& note : section.notes) text += "  " + note + "\n";
}

}  // namespace

std::string asText(const Report& report) {
    if (!report.text.empty()) return report.text;
    std::string text;
    for (const Section& section : report.sections)
        if (!section.title.empty()) appendSection(text, section);
    return text;
}

Cell StandingNotes::cell(const PropertyValue& value) {
    seen_[static_cast<std::size_t>(value.standing)] = true;
    Cell cell;
    if (value.isComputed()) cell.value = value.value;
    const std::string_view mark = standingMark(value.standing);
    if (!mark.empty()) cell.mark.append(" ").append(mark);
    return cell;
}

std::vector<std::string> StandingNotes::notes() const {
    std::vector<std::string> notes;
    for (std::size_t i = 0; i < seen_.size(); ++i) {
        const auto standing = static_cast<Standing>(i);
        const std::string_view mark = standingMark(standing);
        if (seen_[i] && !mark.empty()) notes.push_back(std::string(mark).append("  ").append(standingNote(standing)));
    }
    return notes;
}

}  // namespace velor::app
