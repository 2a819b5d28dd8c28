#include "baze/consistency.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <optional>

#include "baze/csv_table.h"
#include "baze/row_reader.h"
#include "rules/equations.h"  // the looks are at what the library evaluates
#include "runtime/numbers.h"  // numbers by a pattern, whatever the locale
#include "velor/properties.h"
#include "velor/run_time_error.h"
#include "velor/substances.h"

namespace velor::baze {

namespace {

constexpr double kGasConstant = 8.314462618;  // J/(mol K)
constexpr double kAtmosphere = 101325;        // Pa

std::optional<double> valueOf(const TLatka& record, Property property, double T) {
    const TKorelace& block = record.Korelace[static_cast<std::size_t>(property - 1)];
    if (block.Priznak == 0) return std::nullopt;
    try {
        const double value = evaluateEquation(block.Typ, block.A, T);
        return value == kNoValue ? std::nullopt : std::optional(value);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

// Second virial coefficient by Pitzer and Curl as Tsonopoulos (1974) has it for what is not polar, m3/mol.
double virial(const TLatka& record, double T) {
    const double Tr = T / record.Tkr;
    const double simple =
        0.1445 - 0.330 / Tr - 0.1385 / (Tr * Tr) - 0.0121 / std::pow(Tr, 3) - 0.000607 / std::pow(Tr, 8);
    const double other = 0.0637 + 0.331 / (Tr * Tr) - 0.423 / std::pow(Tr, 3) - 0.008 / std::pow(Tr, 8);
    return kGasConstant * record.Tkr / record.Pkr * (simple + record.Acent * other);
}

std::optional<double> boilingPressure(const TLatka& record) {
    const auto pressure = valueOf(record, kTENS, record.Tnbv);
    return pressure ? std::optional(*pressure / kAtmosphere) : std::nullopt;
}

// Clapeyron's equation at the boiling point.
std::optional<double> heatBySlope(const TLatka& record) {
    const double T = record.Tnbv, step = 1e-3 * T;
    const auto P = valueOf(record, kTENS, T), above = valueOf(record, kTENS, T + step),
               below = valueOf(record, kTENS, T - step);
    const auto density = valueOf(record, kROLW, T), heat = valueOf(record, kDHV, T);
    if (!P || !above || !below || !density || !heat) return std::nullopt;
    const double gas = kGasConstant * T / *P + virial(record, T), liquid = record.Mv / *density;
    return *heat / (T * (*above - *below) / (2 * step) * (gas - liquid));
}

// No correlation holds at the critical point itself; the mean of the densities on the saturation line does: a little
// below it, the liquid's is about so many times the critical one.
std::optional<double> densityNearCritical(const TLatka& record) {
    constexpr double kNear = 0.95, kTimes = 1.85;
    const auto density = valueOf(record, kROLW, kNear * record.Tkr);
    return density ? std::optional(*density * record.Vkr / record.Mv / kTimes) : std::nullopt;
}

std::optional<double> conductivities(const TLatka& record) {
    const auto liquid = valueOf(record, kALAL, record.Tnbv), gas = valueOf(record, kALAG, record.Tnbv);
    return liquid && gas ? std::optional(*liquid / *gas) : std::nullopt;
}

std::optional<double> compressibility(const TLatka& record) {
    return double{record.Pkr} * record.Vkr / (kGasConstant * record.Tkr);
}

struct Look {
    std::string_view check;
    std::string_view what;  // Czech
    std::optional<double> (*value)(const TLatka&);
    double least, most;
};

constexpr std::array<Look, 5> kLooks{{
    {"TENS", "tenze par při Tnbv proti 101 325 Pa", boilingPressure, 0.97, 1.03},
    {"DHV", "výparné teplo při Tnbv proti sklonu tenze par (Clapeyron)", heatBySlope, 0.9, 1.1},
    {"ROLW", "hustota kapaliny při 0.95 Tkr proti 1.85násobku kritické hustoty", densityNearCritical, 0.8, 1.2},
    {"ALAL", "tepelná vodivost kapaliny při Tnbv proti vodivosti plynu", conductivities, 1.5, 50},
    {"Zc", "kritický kompresibilitní faktor", compressibility, 0.19, 0.32},
}};

using Reasons = std::map<std::pair<int, std::string>, std::pair<int, std::string>>;  // line and text

Reasons readReasons(std::string_view text, LineFaults& faults) {
    static constexpr std::array<Column, 3> kColumns{{{"Cislo"}, {"co"}, {"duvod"}}};
    Reasons reasons;
    const auto table = CsvTable::read(text, kColumns, faults);
    if (!table) return reasons;
    for (const CsvRow& cells : table->rows()) {
        RowReader row(*table, cells, Checks::Full, faults);
        const std::string_view check = row.cell("co");
        if (std::ranges::find(kLooks, check, &Look::check) == kLooks.end())
            row.fault("co", "má být TENS, DHV, ROLW, ALAL nebo Zc");
        if (const auto number = row.recordNumber("Cislo"))
            reasons[{*number, std::string(check)}] = {row.line(), std::string(row.cell("duvod"))};
    }
    return reasons;
}

}  // namespace

std::vector<Finding> consistencyOf(const std::vector<TLatka>& records, std::string_view reasonTable,
                                   LineFaults& faults) {
    Reasons reasons = readReasons(reasonTable, faults);
    std::vector<Finding> findings;
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (records[i].Nazev[0] == ' ') continue;
        for (const Look& look : kLooks) {
            const auto value = look.value(records[i]);
            if (!value) continue;
            Finding finding{static_cast<int>(i) + 1,
                            std::string(look.check),
                            *value,
                            *value < look.least || *value > look.most,
                            {}};
            if (const auto reason = reasons.extract({finding.number, finding.check})) {
                if (!finding.isOutlier)
                    faults.push_back({reason.mapped().first, "Cislo: látka z mezí nevybočuje, důvod je zbytečný"});
                finding.reason = reason.mapped().second;
            }
            findings.push_back(finding);
        }
    }
    for (const auto& [key, reason] : reasons) faults.push_back({reason.first, "Cislo: látka takový údaj nemá"});
    faults.sortByLine();
    return findings;
}

std::string consistencyPage(const std::vector<TLatka>& records, std::span<const Finding> findings) {
    std::string page =
        "# Soulad údajů\n\nVytvořeno při sestavení z téže báze. Každý poměr má být blízko jedné (u vodivostí nad ní), "
        "u Zc 0.27; "
        "co vybočuje\nz mezí, je uvedeno s důvodem.\n\n| údaj | co se porovnává | meze | látek | vybočuje "
        "|\n|---|---|---|---|---|\n";
    const auto isOf = [](const Look& look, const Finding& finding) { return finding.check == look.check; };
    for (const Look& look : kLooks) {
        const auto all = std::ranges::count_if(findings, [&](const Finding& f) { return isOf(look, f); });
        const auto outliers =
            std::ranges::count_if(findings, [&](const Finding& f) { return isOf(look, f) && f.isOutlier; });
        page += "| " + std::string(look.check) + " | " + std::string(look.what) + " | " + Format(look.least, "0.00") +
                " až " + Format(look.most, "0.00") + " | " + std::to_string(all) + " | " + std::to_string(outliers) +
                " |\n";
    }
    for (const Look& look : kLooks) {
        page += "\n## " + std::string(look.check) + "\n\n| č. | látka | hodnota | důvod |\n|---|---|---|---|\n";
        for (const Finding& finding : findings)
            if (isOf(look, finding) && finding.isOutlier)
                page += "| " + std::to_string(finding.number) + " | " +
                        substanceOf(finding.number, records[static_cast<std::size_t>(finding.number - 1)]).name +
                        " | " + Format(finding.value, "0.000") + " | " +
                        (finding.reason.empty() ? "nevysvětleno" : finding.reason) + " |\n";
    }
    page += "\n## Všechny látky\n\n| č. | látka";
    for (const Look& look : kLooks) page += " | " + std::string(look.check);
    page += " |\n|---|---|---|---|---|---|---|\n";
    for (std::size_t i = 0; i < records.size(); ++i) {
        const int number = static_cast<int>(i) + 1;
        page += "| " + std::to_string(number) + " | " + substanceOf(number, records[i]).name;
        for (const Look& look : kLooks) {
            const auto found =
                std::ranges::find_if(findings, [&](const Finding& f) { return f.number == number && isOf(look, f); });
            page += " | " + (found == findings.end() ? std::string("–") : Format(found->value, "0.000"));
        }
        page += " |\n";
    }
    return page;
}

}  // namespace velor::baze
