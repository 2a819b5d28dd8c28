#include <algorithm>

#include "mixtures/mixture.h"
#include "velor/text.h"

namespace velor::app {

Section compositionSection(const Mixture& mixture) {
    MixtureObject object(mixture);
    Variant massFractions = object.X;
    object.smes.Cohmo(object.X, massFractions);
    Table table;
    table.columns = {{"cislo", "č.", ""},
                     {"nazev", "látka", ""},
                     {"vzorec", "vzorec", ""},
                     {"x", "molový zlomek", ""},
                     {"w", "hmotnostní zlomek", ""}};
    for (std::size_t i = 0; i < mixture.substances.size(); ++i) {
        const Substance& substance = mixture.substances[i];
        table.rows.push_back({{substance.number, {}},
                              textCell(substance.name),
                              textCell(substance.formula),
                              {mixture.moleFractions[i], {}},
                              {massFractions.at(static_cast<int>(i) + 1).toDouble(), {}}});
    }
    return {"slozeni", "Složení", std::move(table), {}};
}

Section boilingSection(const BoilingRange& range, double P) {
    Table table;
    table.columns = {{"zkratka", "zkratka", "", Column::Audience::Machines},
                     {"popis", "rovnováha", ""},
                     {"T", "T", "K"},
                     {"stav", "stav", "", Column::Audience::Machines}};
    MixtureNotes notes;
    const auto addRow = [&](std::string_view name, std::string_view caption, const MixtureValue& value) {
        table.rows.push_back(
            {textCell(name), textCell(caption), notes.cell(value), textCell(standingWord(value.result.standing))});
    };
    addRow("TBV", "bod varu", range.bubble);
    addRow("TRB", "rosný bod", range.dew);
    return {"rovnovaha", "Bod varu a rosný bod při " + roundedText(P) + " Pa", std::move(table), notes.notes()};
}

Cell MixtureNotes::cell(const MixtureValue& value) {
    const bool isNew = std::find(reasons_.begin(), reasons_.end(), value.reason) == reasons_.end();
    if (!value.result.isComputed() && isNew) reasons_.push_back(value.reason);
    return signs_.cell(value.result);
}

std::vector<std::string> MixtureNotes::notes() const {
    std::vector<std::string> notes = signs_.notes();
    notes.insert(notes.end(), reasons_.begin(), reasons_.end());
    return notes;
}

}  // namespace velor::app
