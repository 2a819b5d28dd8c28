#include "people/people.h"
#include "substances/views.h"

namespace velor::app {

Report answer(const SubstanceRequest& request, const Database& database, UserInterface& userInterface) {
    const Substance& substance = findSubstance(database.substances, request.substance);
    Smes smes(userInterface);
    loadInto(smes, database, {&substance, 1});
    return {{identitySection(substance), constantsSection(smes, 1), correlationsSection(smes, substance, 1)}, {}};
}

Report answer(const TourRequest& request, const Database& database, UserInterface& userInterface) {
    const Substance& substance = findSubstance(database.substances, request.substance);
    Smes smes(userInterface);
    loadInto(smes, database, {&substance, 1});
    return {
        {identitySection(substance), constantsSection(smes, 1), valuesSection(smes, request.temperature, substance, 1)},
        {}};
}

namespace {

// Values by temperature, then by substance.
using Values = std::vector<std::vector<PropertyValue>>;

Values compute(Smes& smes, const std::vector<double>& temperatures, int substances, const PureProperty& property) {
    Values values;
    for (const double T : temperatures) {
        auto& row = values.emplace_back();
        for (int slot = 1; slot <= substances; ++slot) row.push_back(pureValue(smes, T, slot, property));
    }
    return values;
}

// Where not a single value came out, there is nothing to print but the reasons.
void requireAnyValue(const Values& values, const SubstanceList& substances, const PureProperty& property) {
    for (const auto& row : values)
        for (const PropertyValue& value : row)
            if (value.isComputed()) return;
    std::string reasons = "Vlastnost " + std::string(property.code) + " nebyla vypočtena.";
    for (std::size_t i = 0; i < substances.size(); ++i)
        reasons.append("\n  ").append(substances[i].name).append(": ").append(standingNote(values[0][i].standing));
    throw Failure(ExitCode::NothingComputed, reasons);
}

Section propertySection(const PureProperty& property) {
    return {"vlastnost",
            "",
            Entries{{"zkratka", "zkratka", std::string(property.code), {}},
                    {"popis", "popis", std::string(property.caption), {}},
                    {"jednotka", "jednotka", std::string(property.unit), {}}},
            {}};
}

Section valuesSection(const Values& values, const PropertyRequest& request, const SubstanceList& substances,
                      const PureProperty& property) {
    Table table;
    table.columns.push_back({"T", "T", "K"});
    for (const Substance& substance : substances) {
        const std::string key = std::to_string(substance.number);
        table.columns.push_back({key, substance.name, std::string(property.unit)});
        table.columns.push_back({key + "_stav", substance.name + " – stav", "", Column::Audience::Machines});
    }
    StandingNotes notes;
    for (std::size_t i = 0; i < values.size(); ++i) {
        auto& row = table.rows.emplace_back();
        row.push_back({request.temperatures[i], {}});
        for (const PropertyValue& value : values[i]) {
            row.push_back(notes.cell(value));
            row.push_back({std::string(standingWord(value.standing)), {}});
        }
    }
    const std::string title = std::string(property.code) + " – " + std::string(property.caption);
    return {"hodnoty", title, std::move(table), notes.notes()};
}

}  // namespace

Report answer(const PropertyRequest& request, const Database& database, UserInterface& userInterface) {
    const PureProperty& property = *request.property;
    const SubstanceList substances = findSubstances(database.substances, request.substances);
    Smes smes(userInterface);
    loadInto(smes, database, substances);
    if (request.clamp) smes.MezeZap();
    const Values values = compute(smes, request.temperatures, static_cast<int>(substances.size()), property);
    requireAnyValue(values, substances, property);
    return {{propertySection(property), rangesSection(smes, substances, property.number),
             valuesSection(values, request, substances, property)},
            "hodnoty"};
}

}  // namespace velor::app
