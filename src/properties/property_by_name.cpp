// A mixture property chosen by its short name at run time.
#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "object/messages.h"
#include "object/state.h"
#include "runtime/text.h"
#include "velor/smes.h"

namespace velor {

namespace {

constexpr double kNothing = -9999.0;
constexpr double kLeastPressure = 1e-06;

struct Arguments {
    const Variant& X;
    const Variant& T;
    const Variant& P;
};

struct NamedProperty {
    std::string_view name;
    Variant (*call)(Smes&, const Arguments&);
};

template <Variant (Smes::*Method)(const Variant&, const Variant&)>
Variant atTemperature(Smes& smes, const Arguments& a) {
    return (smes.*Method)(a.T, a.X);
}

template <Variant (Smes::*Method)(const Variant&, const Variant&, const Variant&)>
Variant atPressure(Smes& smes, const Arguments& a) {
    return (smes.*Method)(a.T, a.P, a.X);
}

template <Variant (Smes::*Method)(const Variant&, const Variant&)>
Variant saturation(Smes& smes, const Arguments& a) {
    return (smes.*Method)(a.P, a.X);
}

constexpr std::array<NamedProperty, 20> kByTemperature{{
    {"ROLW", atTemperature<&Smes::ROLW>}, {"ETAL", atTemperature<&Smes::ETAL>},
    {"ETAG", atTemperature<&Smes::ETAG>}, {"ALAL", atTemperature<&Smes::ALAL>},
    {"ALAG", atTemperature<&Smes::ALAG>}, {"CPL", atTemperature<&Smes::CPL>},
    {"CPLW", atTemperature<&Smes::CPLW>}, {"CPG", atTemperature<&Smes::CPG>},
    {"CPGW", atTemperature<&Smes::CPGW>}, {"SIGMA", atTemperature<&Smes::SIGMA>},
    {"DHV", atTemperature<&Smes::DHV>},   {"DHVW", atTemperature<&Smes::DHVW>},
    {"SL", atTemperature<&Smes::SL>},     {"SLW", atTemperature<&Smes::SLW>},
    {"HL", atTemperature<&Smes::HL>},     {"HLW", atTemperature<&Smes::HLW>},
    {"TENS", atTemperature<&Smes::TENS>}, {"OBJROZL", atTemperature<&Smes::ObjRozL>},
    {"PRL", atTemperature<&Smes::PrL>},   {"VSM", [](Smes& smes, const Arguments& a) { return smes.VSM(a.X); }},
}};

constexpr std::array<NamedProperty, 19> kByPressure{{
    {"ROGW", atPressure<&Smes::ROGW>},   {"RROGW", atPressure<&Smes::RROGW>},   {"RCPG", atPressure<&Smes::RCPG>},
    {"RCPGW", atPressure<&Smes::RCPGW>}, {"RCVG", atPressure<&Smes::RCVG>},     {"RCVGW", atPressure<&Smes::RCVGW>},
    {"RALAG", atPressure<&Smes::RALAG>}, {"RETAG", atPressure<&Smes::RETAG>},   {"RHG", atPressure<&Smes::RHG>},
    {"RHGW", atPressure<&Smes::RHGW>},   {"RSG", atPressure<&Smes::RSG>},       {"RSGW", atPressure<&Smes::RSGW>},
    {"RUG", atPressure<&Smes::RUG>},     {"RUGW", atPressure<&Smes::RUGW>},     {"LNFUG", atPressure<&Smes::LnFug>},
    {"KAPA", atPressure<&Smes::Kapa>},   {"JTKOEF", atPressure<&Smes::JTkoef>}, {"TBV", saturation<&Smes::TBV>},
    {"TRB", saturation<&Smes::TRB>},
}};

const NamedProperty* find(std::span<const NamedProperty> list, std::string_view name) {
    const auto found = std::find_if(list.begin(), list.end(), [&](const auto& entry) { return entry.name == name; });
    return found == list.end() ? nullptr : &*found;
}

bool isAboveNothing(const Variant& value) { return value.isEmpty() || value.toDouble() > kNothing; }

}  // namespace

Variant Smes::Vlastnost(const std::string& Name, const Variant& X, const Variant& T, const Variant& P) {
    State& state = *state_;
    const std::string name = upperCase(Name);
    const Arguments arguments{X, T, P};
    // One statement under the trap, which resumes behind it; false when it failed.
    const auto attempt = [&](const auto& statement) {
        try {
            statement();
            return true;
        } catch (const RunTimeError& error) {
            if (error.number() == RunTimeError::kTypeMismatch) {
                show(state.messages,
                     "Špatně zadané parametry fce Vlastnost, (tlak)" + std::string(kLineBreak) +
                         "nebo neznámá vlastnost: " + Name,
                     Icon::Critical, "VELOR fce Vlastnost");
            } else if (state.messages.ChyboveHlasky == -1) {
                raiseToHost("VELOR - Vlastnost", "Chyba při výpočtu vlastnosti " + name);
            }
            return false;
        }
    };

    Variant result = kNothing;
    if (const NamedProperty* property = find(kByTemperature, name))
        attempt([&] { result = property->call(*this, arguments); });
    if (isAboveNothing(result)) return result;

    bool refused = false;
    attempt([&] {
        // Only a magnitude near 0 is refused, whatever the message says of negative ones; and a spent budget lets
        // even 0 pass. Both are kept.
        refused = std::abs(P.toDouble()) < kLeastPressure && state.messages.PocHlasek < state.messages.MaxErrHlas;
        if (refused)
            showCounted(state.messages, "Zadaný tlak je nulový nebo záporný!", Icon::Critical, "VELOR - fce Vlastnost");
    });
    if (refused) return kNothing;

    if (const NamedProperty* property = find(kByPressure, name)) {
        result = kNothing;
        attempt([&] { result = property->call(*this, arguments); });
        return result;
    }
    show(state.messages, "Neznámá nebo chybná vlastnost!: " + Name, Icon::Critical, "VELOR fce Vlastnost");
    return kNothing;
}

}  // namespace velor
