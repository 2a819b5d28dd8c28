#include "baze/correlations_table.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <map>
#include <optional>
#include <utility>

#include "baze/csv_table.h"
#include "baze/row_reader.h"
#include "records/field_text.h"
#include "records/supplement_text.h"
#include "rules/equations.h"  // a database may hold only the types of equation that there are
#include "velor/smes.h"
#include "velor/text.h"

namespace velor::baze {

namespace {

constexpr std::string_view kNumber = "Cislo";
constexpr std::string_view kProperty = "vlastnost";
constexpr std::array<std::string_view, 6> kCoefficientNames{"A1", "A2", "A3", "A4", "A5", "A6"};

constexpr std::array<Column, 15> kColumns{{
    {kNumber},
    {kProperty},
    {"Typ"},
    {"A1"},
    {"A2"},
    {"A3"},
    {"A4"},
    {"A5"},
    {"A6"},
    {"Tmin"},
    {"Tmax"},
    {"Priznak", Presence::WhenNeeded},
    {"zdroj"},
    {"odchylka"},
    {"odhad", Presence::WhenNeeded},
}};

constexpr std::int16_t kGiven = 1;  // the usual Priznak of a block that is given

bool isUsed(int type, std::size_t coefficient) { return isEquationType(type) && equationOf(type).uses(coefficient); }

void readType(RowReader& row, TKorelace& block) {
    const auto type = row.integer("Typ");
    block.Typ = type.value_or(block.Typ);
    if (type && !isEquationType(*type))
        row.doubt("Typ", "typ rovnice má být " + equationTypesText() + ", ne " + std::to_string(*type));
}

void readCoefficients(RowReader& row, TKorelace& block) {
    for (std::size_t j = 0; j < block.A.size(); ++j) {
        const std::string_view name = kCoefficientNames[j];
        block.A[j] = row.single(name, 0.0F).value_or(0.0F);
        if (row.cell(name).empty() && isUsed(block.Typ, j))
            row.doubt(name, "rovnice typu " + std::to_string(block.Typ) + " tento koeficient používá");
    }
}

void readRange(RowReader& row, TKorelace& block) {
    const auto least = row.integer("Tmin");
    const auto most = row.integer("Tmax");
    block.Tmin = least.value_or(block.Tmin);
    block.Tmax = most.value_or(block.Tmax);
    if (least && *least < 1) row.doubt("Tmin", "teplota má být kladná");
    if (least && most && *least >= *most) row.doubt("Tmax", "má být větší než Tmin");
}

void readFlag(RowReader& row, TKorelace& block) {
    block.Priznak = row.integer("Priznak", kGiven).value_or(kGiven);
    if (block.Priznak != kGiven) row.doubt("Priznak", "u dané korelace má být 1");
}

// What the supplement tells of the row.
void readProvenance(RowReader& row, CorrelationRow& read) {
    read.source = row.cell("zdroj");
    read.deviation = row.cell("odchylka");
    read.isEstimate = !row.cell("odhad").empty();
    for (std::string_view rest = read.source; !rest.empty();)
        if (isControl(takeCodePoint(rest))) return row.fault("zdroj", "řídicí znak");
    if (!read.deviation.empty()) {
        const float deviation = row.single("odchylka", 0.0F).value_or(0.0F);
        if (deviation < 0) row.doubt("odchylka", "nemá být záporná");
        read.deviation = exactText(deviation);
    }
    if (read.isEstimate && row.cell("odhad") != kEstimate)
        row.fault("odhad", "má být prázdné nebo „odhad“, ne " + quoted(row.cell("odhad")));
}

TKorelace readBlock(RowReader& row) {
    TKorelace block;
    readType(row, block);
    readCoefficients(row, block);
    readRange(row, block);
    readFlag(row, block);
    return block;
}

CorrelationRow readRow(RowReader& row, int number, int property) {
    CorrelationRow read{row.line(), number, property, readBlock(row), {}, {}};
    readProvenance(row, read);
    return read;
}

std::string coefficientCell(const TKorelace& block, std::size_t j) {
    const bool zero = std::bit_cast<std::uint32_t>(block.A[j]) == 0;
    return zero && !isUsed(block.Typ, j) ? std::string() : singleText(block.A[j]);
}

}  // namespace

std::vector<CorrelationRow> readCorrelations(std::string_view text, Checks checks, LineFaults& faults) {
    std::vector<CorrelationRow> rows;
    const auto table = CsvTable::read(text, kColumns, faults);
    if (!table) return rows;
    std::map<std::pair<int, int>, int> lineOfKey;
    for (const CsvRow& cells : table->rows()) {
        RowReader row(*table, cells, checks, faults);
        const auto number = row.recordNumber(kNumber);
        const auto property = row.property(kProperty);
        CorrelationRow read = readRow(row, number.value_or(0), property.value_or(0));
        if (!number || !property) continue;
        const auto [earlier, isNew] = lineOfKey.emplace(std::pair(*number, *property), row.line());
        if (isNew) {
            rows.push_back(std::move(read));
        } else {
            row.fault(kProperty, Smes::ChybRozv(*property) + " látky " + std::to_string(*number) + " už je na řádku " +
                                     std::to_string(earlier->second));
        }
    }
    return rows;
}

namespace {

constexpr std::string_view kCas = "CAS";

std::vector<Column> ownColumns() {
    std::vector<Column> columns{{kCas, Presence::WhenNeeded}};
    for (const Column& column : kColumns) {
        const bool isNeeded = column.name != kNumber && column.name != "zdroj" && column.name != "odchylka";
        columns.push_back({column.name, isNeeded ? column.presence : Presence::WhenNeeded});
    }
    return columns;
}

}  // namespace

std::vector<OwnCorrelation> readOwnCorrelations(std::string_view text, int firstLine, LineFaults& faults) {
    std::vector<OwnCorrelation> rows;
    const auto columns = ownColumns();
    const auto table = CsvTable::read(text, columns, faults, firstLine);
    if (!table) return rows;
    for (const CsvRow& cells : table->rows()) {
        RowReader row(*table, cells, Checks::Full, faults);
        const bool isByCas = !row.cell(kCas).empty();
        const auto cas = row.registryNumber(kCas);
        const auto number = isByCas ? std::optional(0) : row.recordNumber(kNumber);
        const auto property = row.property(kProperty);
        const CorrelationRow read = readRow(row, number.value_or(0), property.value_or(0));
        if (cas && number && property) rows.push_back({*cas, read});
    }
    return rows;
}

std::string ownCorrelationsHeader() {
    std::vector<std::string> names{std::string(kCas)};
    for (const Column& column : kColumns)
        if (column.name != kNumber && column.name != "Priznak") names.emplace_back(column.name);
    std::string text;
    appendCsvRow(text, names);
    return text;
}

std::string ownCorrelationRow(const std::string& cas, int property, const TKorelace& block,
                              const Provenance& provenance) {
    std::vector<std::string> cells = correlationCells(0, property, block, provenance);
    cells.front() = cas;
    constexpr std::ptrdiff_t kFlag = 11;  // Priznak, which a row that is given does not need
    cells.erase(cells.begin() + kFlag);
    std::string text;
    appendCsvRow(text, cells);
    return text;
}

std::vector<std::string> correlationCells(int number, int property, const TKorelace& block,
                                          const Provenance& provenance) {
    std::vector<std::string> cells{std::to_string(number), Smes::ChybRozv(property), std::to_string(block.Typ)};
    for (std::size_t j = 0; j < block.A.size(); ++j) cells.push_back(coefficientCell(block, j));
    cells.push_back(std::to_string(block.Tmin));
    cells.push_back(std::to_string(block.Tmax));
    cells.push_back(block.Priznak == kGiven ? "" : std::to_string(block.Priznak));
    cells.push_back(provenance.source);
    cells.push_back(provenance.deviation ? exactText(*provenance.deviation) : "");
    cells.emplace_back(provenance.isEstimate ? kEstimate : std::string_view());
    return cells;
}

std::string writeCorrelations(const std::vector<std::vector<std::string>>& rows) { return writeTable(kColumns, rows); }

}  // namespace velor::baze
