// What a dialog has changed of the substances' data for one mixture.
#include <cmath>

#include "mixtures/mixture.h"
#include "velor/constants.h"
#include "velor/text.h"

namespace velor::app {

namespace {

Value shown(float number) {
    if (number == kNoConstant) return {};
    if (!std::isfinite(number)) return std::string("poškozeno");
    return number;
}

void appendCorrelation(Entries& data, const PureProperty& property, const TKorelace& block) {
    const auto add = [&](const std::string& name, Value value, const char* unit) {
        const std::string code(property.code);
        data.push_back({code + "." + name, code + ", " + name, block.Priznak == 0 ? Value() : std::move(value), unit});
    };
    add("typ", static_cast<int>(block.Typ), "");
    int j = 0;
    for (const float A : block.A) add("A" + std::to_string(++j), shown(A), "");
    add("Tmin", static_cast<int>(block.Tmin), "K");
    add("Tmax", static_cast<int>(block.Tmax), "K");
}

// All that a record says of its substance.
Entries dataOf(const Substance& substance, const TLatka& record) {
    Entries data{{"nazev", "název", substance.name, ""},
                 {"synonym", "další název", substance.synonym, ""},
                 {"vzorec", "vzorec", substance.formula, ""},
                 {"CAS", "registrační číslo CAS", substance.cas, ""}};
    for (const ConstantDescription& constant : kConstantTable)
        data.push_back({std::string(constant.key), std::string(constant.caption), shown(record.*constant.member),
                        std::string(constant.unit)});
    for (const PureProperty& property : pureProperties())
        appendCorrelation(data, property, record.Korelace[static_cast<std::size_t>(property.number) - 1]);
    return data;
}

void appendChanges(Table& table, int slot, const Entries& before, const Entries& after) {
    const std::string& name = std::get<std::string>(before.front().value);
    for (std::size_t i = 0; i < before.size(); ++i) {
        if (before[i].value == after[i].value) continue;
        table.rows.push_back({textCell(std::to_string(slot) + "." + before[i].key),
                              textCell(name),
                              textCell(before[i].caption),
                              {before[i].value, {}},
                              {after[i].value, {}},
                              textCell(*before[i].unit)});
    }
}

}  // namespace

std::vector<Section> changeSections(const Mixture& mixture) {
    if (mixture.components.empty()) return {};
    RecordingUserInterface silence;
    Smes smes(silence);
    loadInto(smes, mixture.database, mixture.substances);
    Table table;
    table.columns = {{"udaj", "údaj", "", Column::Audience::Machines},
                     {"latka", "látka", ""},
                     {"popis", "údaj", ""},
                     {"v_databazi", "v databázi", ""},
                     {"nyni", "nyní", ""},
                     {"jednotka", "jednotka", ""}};
    int slot = 0;
    for (const TLatka& component : mixture.components) {
        const Substance& now = mixture.substances[static_cast<std::size_t>(slot++)];
        const TLatka& original = smes.record(slot);
        appendChanges(table, slot, dataOf(substanceOf(now.number, original), original), dataOf(now, component));
    }
    if (table.rows.empty()) return {};
    return {{"zmeny", "Údaje změněné jen pro tuto směs", std::move(table), {}}};
}

}  // namespace velor::app
