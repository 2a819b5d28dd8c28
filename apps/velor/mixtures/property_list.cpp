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

namespace {

// Those whose captions hold the text.
std::vector<std::string_view> codesByCaption(std::string_view wanted) {
    const std::string part = folded(wanted);
    std::vector<std::string_view> codes;
    for (const MixtureProperty& property : mixtureProperties())
        if (!part.empty() && folded(property.caption).find(part) != std::string::npos) codes.push_back(property.code);
    return codes;
}

std::string listed(const std::string& heading, const std::vector<std::string_view>& codes) {
    std::string text;
    for (const std::string_view code : codes) text.append(text.empty() ? heading : ", ").append(code);
    return text.empty() ? text : text + ".";
}

}  // namespace

const MixtureProperty& wantedProperty(std::string_view code) {
    if (const MixtureProperty* const property = findMixtureProperty(trimBlanks(code))) return *property;
    std::string near = listed(" Podobné zkratky: ", nearCodes(code));
    if (near.empty()) near = listed(" V popisu ji mají: ", codesByCaption(code));
    throw Failure(ExitCode::WrongUse, "Neznámá vlastnost „" + std::string(code) + "“." + near +
                                          "\nVšechny vypíše velor vlastnost --seznam");
}

}  // namespace velor::app
