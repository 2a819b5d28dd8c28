#include "mixtures/mixture.h"
#include "velor/text.h"

namespace velor::app {

namespace {

// A liquid that boils, the vapour above it, and the dew point of a vapour of the liquid's composition. Fractions are
// those of the first substance.
struct BoilingPoint {
    double x = 0;
    MixtureValue bubble;
    Value y;
    MixtureValue dew;
};

SubstanceList findPair(const Database& database, std::string_view wanted) {
    SubstanceList substances = findSubstances(database.substances, wanted);
    if (substances.size() == 2) return substances;
    throw Failure(ExitCode::WrongUse,
                  "Rovnováha se počítá pro dvě látky, zadáno jich je " + std::to_string(substances.size()) + ".");
}

double vapourFraction(const Mixture& mixture, double T) {
    MixtureObject object(mixture);
    double partial[2];
    for (const int slot : {1, 2}) {
        partial[slot - 1] =
            mixture.moleFractions[static_cast<std::size_t>(slot - 1)] * object.smes.FFce(T, slot, kTENS).toDouble();
    }
    return partial[0] / (partial[0] + partial[1]);
}

BoilingPoint boilingPoint(const Database& database, const SubstanceList& pair, double x, double P) {
    const Mixture mixture{database, pair, {x, 1.0 - x}};
    const BoilingRange range = boilingRange(mixture, P);
    BoilingPoint point{x, range.bubble, {}, range.dew};
    if (range.bubble.result.isComputed()) point.y = vapourFraction(mixture, range.bubble.result.value);
    return point;
}

std::vector<BoilingPoint> boilingPoints(const EquilibriumRequest& request, const Database& database,
                                        const SubstanceList& pair) {
    std::vector<BoilingPoint> points;
    for (int i = 0; i < request.points; ++i) {
        const double x = static_cast<double>(i) / (request.points - 1);
        points.push_back(boilingPoint(database, pair, x, request.pressure));
    }
    return points;
}

void requireAnyValue(const std::vector<BoilingPoint>& points) {
    for (const BoilingPoint& point : points)
        if (point.bubble.result.isComputed() || point.dew.result.isComputed()) return;
    throw Failure(ExitCode::NothingComputed, "Rovnováha nebyla vypočtena.\n  " + points.front().bubble.reason);
}

std::string title(const SubstanceList& pair, double P) {
    return "Rovnováha " + pair[0].name + " – " + pair[1].name + " při " + roundedText(P) + " Pa (ideální směs)";
}

Section tableSection(const std::vector<BoilingPoint>& points, const SubstanceList& pair, double P) {
    Table table;
    const std::string& name = pair[0].name;
    table.columns = {{"x", "x (" + name + ")", ""},
                     {"Tb", "bod varu", "K"},
                     {"Tb_stav", "bod varu – stav", "", Column::Audience::Machines},
                     {"y", "y (" + name + ")", ""},
                     {"Td", "rosný bod páry složení x", "K"},
                     {"Td_stav", "rosný bod – stav", "", Column::Audience::Machines}};
    MixtureNotes notes;
    for (const BoilingPoint& point : points) {
        table.rows.push_back({{point.x, {}},
                              notes.cell(point.bubble),
                              textCell(standingWord(point.bubble.result.standing)),
                              {point.y, {}},
                              notes.cell(point.dew),
                              textCell(standingWord(point.dew.result.standing))});
    }
    return {"rovnovaha", title(pair, P), std::move(table), notes.notes()};
}

Curve::Point drawn(double x, const MixtureValue& value) {
    const PropertyValue& result = value.result;
    return {x, result.isComputed() ? std::optional(result.value) : std::nullopt, result.standing == Standing::InRange};
}

Picture pictureOf(const std::vector<BoilingPoint>& points, const SubstanceList& pair, double P) {
    Curve liquid{"bod varu (kapalina x)", {}}, vapour{"rosný bod (pára y)", {}};
    for (const BoilingPoint& point : points) {
        liquid.points.push_back(drawn(point.x, point.bubble));
        vapour.points.push_back(drawn(point.x, point.dew));
    }
    return {
        title(pair, P), "molový zlomek x, y – " + pair[0].name, "T [K]", {std::move(liquid), std::move(vapour)}, true};
}

}  // namespace

Report answer(const EquilibriumRequest& request, const Database& database, UserInterface&) {
    const SubstanceList pair = findPair(database, request.substances);
    const std::vector<BoilingPoint> points = boilingPoints(request, database, pair);
    requireAnyValue(points);
    Section table = tableSection(points, pair, request.pressure);
    if (!request.pictureFile) return {{std::move(table)}, "rovnovaha"};
    drawPicture(pictureOf(points, pair, request.pressure), *request.pictureFile);
    return pictureReport(*request.pictureFile, std::move(table));
}

}  // namespace velor::app
