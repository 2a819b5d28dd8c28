#include <algorithm>

#include "mixtures/mixture.h"
#include "velor/text.h"

namespace velor::app {

namespace {

const Section& valuesSection(const Report& report) {
    return *std::find_if(report.sections.begin(), report.sections.end(),
                         [&](const Section& section) { return section.key == report.csvTable; });
}

// What is drawn is the table that vlastnost prints: its first column against each of the others.
Picture pictureOf(const Section& section, std::string_view symbol, const std::string& onlyCurve) {
    const Table& table = std::get<Table>(section.content);
    Picture picture{section.title, "T [K]", {}, {}};
    for (std::size_t i = 1; i < table.columns.size(); ++i) {
        const Column& column = table.columns[i];
        if (column.audience == Column::Audience::Machines) continue;
        picture.vertical = std::string(symbol) + (column.unit.empty() ? "" : " [" + column.unit + "]");
        Curve curve{onlyCurve.empty() ? column.caption : onlyCurve, {}};
        for (const auto& row : table.rows) curve.points.push_back(pointOf(row.front(), row[i]));
        picture.curves.push_back(std::move(curve));
    }
    return picture;
}

void requireTemperatures(const std::vector<double>& temperatures) {
    const auto [least, most] = std::ranges::minmax(temperatures);
    if (least == most) throw Failure(ExitCode::WrongUse, "Graf potřebuje aspoň dvě různé teploty.");
}

void requireDependence(const MixtureProperty& property) {
    if (property.needsTemperature) return;
    throw Failure(ExitCode::WrongUse,
                  "Vlastnost " + std::string(property.code) + " na teplotě nezávisí, graf nelze nakreslit.");
}

// "Voda 0.4, Ethanol 0.6 (molově)"
std::string mixtureName(const Mixture& mixture) {
    if (mixture.substances.size() == 1) return mixture.substances.front().name;
    std::string name;
    for (std::size_t i = 0; i < mixture.substances.size(); ++i) {
        name += (i == 0 ? "" : ", ") + mixture.substances[i].name + " " + roundedText(mixture.moleFractions[i]);
    }
    return name + " (molově)";
}

struct Drawing {
    Report values;
    Picture picture;
};

Drawing drawing(const PropertyRequest& request, const Database& database, UserInterface& userInterface) {
    requireTemperatures(request.temperatures);
    Report values = answer(request, database, userInterface);
    Picture picture = pictureOf(valuesSection(values), wantedProperty(request.property->code).symbol, {});
    return {std::move(values), std::move(picture)};
}

Drawing drawing(const MixturePropertyRequest& request, const Database& database, UserInterface&) {
    requireDependence(*request.property);
    requireTemperatures(request.temperatures);
    const Mixture mixture = findMixture(request.composition, database, request.clamp);
    Report values = propertyReport(request, mixture);
    Picture picture = pictureOf(valuesSection(values), request.property->symbol, mixtureName(mixture));
    return {std::move(values), std::move(picture)};
}

}  // namespace

Report answer(const GraphRequest& request, const Database& database, UserInterface& userInterface) {
    const Drawing drawn =
        std::visit([&](const auto& curves) { return drawing(curves, database, userInterface); }, request.curves);
    drawPicture(drawn.picture, request.pictureFile);
    Section values = valuesSection(drawn.values);
    return pictureReport(request.pictureFile, std::move(values));
}

}  // namespace velor::app
