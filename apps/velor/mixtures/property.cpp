#include "mixtures/mixture.h"
#include "velor/text.h"

namespace velor::app {

namespace {

using Values = std::vector<MixtureValue>;

std::vector<Point> points(const MixturePropertyRequest& request) {
    const double P = request.pressure.value_or(0.0);
    std::vector<Point> points;
    for (const double T : request.temperatures) points.push_back({T, P});
    if (!request.property->needsTemperature) points = {{0, P}};
    return points;
}

void requireAnyValue(const Values& values, const MixtureProperty& property) {
    for (const MixtureValue& value : values)
        if (value.result.isComputed()) return;
    throw Failure(ExitCode::NothingComputed,
                  "Vlastnost " + std::string(property.code) + " nebyla vypočtena.\n  " + values.front().reason);
}

Section propertySection(const MixtureProperty& property) {
    return {"vlastnost",
            "",
            Entries{{"zkratka", "zkratka", std::string(property.code), {}},
                    {"popis", "popis", std::string(property.caption), {}},
                    {"jednotka", "jednotka", std::string(property.unit), {}}},
            {}};
}

// The value's column, behind the arguments that it depends on; a pressure beside temperatures is for machines.
Section valuesSection(const Values& values, const std::vector<Point>& points, const MixtureProperty& property) {
    Table table;
    if (property.needsTemperature) table.columns.push_back({"T", "T", "K"});
    if (property.needsPressure) {
        const bool isAlone = !property.needsTemperature;
        table.columns.push_back({"P", "P", "Pa", isAlone ? Column::Audience::Everyone : Column::Audience::Machines});
    }
    table.columns.push_back({"hodnota", std::string(property.code), std::string(property.unit)});
    table.columns.push_back({"stav", "stav", "", Column::Audience::Machines});
    MixtureNotes notes;
    for (std::size_t i = 0; i < values.size(); ++i) {
        auto& row = table.rows.emplace_back();
        if (property.needsTemperature) row.push_back({points[i].T, {}});
        if (property.needsPressure) row.push_back({points[i].P, {}});
        row.push_back(notes.cell(values[i]));
        row.push_back(textCell(standingWord(values[i].result.standing)));
    }
    std::string title = std::string(property.code) + " – " + std::string(property.caption);
    if (property.needsPressure) title += " při " + roundedText(points.front().P) + " Pa";
    return {"hodnoty", title, std::move(table), notes.notes()};
}

}  // namespace

Report propertyReport(const MixturePropertyRequest& request, const Mixture& mixture) {
    const MixtureProperty& property = *request.property;
    const std::vector<Point> places = points(request);
    const Values values = mixtureValues(mixture, property, places);
    requireAnyValue(values, property);
    return {{propertySection(property), compositionSection(mixture), valuesSection(values, places, property)},
            "hodnoty"};
}

Report answer(const MixturePropertyRequest& request, const Database& database, UserInterface&) {
    return propertyReport(request, findMixture(request.composition, database, request.clamp));
}

}  // namespace velor::app
