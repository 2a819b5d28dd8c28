#include "baze/supplement_table.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <set>
#include <sstream>
#include <tuple>
#include <utility>

#include "baze/csv_table.h"
#include "baze/row_reader.h"
#include "records/field_text.h"
#include "records/supplement_text.h"
#include "runtime/text.h"  // names are compared as the finder compares them
#include "velor/smes.h"
#include "velor/substances.h"

namespace velor::baze {

namespace {

constexpr std::array<Column, 3> kNameColumns{{{"Cislo"}, {"jmeno"}, {"druh"}}};
constexpr std::array<Column, 2> kSharedNameColumns{{{"jmeno"}, {"Cisla"}}};
constexpr std::array<Column, 3> kGroupColumns{{{"Cislo"}, {"groups"}, {"origin"}}};
constexpr std::array<Column, 7> kKnownGroupColumns{
    {{"subgroup"}, {"main_group"}, {"subgroup_name"}, {"main_group_name"}, {"R"}, {"Q"}, {"formula"}}};
constexpr std::array<std::string_view, 4> kKinds{"cs", "en", "abbr", "formula"};
constexpr std::size_t kMostCharacters = 60;

using Records = std::map<int, TLatka>;
// The lines of each substance, by its number, without the CAS number at their beginning.
using Lines = std::map<int, std::string>;

std::string line(std::initializer_list<std::string_view> fields) {
    std::string text;
    for (const std::string_view field : fields) text.append("\t").append(field);
    return text += '\n';
}

void requireRecord(RowReader& row, std::string_view column, int number, const Records& records) {
    if (!records.contains(number)) row.fault(column, "látka " + std::to_string(number) + " není v tabulce látek");
}

void requireName(RowReader& row, std::string_view name) {
    if (name.empty()) row.fault("jmeno", "jméno chybí");
    if (characterCount(name) > kMostCharacters) row.fault("jmeno", "jméno je delší než 60 znaků");
    for (std::string_view rest = name; !rest.empty();)
        if (isControl(takeCodePoint(rest))) return row.fault("jmeno", "řídicí znak");
}

std::string keyOf(std::string_view name) { return withoutSeparators(folded(name)); }

// Numbers separated by blanks.
std::vector<std::string> words(std::string_view text) {
    std::istringstream stream{std::string(text)};
    return {std::istream_iterator<std::string>(stream), {}};
}

// ---- Names -------------------------------------------------------------------------------------------------------

class NameReader {
  public:
    NameReader(const Records& records, Lines& lines) : records_(records), lines_(lines) {}

    void read(std::string_view text, LineFaults& faults) {
        const auto table = CsvTable::read(text, kNameColumns, faults);
        if (!table) return;
        for (const CsvRow& cells : table->rows()) {
            RowReader row(*table, cells, Checks::Full, faults);
            const std::string_view name = row.cell("jmeno"), kind = row.cell("druh");
            const auto number = row.recordNumber("Cislo");
            requireName(row, name);
            if (std::ranges::find(kKinds, kind) == kKinds.end())
                row.fault("druh", quoted(kind) + " není cs, en, abbr ani formula");
            if (!number) continue;
            requireRecord(row, "Cislo", *number, records_);
            if (const auto [owner, isNew] = owners_.emplace(keyOf(name), *number); !isNew)
                row.fault("jmeno", quoted(name) + " už patří látce " + std::to_string(owner->second));
            lines_[*number] += line({kNameLine, kind, name});
        }
    }

    void readShared(std::string_view text, LineFaults& faults) {
        const auto table = CsvTable::read(text, kSharedNameColumns, faults);
        if (!table) return;
        for (const CsvRow& cells : table->rows()) {
            RowReader row(*table, cells, Checks::Full, faults);
            const std::string_view name = row.cell("jmeno");
            requireName(row, name);
            if (const auto [owner, isNew] = owners_.emplace(keyOf(name), 0); !isNew)
                row.fault("jmeno", quoted(name) + " už v tabulkách jmen je");
            const auto numbers = words(row.cell("Cisla"));
            if (numbers.size() < 2) row.fault("Cisla", "společné jméno má patřit aspoň dvěma látkám");
            for (const std::string& word : numbers) {
                const auto parsed = readInteger(word);
                const auto* const number = std::get_if<std::int16_t>(&parsed);
                if (number == nullptr) {
                    row.fault("Cisla", std::get<Fault>(parsed).reason);
                    continue;
                }
                requireRecord(row, "Cisla", *number, records_);
                lines_[*number] += line({kSharedNameLine, name});
            }
        }
    }

