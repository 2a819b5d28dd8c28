// The pages tell the same as the tables that the code works from.
#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <string>
#include <variant>

#include "records/record_layout.h"
#include "rules/equations.h"
#include "runtime/text.h"
#include "support/temporary_folder.h"
#include "velor/properties.h"

namespace velor {
namespace {

using Table = std::map<std::string, std::string>;  // "offset size kind" by field

std::string row(std::size_t offset, std::size_t size, std::string_view kind) {
    return std::to_string(offset) + " " + std::to_string(size) + " " + std::string(kind);
}

// Rows "| offset | size | kind | `field` | ..." of the page below a heading.
Table pageTable(const std::string& heading) {
    std::string page = test::readFile(VELOR_DOCS "/record-format.md");
    page.erase(0, page.find("## " + heading) + 3);
    page.resize(std::min(page.size(), page.find("\n## ")));
    const std::regex pattern(R"(\n\| (\d+) +\| (\d+) +\| (\w+) +\| ([^|]*[^| ]) *\|)");
    Table table;
    for (std::sregex_iterator at(page.begin(), page.end(), pattern), end; at != end; ++at) {
        std::string field = at->str(4);
        std::erase(field, '`');
        table[field] = at->str(1) + " " + at->str(2) + " " + at->str(3);
    }
    return table;
}

std::string kindOf(const RecordMember& member) {
    const auto holds = [&](auto pointer) { return std::holds_alternative<decltype(pointer)>(member); };
    if (holds(&TLatka::Cislo)) return "int16";
    if (holds(&TLatka::CAS)) return "int32";
    return holds(&TLatka::Mv) ? "single" : "text";
}

TEST(RecordPage, tellsTheLayout) {
    Table record{{"Korelace(1..11)", row(kBlocksOffset, TLatka::kCorrelations * kBlockSize, "blocks")}};
    for (const RecordField& field : kRecordFields)
        record[std::string(field.name)] = row(field.offset, field.size, kindOf(field.member));
    EXPECT_EQ(pageTable("Record"), record);
    Table block{{"A1..A6", row(0, kCoefficients * sizeof(float), "singles")}};
    for (const BlockField& field : kBlockFields) block[std::string(field.name)] = row(field.offset, 2, "int16");
    EXPECT_EQ(pageTable("Correlation block"), block);
}

TEST(DataPage, listsTheEquations) {
    const auto coefficient = [](std::size_t number) { return " A" + std::to_string(number); };
    std::string rows = "|---|---|---|---|---|\n";
    for (int type = 1; isEquationType(type); ++type) {
        const Equation& equation = equationOf(type);
        const auto reference = static_cast<std::size_t>(equation.reference);
        rows += "| " + std::to_string(type) + " | `" + std::string(trimBlanks(equation.text)) + "` |";
        for (std::size_t j = 0; j < Coefficients{}.size(); ++j)
            if (equation.uses(j)) rows += coefficient(j + 1);
        rows += " |" + (reference == 0 ? "" : coefficient(reference)) + " | " + std::string(equation.source) + " |\n";
    }
    EXPECT_NE(test::readFile(VELOR_DOCS "/data.md").find(rows + "\n"), std::string::npos) << rows;
}

TEST(PropertiesPage, listsTheCatalogue) {
    std::string rows = "|---|---|---|---|---|---|\n";
    for (const MixtureProperty& property : mixtureProperties()) {
        rows += "| `" + std::string(property.code) + "` |";
        const std::string_view T = property.needsTemperature ? "T" : "", P = property.needsPressure ? "P" : "";
        const std::string needed = std::string(T).append(T.empty() || P.empty() ? "" : ", ").append(P);
        for (const std::string_view cell :
             {property.caption, property.symbol, property.unit, std::string_view(needed), property.rule})
            rows += cell.empty() ? " |" : " " + std::string(cell) + " |";
        rows += '\n';
    }
    EXPECT_NE(test::readFile(VELOR_DOCS "/properties.md").find(rows), std::string::npos) << rows;
}

}  // namespace
}  // namespace velor
