#include "substances/correlation_view.h"
#include "substances/substances.h"
#include "velor/constants.h"

namespace velor::app {

namespace {

Value known(float constant) {
    if (constant == kNoConstant) return {};
    return constant;
}

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

}  // namespace

Report answer(const SubstanceRequest& request, const Database& database, UserInterface& userInterface) {
    const Substance& substance = findSubstance(database.substances, request.substance);
    Smes smes(userInterface);
    loadInto(smes, database, {&substance, 1});
    return {{identitySection(substance), constantsSection(smes, 1), correlationsSection(smes, substance, 1)}, {}};
}

Report answer(const TourRequest& request, const Database& database, UserInterface& userInterface) {
    const Substance& substance = findSubstance(database.substances, request.substance);
    Smes smes(userInterface);
    loadInto(smes, database, {&substance, 1});
    return {
        {identitySection(substance), constantsSection(smes, 1), valuesSection(smes, request.temperature, substance, 1)},
        {}};
}

}  // namespace velor::app
