#include "commands.h"
#include "mixture_property.h"
#include "mixture_view.h"

namespace velor::app {

Report propertyList() {
    MessageLog log;
    Smes smes(log);
    smes.inivlast();
    Table table;
    table.columns = {{"zkratka", "zkratka", ""},   {"popis", "vlastnost", ""}, {"symbol", "symbol", ""},
                     {"jednotka", "jednotka", ""}, {"zadat", "zadat", ""},     {"pravidlo", "pravidlo", ""}};
    for (const MixtureProperty& property : mixtureProperties()) {
        table.rows.push_back({textCell(property.name), textCell(captionOf(smes, property)), textCell(property.symbol),
                              textCell(property.unit), textCell(neededArguments(property)), textCell(property.rule)});
    }
    return {{{"vlastnosti",
              "Vlastnosti směsí",
              std::move(table),
              {"(l) kapalina, (g) ideální plyn, (rg) reálný plyn; ke každé vlastnosti patří složení.",
               "T teplota v kelvinech (-T), P tlak v pascalech (-P)."}}},
            "vlastnosti"};
}

}  // namespace velor::app
