// The record's page tells the same as the table that the code works from.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

#include "database/record_layout.h"
#include "runtime/text.h"
#include "support/temporary_folder.h"

namespace velor {
namespace {

struct PageRow {
    std::size_t offset;
    std::size_t size;
    std::string kind;
    bool operator==(const PageRow&) const = default;
};

void PrintTo(const PageRow& row, std::ostream* out) { *out << row.offset << "/" << row.size << "/" << row.kind; }

std::vector<std::string> cellsOf(std::string_view line) {
    std::vector<std::string> cells;
    line.remove_prefix(1);
    for (std::size_t bar = line.find('|'); bar != std::string_view::npos; bar = line.find('|')) {
        cells.emplace_back(trimBlanks(line.substr(0, bar)));
        line.remove_prefix(bar + 1);
    }
    return cells;
}

// Rows "| offset | size | kind | `field` | ..." of the page below a heading, by field.
std::map<std::string, PageRow> pageTable(std::string_view heading) {
    const std::string page = test::readFile(VELOR_DOCS "/record-format.md");
    std::map<std::string, PageRow> table;
    const std::size_t start = page.find(heading);
    EXPECT_NE(start, std::string::npos) << heading;
    if (start == std::string::npos) return table;
    std::string_view rest = std::string_view(page).substr(start + heading.size());
    rest = rest.substr(0, rest.find("\n## "));
    while (!rest.empty()) {
        const std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        if (!line.starts_with("| ") || line[2] < '0' || line[2] > '9') continue;
        const auto cells = cellsOf(line);
        std::string field = cells.at(3);
        std::erase(field, '`');
        table[field] = {std::stoul(cells.at(0)), std::stoul(cells.at(1)), cells.at(2)};
    }
    return table;
}

std::string kindOf(const RecordMember& member) {
    return std::visit(
        [](auto pointer) -> std::string {
            using Field = std::remove_reference_t<decltype(std::declval<TLatka&>().*pointer)>;
            if constexpr (std::is_same_v<Field, std::int16_t>) return "int16";
            if constexpr (std::is_same_v<Field, std::int32_t>) return "int32";
            if constexpr (std::is_same_v<Field, float>) return "single";
            return "text";
        },
        member);
}

TEST(RecordPage, recordTableIsTheLayout) {
    std::map<std::string, PageRow> layout;
    for (const RecordField& field : kRecordFields)
        layout[std::string(field.name)] = {field.offset, field.size, kindOf(field.member)};
    layout["Korelace(1..11)"] = {kBlocksOffset, TLatka::kCorrelations * kBlockSize, "blocks"};
    EXPECT_EQ(pageTable("## Record"), layout);
}

TEST(RecordPage, blockTableIsTheLayout) {
    std::map<std::string, PageRow> layout;
    layout["A1..A6"] = {0, kCoefficients * sizeof(float), "singles"};
    for (const BlockField& field : kBlockFields)
        layout[std::string(field.name)] = {field.offset, sizeof(std::int16_t), "int16"};
    EXPECT_EQ(pageTable("## Correlation block"), layout);
}

}  // namespace
}  // namespace velor
