#include "substances/views.h"

#include "velor/constants.h"
#include "velor/text.h"

namespace velor::app {

namespace {

Value known(float constant) {
    if (constant == kNoConstant) return {};
    return constant;
}

using Row = std::vector<Cell>;

constexpr int kCoefficients = 6;

// The columns and cells that tell where a correlation holds and what it looks like.
const std::vector<Column> kEquationColumns{
    {"Tmin", "Tmin", "K"}, {"Tmax", "Tmax", "K"}, {"typ", "typ", ""}, {"vztah", "vztah", ""}};

void append(Row& row, const Row& cells) { row.insert(row.end(), cells.begin(), cells.end()); }

Row equationCells(const Smes& smes, int slot, int property) {
    if (!isGiven(smes, slot, property)) return Row(kEquationColumns.size());
    const auto item = [&](int j) { return static_cast<int>(smes.VLRConst(slot, property, j)); };
    const std::string equation = Smes::Vztah(item(kTyp));
    return {{item(kTmin), {}}, {item(kTmax), {}}, {item(kTyp), {}}, textCell(trimBlanks(equation))};
}

// Of the equation that the value is computed by.
Row usedEquationCells(const Smes& smes, int substance, int slot, int property) {
    Row cells = equationCells(smes, slot, property);
    const std::string_view instead = equationInstead(substance, property);
    if (!instead.empty()) cells = {cells[0], cells[1], {}, textCell(instead)};
    return cells;
}

Row coefficientCells(const Smes& smes, int slot, int property) {
    Row cells(kCoefficients);
    if (!isGiven(smes, slot, property)) return cells;
    for (int j = 1; j <= kCoefficients; ++j)
        cells[static_cast<std::size_t>(j - 1)].value = smes.VLRConst(slot, property, j);
    return cells;
}

std::vector<Column> columns(std::vector<Column> first, const std::vector<Column>& then) {
    first.insert(first.end(), then.begin(), then.end());
    return first;
}

std::vector<Column> propertyColumns() { return {{"vlastnost", "zkratka", ""}, {"popis", "vlastnost", ""}}; }

Row propertyCells(const PureProperty& property) {
    return {{std::string(property.code), {}}, {std::string(property.caption), {}}};
}

// Where a correlation comes from; nothing where the supplement does not tell.
const std::vector<Column> kProvenanceColumns{
    {"zdroj", "zdroj", ""}, {"odchylka", "odchylka", "%"}, {"odhad", "odhad", ""}};

Row provenanceCells(const Smes& smes, const Substance& substance, int property) {
    const auto told = smes.supplement().provenance(substance.cas, property);
    if (!told) return Row(kProvenanceColumns.size());
    return {textCell(told->source),
            {told->deviation ? Value(*told->deviation) : Value(), {}},
            textCell(told->isEstimate ? "odhad" : "")};
}

std::vector<std::string> correlationNotes(const Smes& smes, const Substance& substance) {
    std::vector<std::string> notes;
    for (const std::string_view note : {correlationNote(substance.number, kROLW), smes.supplement().note()})
        if (!note.empty()) notes.emplace_back(note);
    return notes;
}

}  // namespace

Section identitySection(const Substance& substance) {
    return {"latka",
            substance.name,
            Entries{{"cislo", "číslo látky", substance.number, {}},
                    {"nazev", "název", substance.name, {}},
                    {"synonym", "další název", substance.synonym, {}},
                    {"vzorec", "vzorec", substance.formula, {}},
                    {"CAS", "registrační číslo CAS", substance.cas, {}}},
            {}};
}

Section constantsSection(const Smes& smes, int slot) {
    Entries entries;
    int k = 0;
    for (const ConstantDescription& constant : kConstantTable) {
        entries.push_back({std::string(constant.key), std::string(constant.caption), known(smes.Bod(slot, ++k)),
                           std::string(constant.unit)});
    }
    return {"konstanty", "Konstanty", std::move(entries), {}};
}

Section correlationsSection(const Smes& smes, const Substance& substance, int slot) {
    Table table;
    table.columns = columns(propertyColumns(), {{"jednotka", "jednotka", ""}});
    table.columns = columns(table.columns, kEquationColumns);
    for (int j = 1; j <= kCoefficients; ++j) {
        const std::string name = "A" + std::to_string(j);
        table.columns.push_back({name, name, ""});
    }
    table.columns = columns(table.columns, kProvenanceColumns);
    for (const PureProperty& property : pureProperties()) {
        Row row = propertyCells(property);
        row.push_back(textCell(property.unit));
        append(row, equationCells(smes, slot, property.number));
        append(row, coefficientCells(smes, slot, property.number));
        append(row, provenanceCells(smes, substance, property.number));
        table.rows.push_back(std::move(row));
    }
    return {"korelace", "Korelace", std::move(table), correlationNotes(smes, substance)};
}

Section valuesSection(Smes& smes, double T, const Substance& substance, int slot) {
    Table table;
    table.columns = columns(
        propertyColumns(),
        {{"hodnota", "hodnota", ""}, {"jednotka", "jednotka", ""}, {"stav", "stav", "", Column::Audience::Machines}});
    table.columns = columns(table.columns, kEquationColumns);
    StandingNotes notes;
    for (const PureProperty& property : pureProperties()) {
        const PropertyValue value = pureValue(smes, T, slot, property);
        Row row = propertyCells(property);
        append(row, {notes.cell(value), textCell(property.unit), textCell(standingWord(value.standing))});
        append(row, usedEquationCells(smes, substance.number, slot, property.number));
        table.rows.push_back(std::move(row));
    }
    return {"vlastnosti", "Vlastnosti při " + roundedText(T) + " K", std::move(table), notes.notes()};
}

Section rangesSection(const Smes& smes, const SubstanceList& substances, int property) {
    Table table;
    table.columns = columns({{"cislo", "č.", ""}, {"nazev", "látka", ""}, {"vzorec", "vzorec", ""}}, kEquationColumns);
    int slot = 0;
    for (const Substance& substance : substances) {
        Row row{{substance.number, {}}, textCell(substance.name), textCell(substance.formula)};
        append(row, usedEquationCells(smes, substance.number, ++slot, property));
        table.rows.push_back(std::move(row));
    }
    return {"latky", "Látky", std::move(table), {}};
}

}  // namespace velor::app
