#include "baze/substances_table.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <variant>

#include "baze/csv_table.h"
#include "baze/row_reader.h"
#include "records/field_text.h"
#include "records/record_layout.h"
#include "velor/text.h"

namespace velor::baze {

namespace {

constexpr std::string_view kNumber = "Cislo";
constexpr std::string_view kStoredNumber = "CisloVZaznamu";  // where the record holds another number than its own
constexpr std::string_view kName = "Nazev";

constexpr std::array<Column, 25> kColumns{{
    {kNumber},
    {kName},
    {"Synonym"},
    {"Vzorec"},
    {"CAS"},
    {"skupina"},
    {"Mv"},
    {"Tkr"},
    {"Pkr"},
    {"Vkr"},
    {"Acent"},
    {"Gyr"},
    {"Nlomu"},
    {"TNlomu"},
    {"Dipol"},
    {"TDipol"},
    {"Permit"},
    {"TPermit"},
    {"Htani"},
    {"Ttani"},
    {"Tnbv"},
    {"Rezerva2", Presence::WhenNeeded},
    {"Rezerva57", Presence::WhenNeeded},
    {"Rezerva58", Presence::WhenNeeded},
    {kStoredNumber, Presence::WhenNeeded},
}};

constexpr float kUnknown = -9999.0F;

// What a constant can be; wide enough for any substance, narrow enough to catch a wrong unit.
struct ConstantRule {
    std::string_view name;
    bool required;
    float least;
    float most;
};

constexpr std::array<ConstantRule, 15> kConstantRules{{
    {"Mv", true, 1E-3F, 5.0F},  // kg/mol
    {"Tkr", true, 1.0F, 2000.0F},
    {"Pkr", true, 1E4F, 1E9F},    // Pa
    {"Vkr", true, 1E-5F, 1E-2F},  // m3/mol
    {"Acent", true, -0.99F, 5.0F},
    {"Gyr", false, 0.0F, 1E-7F},  // m
    {"Nlomu", false, 1.0F, 5.0F},
    {"TNlomu", false, 1.0F, 2000.0F},
    {"Dipol", false, 0.0F, 30.0F},  // debye
    {"TDipol", false, 1.0F, 2000.0F},
    {"Permit", false, 1.0F, 1000.0F},
    {"TPermit", false, 1.0F, 2000.0F},
    {"Htani", false, 0.0F, 1E6F},  // J/mol
    {"Ttani", false, 1.0F, 2000.0F},
    {"Tnbv", true, 1.0F, 2000.0F},
}};

static_assert(std::equal(kConstantRules.begin(), kConstantRules.end(), kRecordFields.begin() + kFirstConstant,
                         [](const ConstantRule& rule, const RecordField& field) { return rule.name == field.name; }));

const ConstantRule* ruleOf(std::string_view name) {
    const auto* const rule = std::find_if(kConstantRules.begin(), kConstantRules.end(),
                                          [&](const ConstantRule& candidate) { return candidate.name == name; });
    return rule == kConstantRules.end() ? nullptr : rule;
}

// A constant is unknown, a reserved field is zero.
float valueOfEmptyCell(std::string_view name) { return ruleOf(name) != nullptr ? kUnknown : 0.0F; }

void checkConstant(RowReader& row, const ConstantRule& rule, float value) {
    if (row.cell(rule.name).empty()) {
        if (rule.required) row.doubt(rule.name, "hodnota chybí");
    } else if (std::isfinite(value) && (value < rule.least || value > rule.most)) {
        row.doubt(rule.name,
                  singleText(value) + " není v rozmezí " + singleText(rule.least) + " až " + singleText(rule.most));
    }
}

void readField(RowReader& row, const RecordField& field, float& value) {
    const auto number = row.single(field.name, valueOfEmptyCell(field.name));
    if (!number) return;
    value = *number;
    if (const ConstantRule* rule = ruleOf(field.name)) checkConstant(row, *rule, value);
}

void readField(RowReader& row, const RecordField& field, std::int16_t& value) {
    value = row.integer(field.name, std::int16_t{0}).value_or(value);
}

void readField(RowReader& row, const RecordField& field, std::int32_t& value) {
    value = row.registryNumber(field.name).value_or(value);
}

template <std::size_t Width>
void readField(RowReader& row, const RecordField& field, std::array<char, Width>& text) {
    const auto bytes = row.bytes(field.name, Width);
    if (!bytes) return;
    std::copy(bytes->begin(), bytes->end(), text.begin());
    if (std::any_of(text.begin(), text.end(), isControlByte)) row.doubt(field.name, "řídicí nebo nedefinovaný znak");
    if (text.front() == ' ' && !row.cell(field.name).empty()) row.doubt(field.name, "text začíná mezerou");
}

TLatka readRecord(RowReader& row, int number) {
    TLatka record = blankRecord();
    for (const RecordField& field : kRecordFields) {
        if (field.name == kNumber) continue;
        std::visit([&](auto member) { readField(row, field, record.*member); }, field.member);
    }
    const auto ownNumber = static_cast<std::int16_t>(number);
    record.Cislo = row.integer(kStoredNumber, ownNumber).value_or(ownNumber);
    if (record.Cislo != number) row.doubt(kStoredNumber, "liší se od čísla látky");
    if (row.cell(kName).empty()) row.doubt(kName, "název chybí");
    if (record.Tkr > 0 && record.Tnbv >= record.Tkr) row.doubt("Tnbv", "má být pod kritickou teplotou Tkr");
    return record;
}

std::string cellOf(const RecordField& field, const float& value) {
    const bool empty =
        std::bit_cast<std::uint32_t>(value) == std::bit_cast<std::uint32_t>(valueOfEmptyCell(field.name));
    return empty ? std::string() : singleText(value);
}

std::string cellOf(const RecordField&, std::int16_t value) { return value == 0 ? "" : std::to_string(value); }

std::string cellOf(const RecordField&, std::int32_t cas) { return cas == 0 ? "" : registryText(cas); }

template <std::size_t Width>
std::string cellOf(const RecordField&, const std::array<char, Width>& text) {
    return bytesText({text.data(), Width});
}

std::string cellOf(std::string_view column, int number, const TLatka& record) {
    if (column == kNumber) return std::to_string(number);
    if (column == kStoredNumber) return record.Cislo == number ? "" : std::to_string(record.Cislo);
    for (const RecordField& field : kRecordFields)
        if (field.name == column)
            return std::visit([&](auto member) { return cellOf(field, record.*member); }, field.member);
    return {};  // not in the database
}

// Names are found without regard to case, so that they must differ in more.
void checkName(RowReader& row, std::map<std::string, int>& lineOfName) {
    const std::string_view name = row.cell(kName);
    if (name.empty()) return;
    const auto [earlier, isNew] = lineOfName.emplace(upperCase(trimBlanks(name)), row.line());
    if (!isNew) row.doubt(kName, quoted(name) + " už je na řádku " + std::to_string(earlier->second));
}

}  // namespace

Substances readSubstances(std::string_view text, Checks checks, LineFaults& faults) {
    Substances substances;
    const auto table = CsvTable::read(text, kColumns, faults);
    if (!table) return substances;
    substances.complete = table->isComplete();
    std::map<int, int> lineOfNumber;
    std::map<std::string, int> lineOfName;
    for (const CsvRow& cells : table->rows()) {
        RowReader row(*table, cells, checks, faults);
        const auto number = row.recordNumber(kNumber);
        const TLatka record = readRecord(row, number.value_or(0));
        checkName(row, lineOfName);
        if (!number) {
            substances.complete = false;
            continue;
        }
        if (const auto [earlier, isNew] = lineOfNumber.emplace(*number, row.line()); !isNew) {
            row.fault(kNumber, std::to_string(*number) + " už je na řádku " + std::to_string(earlier->second));
            substances.complete = false;  // the number meant is unknown
        }
        substances.records.emplace(*number, record);
    }
    return substances;
}

namespace {

bool isRequired(std::string_view column) {
    const ConstantRule* const rule = ruleOf(column);
    return column == kName || column == "CAS" || (rule != nullptr && rule->required);
}

std::vector<Column> ownColumns() {
    std::vector<Column> columns;
    for (const Column& column : kColumns)
        columns.push_back({column.name, isRequired(column.name) ? Presence::Always : Presence::WhenNeeded});
    return columns;
}

}  // namespace

std::vector<OwnSubstance> readOwnSubstances(std::string_view text, int firstLine, LineFaults& faults) {
    std::vector<OwnSubstance> substances;
    const auto columns = ownColumns();
    const auto table = CsvTable::read(text, columns, faults, firstLine);
    if (!table) return substances;
    std::vector<std::string_view> untold;
    for (const Column& column : columns)
        if (!table->has(column.name)) untold.push_back(column.name);
    std::map<std::string, int> lineOfName;
    std::map<std::int32_t, int> lineOfCas;
    for (const CsvRow& cells : table->rows()) {
        RowReader row(*table, cells, Checks::Full, faults);
        const int number = row.cell(kNumber).empty() ? 0 : row.recordNumber(kNumber).value_or(0);
        const TLatka record = readRecord(row, number);
        checkName(row, lineOfName);
        if (row.cell("CAS").empty()) {
            row.fault("CAS", "registrační číslo chybí, podle něj se látka pozná");
        } else if (const auto [earlier, isNew] = lineOfCas.emplace(record.CAS, row.line()); !isNew) {
            row.fault("CAS", std::string(row.cell("CAS")) + " už je na řádku " + std::to_string(earlier->second));
        }
        substances.push_back({row.line(), record, untold});
    }
    return substances;
}

void keepUntold(TLatka& record, const TLatka& held, const std::vector<std::string_view>& untold) {
    for (const RecordField& field : kRecordFields)
        if (field.name != kNumber && std::ranges::find(untold, field.name) != untold.end())
            std::visit([&](auto member) { record.*member = held.*member; }, field.member);
}

TLatka blankRecord() {
    TLatka record;
    record.Nazev.fill(' ');
    record.Vzorec.fill(' ');
    record.Synonym.fill(' ');
    return record;
}

std::vector<std::string> substanceCells(int number, const TLatka& record) {
    std::vector<std::string> cells;
    cells.reserve(kColumns.size());
    for (const Column& column : kColumns) cells.push_back(cellOf(column.name, number, record));
    return cells;
}

std::string ownSubstancesHeader() {
    std::vector<std::string> names;
    for (const Column& column : kColumns)
        if (column.presence == Presence::Always && column.name != kNumber && column.name != "skupina")
            names.emplace_back(column.name);
    std::string text;
    appendCsvRow(text, names);
    return text;
}

std::string writeSubstances(const std::vector<std::vector<std::string>>& rows) { return writeTable(kColumns, rows); }

}  // namespace velor::baze
