#include "properties/pure_property.h"

#include <algorithm>
#include <array>

#include "rules/equations.h"
#include "runtime/text.h"

namespace velor {

namespace {

constexpr std::array<PureProperty, 10> kProperties{{
    {1, "ETAG", "viskozita plynu", "Pa·s"},
    {2, "CPG", "molární tepelná kapacita plynu", "J/(mol·K)"},
    {3, "ALAG", "tepelná vodivost plynu", "W/(m·K)"},
    {4, "ROLW", "hustota kapaliny", "kg/m³"},
    {5, "ETAL", "viskozita kapaliny", "Pa·s"},
    {6, "ALAL", "tepelná vodivost kapaliny", "W/(m·K)"},
    {7, "CPL", "molární tepelná kapacita kapaliny", "J/(mol·K)"},
    {8, "DHV", "molární výparné teplo", "J/mol"},
    {9, "TENS", "tenze par", "Pa"},
    {10, "SIGMA", "povrchové napětí", "N/m"},
}};

// Properties from the liquid viscosity on are evaluated just below the critical temperature when T lies above it.
bool isTakenBelowCritical(const Smes& smes, double T, int slot, const PureProperty& property) {
    constexpr int kFirstSuch = 5;
    constexpr double kLeastCriticalTemperature = 15;
    const double Tkr = smes.Tkri(slot).toDouble();
    return property.number >= kFirstSuch && Tkr > kLeastCriticalTemperature && T > Tkr;
}

Standing standingAt(const Smes& smes, double T, int slot, const PureProperty& property) {
    const bool isOutside =
        T < smes.VLRConst(slot, property.number, kTmin) || T > smes.VLRConst(slot, property.number, kTmax);
    if (isOutside && smes.MezeTeplot() > 0) return Standing::AtBound;
    if (isTakenBelowCritical(smes, T, slot, property)) return Standing::BelowCritical;
    return isOutside ? Standing::Extrapolated : Standing::InRange;
}

}  // namespace

std::span<const PureProperty> pureProperties() { return kProperties; }

const PureProperty* findPureProperty(std::string_view code) {
    const auto found = std::find_if(kProperties.begin(), kProperties.end(), [&](const PureProperty& property) {
        return equalIgnoringCase(property.code, code);
    });
    return found == kProperties.end() ? nullptr : &*found;
}

bool isGiven(const Smes& smes, int slot, int property) { return smes.VLRConst(slot, property, kPriznak) != 0; }

PropertyValue pureValue(Smes& smes, double T, int slot, const PureProperty& property) {
    if (!isGiven(smes, slot, property.number)) return {Standing::NotGiven};
    const auto type = static_cast<int>(smes.VLRConst(slot, property.number, kTyp));
    if (!isEquationType(type)) return {Standing::Failed};  // the engine would say so in a box each time
    try {
        const double value = smes.FFce(T, slot, property.number).toDouble();
        if (value == kNoValue) return {Standing::BeyondReference};
        return {standingAt(smes, T, slot, property), value};
    } catch (const RunTimeError&) {
        return {Standing::Failed};
    }
}

}  // namespace velor