  private:
    const Records& records_;
    Lines& lines_;
    std::map<std::string, int> owners_;  // of each name, as it is compared
};

// ---- Groups ------------------------------------------------------------------------------------------------------

std::set<std::string, std::less<>> knownGroups(std::string_view text, LineFaults& faults) {
    std::set<std::string, std::less<>> known;
    if (const auto table = CsvTable::read(text, kKnownGroupColumns, faults))
        for (const CsvRow& row : table->rows()) known.emplace(table->cell(row, "subgroup"));
    return known;
}

void readGroups(const SupplementTexts& texts, const Records& records, Lines& lines, LineFaults& faults) {
    // Without the table of groups they come from a supplement, for which they were looked at.
    const bool isChecked = !texts.knownGroups.empty();
    const auto known = isChecked ? knownGroups(texts.knownGroups, faults) : std::set<std::string, std::less<>>();
    const auto table = CsvTable::read(texts.groups, kGroupColumns, faults);
    if (!table) return;
    std::set<int> seen;
    for (const CsvRow& cells : table->rows()) {
        RowReader row(*table, cells, Checks::Full, faults);
        const auto number = row.recordNumber("Cislo");
        if (row.cell("groups").empty()) row.fault("groups", "skupiny chybí");
        for (const std::string& word : words(row.cell("groups"))) {
            const std::size_t colon = word.find(':');
            const std::string count = colon == std::string::npos ? "" : word.substr(colon + 1);
            if (count.empty() || count.size() > 2 || count.find_first_not_of("0123456789") != std::string::npos ||
                count.front() == '0')
                row.fault("groups", quoted(word) + " nemá tvar podskupina:počet");
            else if (isChecked && !known.contains(word.substr(0, colon)))
                row.fault("groups", "podskupina " + word.substr(0, colon) + " není v tabulce skupin");
        }
        if (!number) continue;
        requireRecord(row, "Cislo", *number, records);
        if (!seen.insert(*number).second) row.fault("Cislo", "skupiny látky už jsou v tabulce");
        lines[*number] += line({kGroupsLine, row.cell("groups"), row.cell("origin")});
    }
}

}  // namespace

std::string makeSupplement(const Records& records, std::span<const CorrelationRow> correlations,
                           const SupplementTexts& texts, SupplementFaults& faults) {
    Lines lines;
    for (const CorrelationRow& row : correlations)
        if (!row.source.empty() || !row.deviation.empty() || row.isEstimate)
            lines[row.number] += line({Smes::ChybRozv(row.property), row.source, row.deviation,
                                       row.isEstimate ? kEstimate : std::string_view()});
    NameReader names(records, lines);
    if (!texts.names.empty()) names.read(texts.names, faults.names);
    if (!texts.sharedNames.empty()) names.readShared(texts.sharedNames, faults.sharedNames);
    if (!texts.groups.empty()) readGroups(texts, records, lines, faults.groups);
    std::string text(kSupplementVersion);
    for (const auto& [number, record] : records) {
        const std::string cas = substanceOf(number, record).cas;
        if (cas.empty()) continue;
        for (std::string_view rest = lines[number]; !rest.empty();)
            text.append(cas).append(takeLine(rest)).append("\n");
    }
    return text + supplementEnd(text);
}

SupplementTexts takeApart(std::string_view supplement, const Records& records) {
    std::map<std::string, int, std::less<>> numbers;
    for (const auto& [number, record] : records) numbers.emplace(substanceOf(number, record).cas, number);
    std::vector<std::vector<std::string>> names, groups;
    std::map<std::string, std::string, std::less<>> shared;
    takeLine(supplement);
    while (!supplement.empty()) {
        const SupplementFields fields = supplementFields(takeLine(supplement));
        const auto found = numbers.find(fields[0]);
        if (found == numbers.end()) continue;
        const std::string number = std::to_string(found->second);
        if (fields[1] == kNameLine) names.push_back({number, std::string(fields[3]), std::string(fields[2])});
        if (fields[1] == kGroupsLine) groups.push_back({number, std::string(fields[2]), std::string(fields[3])});
        if (fields[1] == kSharedNameLine) {
            std::string& all = shared[std::string(fields[2])];
            all += (all.empty() ? "" : " ") + number;
        }
    }
    std::vector<std::vector<std::string>> sharedRows;
    for (const auto& [name, all] : shared) sharedRows.push_back({name, all});
    const auto written = [](std::span<const Column> columns, const std::vector<std::vector<std::string>>& rows) {
        return rows.empty() ? std::string() : writeTable(columns, rows);
    };
    return {written(kNameColumns, names), written(kSharedNameColumns, sharedRows), written(kGroupColumns, groups), {}};
}

}  // namespace velor::baze
