#include "mixtures/mixtures.h"
#include "velor/text.h"

namespace velor::app {

namespace {

// What it takes beside the composition.
std::string neededArguments(const MixtureProperty& property) {
    if (property.needsTemperature) return property.needsPressure ? "T, P" : "T";
    return property.needsPressure ? "P" : "";
}

}  // namespace

Report propertyList() {
    Table table;
    table.columns = {{"zkratka", "zkratka", ""},   {"popis", "vlastnost", ""}, {"symbol", "symbol", ""},
                     {"jednotka", "jednotka", ""}, {"zadat", "zadat", ""},     {"pravidlo", "pravidlo", ""}};
    for (const MixtureProperty& property : mixtureProperties()) {
        table.rows.push_back({textCell(property.code), textCell(property.caption), textCell(property.symbol),
                              textCell(property.unit), textCell(neededArguments(property)), textCell(property.rule)});
    }
    return {{{"vlastnosti",
              "Vlastnosti směsí",
              std::move(table),
              {"(l) kapalina, (g) ideální plyn, (rg) reálný plyn; ke každé vlastnosti patří složení.",
               "T teplota v kelvinech (-T), P tlak v pascalech (-P)."}}},
            "vlastnosti"};
}

const MixtureProperty& wantedProperty(std::string_view code) {
    if (const MixtureProperty* const property = findMixtureProperty(trimBlanks(code))) return *property;
    std::string near;
    for (const std::string_view other : nearCodes(code)) near.append(near.empty() ? "" : ", ").append(other);
    std::string text = "Neznámá vlastnost „" + std::string(code) + "“.";
    if (!near.empty()) text += " Podobné zkratky: " + near + ".";
    throw Failure(ExitCode::WrongUse, text + "\nVšechny vypíše velor vlastnost --seznam");
}

}  // namespace velor::app
