#include "flash_view.h"

namespace velor::app {

namespace {

std::string outcomeWord(FlashOutcome outcome) {
    switch (outcome) {
        case FlashOutcome::AllVapour:
            return "vše odpařeno";
        case FlashOutcome::AllLiquid:
            return "vše kapalné";
        case FlashOutcome::Converged:
            return "dvě fáze";
        case FlashOutcome::NotConverged:
            return "nekonverguje";
        case FlashOutcome::None:
            break;
    }
    return "nevypočteno";
}

bool isAdiabatic(const FlashAnswer& flash) { return flash.text.starts_with("FLASH výpočet adiabatický"); }

Value known(bool isKnown, double value) {
    if (!isKnown) return {};
    return value;
}

Section resultSection(const FlashAnswer& flash) {
    const FlashRecord& record = flash.record;
    const bool isIterated = record.outcome == FlashOutcome::Converged;
    const bool isBalanced = isIterated && isAdiabatic(flash);
    return {"flash", "Flash",
            Entries{{"druh", "druh", std::string(isAdiabatic(flash) ? "adiabatický" : "izotermní"), {}},
                    {"vysledek", "výsledek", outcomeWord(record.outcome), {}},
                    {"V", "podíl páry k nástřiku", record.vapourFraction, "mol/mol"},
                    {"T0", "počáteční teplota", known(flash.T0.has_value(), flash.T0.value_or(0)), "K"},
                    {"T", "konečná teplota", record.temperature, "K"},
                    {"P", "tlak", flash.P, "Pa"},
                    {"Tb", "bod varu nástřiku", known(flash.hasBubblePoint, record.bubblePoint), "K"},
                    {"Td", "rosný bod nástřiku", known(flash.hasDewPoint, record.dewPoint), "K"},
                    {"pruchody", "počet průchodů", record.passes, {}},
                    {"latkova_bilance", "zbytek látkové bilance", known(isIterated, record.materialResidual), ""},
                    {"tepelna_bilance", "zbytek tepelné bilance", known(isBalanced, record.energyResidual), "J/mol"}},
            flash.notes};
}

Section componentsSection(const FlashRecord& record, const SubstanceList& substances) {
    Table table;
    table.columns = {{"cislo", "č.", ""},   {"nazev", "látka", ""}, {"z", "nástřik", ""},
                     {"x", "kapalina", ""}, {"y", "pára", ""},      {"K", "K", ""}};
    for (std::size_t i = 0; i < substances.size(); ++i) {
        const bool isIterated = !record.equilibrium.empty();
        table.rows.push_back({{substances[i].number, {}},
                              textCell(substances[i].name),
                              {record.feed[i], {}},
                              {record.liquid[i], {}},
                              {record.vapour[i], {}},
                              {known(isIterated, isIterated ? record.equilibrium[i] : 0), {}}});
    }
    return {"slozky", "Složky", std::move(table), {}};
}

// Lines as a terminal wants them, ended by LF, and one line break at the end.
std::string textOf(const FlashAnswer& flash) {
    std::string text;
    for (const char c : flash.text)
        if (c != '\r') text += c;
    text.erase(text.find_last_not_of('\n') + 1);
    text += '\n';
    if (!flash.notes.empty()) text += '\n';
    for (const std::string& note : flash.notes) text += note + "\n";
    return text;
}

}  // namespace

Report reportOf(const FlashAnswer& flash, const SubstanceList& substances) {
    return {{resultSection(flash), componentsSection(flash.record, substances)}, {}, textOf(flash)};
}

}  // namespace velor::app
