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

std::string phaseWord(StablePhase phase) {
    switch (phase) {
        case StablePhase::Liquid:
            return "kapalina";
        case StablePhase::Gas:
            return "plyn";
        case StablePhase::Both:
            return "kapalina a plyn";
        case StablePhase::Unknown:
            break;
    }
    return "nelze určit";
}

bool isShown(const MixtureProperty& property, StablePhase stable) {
    if (property.phase == Phase::Liquid) return stable != StablePhase::Gas;
    return property.phase == Phase::Any || stable != StablePhase::Liquid;
}

Section stateSection(const OverviewRequest& request, StablePhase stable) {
    return {"stav",
            "Stav",
            Entries{{"T", "teplota", request.temperature, "K"},
                    {"P", "tlak", request.pressure, "Pa"},
                    {"skupenstvi", "skupenství (ideální směs)", phaseWord(stable), {}}},
            {}};
}

std::vector<std::string> phaseNotes(StablePhase stable) {
    if (stable == StablePhase::Both) {
        return {"Hodnoty kapaliny i plynu platí pro zadané složení; rozdělení na fáze počítá velor flash."};
    }
    if (stable == StablePhase::Unknown)
        return {"Bez tenze par všech složek není skupenství známo, proto jsou uvedeny hodnoty kapaliny i plynu."};
    return {};
}

Section propertiesSection(const Mixture& mixture, const OverviewRequest& request, StablePhase stable) {
    Table table;
    table.columns = {{"zkratka", "zkratka", ""},   {"popis", "vlastnost", ""},
                     {"symbol", "symbol", ""},     {"hodnota", "hodnota", ""},
                     {"jednotka", "jednotka", ""}, {"stav", "stav", "", Column::Audience::Machines}};
    MixtureNotes notes;
    const Point point{request.temperature, request.pressure};
    for (const MixtureProperty& property : mixtureProperties()) {
        if (!isShown(property, stable)) continue;
        const MixtureValue value = mixtureValue(mixture, property, point);
        table.rows.push_back({textCell(property.code), textCell(property.caption), textCell(property.symbol),
                              notes.cell(value), textCell(property.unit),
                              textCell(standingWord(value.result.standing))});
    }
    Section section{
        "vlastnosti",
        "Vlastnosti směsi při " + roundedText(request.temperature) + " K a " + roundedText(request.pressure) + " Pa",
        std::move(table), notes.notes()};
    for (const std::string& note : phaseNotes(stable)) section.notes.push_back(note);
    return section;
}

}  // namespace

Report answer(const OverviewRequest& request, const Database& database, UserInterface&) {
    const Mixture mixture = findMixture(request.composition, database, request.clamp);
    MixtureObject object(mixture);
    const StablePhase stable = stablePhase(object.smes, request.temperature, request.pressure, object.X);
    return {{compositionSection(mixture), stateSection(request, stable), propertiesSection(mixture, request, stable)},
            "vlastnosti"};
}

}  // namespace velor::app
