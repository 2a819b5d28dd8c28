#include "substance_view.h"

#include "records/constant_table.h"

namespace velor::app {

namespace {

Value known(float constant) {
    if (constant == kNoConstant) return {};
    return constant;
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

}  // namespace velor::app
