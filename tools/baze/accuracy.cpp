#include "baze/accuracy.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

#include "baze/csv_table.h"
#include "baze/row_reader.h"
#include "rules/equations.h"  // points are compared with what the library evaluates
#include "velor/properties.h"
#include "velor/run_time_error.h"
#include "velor/smes.h"
#include "velor/text.h"

namespace velor::baze {

namespace {

constexpr std::array<Column, 5> kPointColumns{
    {{"Cislo"}, {"vlastnost"}, {"T"}, {"value"}, {"deviation", Presence::WhenNeeded}}};
constexpr std::array<Column, 5> kTableColumns{{{"vlastnost"}, {"bodu"}, {"median"}, {"p95"}, {"nejvice"}}};

// No polynomial follows the heat capacity of a cryogenic liquid; their own row keeps the others' figures honest.
constexpr float kCryogenic = 320.0F;
constexpr std::string_view kCryogenicCPL = "CPL, Tkr < 320 K";

using Deviations = std::map<std::string, std::vector<double>, std::less<>>;

std::string rowOf(const TLatka& record, int property) {
    if (property == kCPL && record.Tkr < kCryogenic) return std::string(kCryogenicCPL);
    return Smes::ChybRozv(property);
}

std::optional<double> deviation(const TKorelace& block, double T, double value) {
    try {
        return 100.0 * std::abs(evaluateEquation(block.Typ, block.A, T) / value - 1.0);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

void take(Deviations& deviations, RowReader& row, const std::vector<TLatka>& records) {
    const auto number = row.recordNumber("Cislo");
    const auto property = row.property("vlastnost");
    const auto T = row.single("T", 0.0F), value = row.single("value", 0.0F);
    if (!number || !property || !T || !value) return;
    if (*T <= 0 || *value <= 0) return row.fault("value", "teplota i hodnota mají být kladné");
    if (static_cast<std::size_t>(*number) > records.size())
        return row.fault("Cislo", "látka " + std::to_string(*number) + " v bázi není");
    const TLatka& record = records[static_cast<std::size_t>(*number - 1)];
    const TKorelace& block = record.Korelace[static_cast<std::size_t>(*property - 1)];
    if (block.Priznak == 0) return;
    if (const auto percent = deviation(block, *T, *value))
        deviations[rowOf(record, *property)].push_back(*percent);
    else
        row.fault("T", "rovnice tu nemá hodnotu");
}

double quantile(const std::vector<double>& sorted, double part) {
    const double place = part * static_cast<double>(sorted.size() - 1);
    const auto below = static_cast<std::size_t>(place);
    const std::size_t above = std::min(below + 1, sorted.size() - 1);
    return sorted[below] + (place - static_cast<double>(below)) * (sorted[above] - sorted[below]);
}

// Four digits behind the point: more would tell compilers apart, not figures.
std::string percentText(double value) { return exactText(std::round(value * 1e4) / 1e4); }

}  // namespace

AccuracyTable accuracyOf(const std::vector<TLatka>& records, std::string_view points, LineFaults& faults) {
    AccuracyTable table;
    const auto rows = CsvTable::read(points, kPointColumns, faults);
    if (!rows) return table;
    Deviations deviations;
    for (const CsvRow& cells : rows->rows()) {
        RowReader row(*rows, cells, Checks::Full, faults);
        take(deviations, row, records);
    }
    for (auto& [property, values] : deviations) {
        std::ranges::sort(values);
        table.push_back({property, values.size(), quantile(values, 0.5), quantile(values, 0.95), values.back()});
    }
    return table;
}

AccuracyTable readAccuracy(std::string_view text, LineFaults& faults) {
    AccuracyTable table;
    const auto rows = CsvTable::read(text, kTableColumns, faults);
    if (!rows) return table;
    for (const CsvRow& cells : rows->rows()) {
        RowReader row(*rows, cells, Checks::Full, faults);
        const auto number = [&](std::string_view column) { return double{row.single(column, 0.0F).value_or(0.0F)}; };
        table.push_back({std::string(row.cell("vlastnost")), static_cast<std::size_t>(number("bodu")), number("median"),
                         number("p95"), number("nejvice")});
    }
    return table;
}

std::string writeAccuracy(const AccuracyTable& table) {
    std::vector<std::vector<std::string>> rows;
    for (const auto& [property, points, median, p95, most] : table)
        rows.push_back({property, std::to_string(points), percentText(median), percentText(p95), percentText(most)});
    return writeTable(kTableColumns, rows);
}

std::vector<std::string> worsened(std::span<const AccuracyRow> now, std::span<const AccuracyRow> before) {
    constexpr double kTold = 1.001, kLastDigit = 2e-4;
    std::vector<std::string> sentences;
    for (const AccuracyRow& old : before) {
        const auto row = std::ranges::find(now, old.property, &AccuracyRow::property);
        if (row == now.end() || row->points < old.points) {
            sentences.push_back(old.property + ": bodů ubylo");
            continue;
        }
        const auto compare = [&](const char* what, double value, double limit) {
            if (value > limit * kTold + kLastDigit)
                sentences.push_back(old.property + ": " + what + " " + percentText(value) + " %, dosud " +
                                    percentText(limit) + " %");
        };
        compare("medián", row->median, old.median);
        compare("95 % bodů do", row->p95, old.p95);
        compare("největší odchylka", row->most, old.most);
    }
    return sentences;
}

}  // namespace velor::baze
