#include "substance_view.h"

#include <array>
#include <string_view>

namespace velor::app {

namespace {

constexpr float kNoConstant = -9999;

struct Constant {
    std::string_view key;
    std::string_view caption;
    std::string_view unit;
    float (*read)(const Smes& smes, int slot);
};

template <Variant (Smes::*accessor)(int) const>
float single(const Smes& smes, int slot) {
    return (smes.*accessor)(slot).toSingle();
}

float dipoleMoment(const Smes& smes, int slot) { return smes.Dipolm(slot); }

constexpr std::array<Constant, 15> kConstants{{
    {"Mv", "molární hmotnost", "kg/mol", single<&Smes::Mvi>},
    {"Tkr", "kritická teplota", "K", single<&Smes::Tkri>},
    {"Pkr", "kritický tlak", "Pa", single<&Smes::Pkri>},
    {"Vkr", "kritický molární objem", "m³/mol", single<&Smes::Vkri>},
    {"Acent", "acentrický faktor", "", single<&Smes::Acenti>},
    {"Gyr", "gyrační poloměr", "m", single<&Smes::Gyr>},
    {"Nlomu", "index lomu", "", single<&Smes::Nlomui>},
    {"TNlomu", "teplota indexu lomu", "K", single<&Smes::TNlomui>},
    {"Dipol", "dipólový moment", "D", dipoleMoment},
    {"TDipol", "teplota dipólového momentu", "K", single<&Smes::TDipolm>},
    {"Permit", "relativní permitivita", "", single<&Smes::Permiti>},
    {"TPermit", "teplota permitivity", "K", single<&Smes::TPermiti>},
    {"Htani", "molární teplo tání", "J/mol", single<&Smes::Htani>},
    {"Ttani", "teplota tání", "K", single<&Smes::Ttani>},
    {"Tnbv", "normální teplota varu", "K", single<&Smes::Tnbvi>},
}};

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
    for (const Constant& constant : kConstants) {
        entries.push_back({std::string(constant.key), std::string(constant.caption), known(constant.read(smes, slot)),
                           std::string(constant.unit)});
    }
    return {"konstanty", "Konstanty", std::move(entries), {}};
}

}  // namespace velor::app
