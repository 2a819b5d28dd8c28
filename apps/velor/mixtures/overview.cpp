#include <array>
#include <utility>

#include "mixtures/mixture.h"
#include "velor/text.h"

namespace velor::app {

namespace {

Section pseudocriticalSection(MixtureObject& object) {
    const auto pseud = [&](const char* selector) { return object.smes.PSEUD(object.X, selector).toDouble(); };
    return {"pseudokriticke",
            "Pseudokritické veličiny (Kay, 1936) a molární hmotnost",
            Entries{{"MSm", "molární hmotnost", pseud("M"), "kg/mol"},
                    {"TKRITsm", "pseudokritická teplota", pseud("T"), "K"},
                    {"PKRITsm", "pseudokritický tlak", pseud("P"), "Pa"},
                    {"VKRITsm", "pseudokritický molární objem", pseud("V"), "m³/mol"},
                    {"ZKRITsm", "pseudokritický kompresibilitní faktor", pseud("Z"), ""}},
            {}};
}

}  // namespace

Report describeMixture(const Mixture& mixture, double P) {
    MixtureObject object(mixture);
    Report report{changeSections(mixture), {}};
    for (Section& section : std::array{compositionSection(mixture), pseudocriticalSection(object),
                                       boilingSection(boilingRange(mixture, P), P)})
        report.sections.push_back(std::move(section));
    return report;
}

Report answer(const MixtureRequest& request, const Database& database, UserInterface&) {
    return describeMixture(findMixture(request.composition, database), request.pressure);
}

namespace {

enum class Region { Liquid, Gas, Both, Unknown };

Region regionAt(double T, const BoilingRange& range) {
    const PropertyValue &bubble = range.bubble.result, &dew = range.dew.result;
    if (bubble.isComputed() && T < bubble.value) return Region::Liquid;
    if (dew.isComputed() && T > dew.value) return Region::Gas;
    return bubble.isComputed() && dew.isComputed() ? Region::Both : Region::Unknown;
}

std::string regionWord(Region region) {
    switch (region) {
        case Region::Liquid:
            return "kapalina";
        case Region::Gas:
            return "plyn";
        case Region::Both:
            return "kapalina a plyn";
        case Region::Unknown:
            break;
    }
    return "neznámé";
}

bool isShown(const MixtureProperty& property, Region region) {
    if (property.phase == Phase::Liquid) return region != Region::Gas;
    return property.phase == Phase::Any || region != Region::Liquid;
}

Section stateSection(const OverviewRequest& request, Region region) {
    return {"stav",
            "Stav",
            Entries{{"T", "teplota", request.temperature, "K"},
                    {"P", "tlak", request.pressure, "Pa"},
                    {"skupenstvi", "skupenství (ideální směs)", regionWord(region), {}}},
            {}};
}

std::vector<std::string> regionNotes(Region region) {
    if (region == Region::Both) {
        return {"Hodnoty kapaliny i plynu platí pro zadané složení; jak se směs rozdělí, vypočte velor flash."};
    }
    if (region == Region::Unknown)
        return {"Bez bodu varu a rosného bodu není skupenství známo, proto jsou uvedeny hodnoty kapaliny i plynu."};
    return {};
}

Section propertiesSection(const Mixture& mixture, const OverviewRequest& request, Region region) {
    Table table;
    table.columns = {{"zkratka", "zkratka", ""},   {"popis", "vlastnost", ""},
                     {"symbol", "symbol", ""},     {"hodnota", "hodnota", ""},
                     {"jednotka", "jednotka", ""}, {"stav", "stav", "", Column::Audience::Machines}};
    MixtureNotes notes;
    const Point point{request.temperature, request.pressure};
    for (const MixtureProperty& property : mixtureProperties()) {
        if (!isShown(property, region)) continue;
        const MixtureValue value = mixtureValue(mixture, property, point);
        table.rows.push_back({textCell(property.code), textCell(property.caption), textCell(property.symbol),
                              notes.cell(value), textCell(property.unit),
                              textCell(standingWord(value.result.standing))});
    }
    Section section{
        "vlastnosti",
        "Vlastnosti směsi při " + roundedText(request.temperature) + " K a " + roundedText(request.pressure) + " Pa",
        std::move(table), notes.notes()};
    for (const std::string& note : regionNotes(region)) section.notes.push_back(note);
    return section;
}

}  // namespace

Report answer(const OverviewRequest& request, const Database& database, UserInterface&) {
    Mixture mixture = findMixture(request.composition, database);
    mixture.clamp = request.clamp;
    const Region region = regionAt(request.temperature, boilingRange(mixture, request.pressure));
    return {{compositionSection(mixture), stateSection(request, region), propertiesSection(mixture, request, region)},
            "vlastnosti"};
}

}  // namespace velor::app
