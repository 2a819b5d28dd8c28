#include "pure_property.h"

#include <array>
#include <string>

#include "correlations/equations.h"
#include "failure.h"
#include "runtime/text.h"

namespace velor::app {

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

const PureProperty& findPureProperty(std::string_view code) {
    for (const PureProperty& property : kProperties)
        if (equalIgnoringCase(property.code, trimBlanks(code))) return property;
    std::string text = "Neznámá vlastnost „" + std::string(code) + "“. Vlastnosti látek jsou:";
    for (const PureProperty& property : kProperties)
        text.append("\n  ").append(property.code).append("  ").append(property.caption);
    throw Failure(ExitCode::WrongUse, text);
}

bool isGiven(const Smes& smes, int slot, int property) { return smes.VLRConst(slot, property, kPriznak) != 0; }

PureValue pureValue(Smes& smes, double T, int slot, const PureProperty& property) {
    if (!isGiven(smes, slot, property.number)) return {Standing::NotGiven};
    try {
        const double value = smes.FFce(T, slot, property.number).toDouble();
        if (value == kNoValue) return {Standing::BeyondReference};
        return {standingAt(smes, T, slot, property), value};
    } catch (const RunTimeError&) {
        return {Standing::Failed};
    }
}

std::string_view standingWord(Standing standing) {
    switch (standing) {
        case Standing::InRange:
            return "v rozsahu";
        case Standing::Extrapolated:
            return "extrapolováno";
        case Standing::AtBound:
            return "na mezi";
        case Standing::BelowCritical:
            return "0.98 Tkr";
        case Standing::NotGiven:
            return "nedáno";
        case Standing::BeyondReference:
            return "bez hodnoty";
        case Standing::Failed:
            break;
    }
    return "chyba";
}

std::string_view standingMark(Standing standing) {
    switch (standing) {
        case Standing::Extrapolated:
            return "*";
        case Standing::AtBound:
            return "=";
        case Standing::BelowCritical:
            return "k";
        case Standing::NotGiven:
            return "n";
        case Standing::BeyondReference:
            return "r";
        case Standing::Failed:
            return "!";
        case Standing::InRange:
            break;
    }
    return "";
}

std::string_view standingNote(Standing standing) {
    switch (standing) {
        case Standing::Extrapolated:
            return "Teplota je mimo rozsah platnosti korelace, hodnota je extrapolovaná.";
        case Standing::AtBound:
            return "Teplota je mimo rozsah platnosti korelace, hodnota platí pro jeho nejbližší mez.";
        case Standing::BelowCritical:
            return "Teplota je nad kritickou, hodnota je vypočtena při 0.98 Tkr.";
        case Standing::NotGiven:
            return "Vlastnost není pro látku v bázi dána.";
        case Standing::BeyondReference:
            return "Rovnice nemá při této teplotě hodnotu (nad vztažnou teplotou).";
        case Standing::Failed:
            return "Při výpočtu nastala chyba, rovnice nemá při této teplotě hodnotu.";
        case Standing::InRange:
            break;
    }
    return "";
}

}  // namespace velor::app
