#include "mixture_property.h"

#include <algorithm>
#include <array>

#include "failure.h"
#include "runtime/folding.h"
#include "runtime/text.h"

namespace velor::app {

namespace {

constexpr unsigned bit(int number) { return 1U << number; }
constexpr unsigned kReducedDensity = bit(0);
constexpr unsigned kETAG = bit(1), kCPG = bit(2), kALAG = bit(3), kROLW = bit(4), kETAL = bit(5), kALAL = bit(6),
                   kCPL = bit(7), kDHV = bit(8), kTENS = bit(9), kSIGMA = bit(10);

constexpr const char* kMean = "součet podle molových zlomků";
constexpr const char* kState = "Redlich a Kwong (1949)";

constexpr MixtureProperty liquid(std::string_view name, int caption, std::string_view symbol, std::string_view unit,
                                 std::string_view rule, unsigned correlations) {
    return {name, "", caption, symbol, unit, rule, true, false, Phase::Liquid, correlations};
}

constexpr MixtureProperty liquid(std::string_view name, std::string_view caption, std::string_view symbol,
                                 std::string_view unit, std::string_view rule, unsigned correlations) {
    return {name, caption, 0, symbol, unit, rule, true, false, Phase::Liquid, correlations};
}

constexpr MixtureProperty idealGas(std::string_view name, int caption, std::string_view symbol, std::string_view unit,
                                   std::string_view rule, unsigned correlations) {
    return {name, "", caption, symbol, unit, rule, true, false, Phase::Gas, correlations};
}

constexpr MixtureProperty atPressure(std::string_view name, int caption, std::string_view symbol, std::string_view unit,
                                     std::string_view rule, unsigned correlations) {
    return {name, "", caption, symbol, unit, rule, true, true, Phase::Gas, correlations};
}

constexpr MixtureProperty saturation(std::string_view name, int caption, std::string_view symbol) {
    return {name, "", caption, symbol, "K", "Raoult (1887), Newtonova metoda", false, true, Phase::Any, kTENS};
}

constexpr MixtureProperty calledDirectly(MixtureProperty property,
                                         Variant (Smes::*method)(const Variant&, const Variant&)) {
    property.direct = method;
    return property;
}

constexpr std::array<MixtureProperty, 39> kProperties{{
    {"VSM", "Molární hmotnost", 0, "M", "kg/mol", kMean, false, false, Phase::Any, 0},
    saturation("TBV", 20, "Tb"),
    saturation("TRB", 21, "Td"),
    liquid("ROLW", 11, "ρ", "kg/m³", "mísení molárních objemů při téže Tr", kReducedDensity),
    liquid("CPL", 12, "Cp", "J/(mol·K)", kMean, kCPL),
    liquid("CPLW", 13, "cp", "J/(kg·K)", "CPL / VSM", kCPL),
    liquid("ETAL", 14, "η", "Pa·s", "logaritmy kinematických viskozit", kReducedDensity | kROLW | kETAL),
    liquid("ALAL", 15, "λ", "W/(m·K)", "Vredeveld (1973)", kALAL),
    liquid("DHV", 16, "ΔHv", "J/mol", "součet podle molových zlomků, T < Tkr", kDHV),
    liquid("DHVW", 17, "Δhv", "J/kg", "DHV / VSM", kDHV),
    liquid("SIGMA", 18, "σ", "N/m", "mísení čtvrtých odmocnin", kReducedDensity | kROLW | kSIGMA),
    liquid("TENS", 19, "p°", "Pa", "Raoult (1887)", kTENS),
    calledDirectly(liquid("HL", 26, "H", "J/mol", "integrál CPL od Tnbv", kCPL), &Smes::HL),
    calledDirectly(liquid("HLW", 27, "h", "J/kg", "HL / VSM", kCPL), &Smes::HLW),
    calledDirectly(liquid("SL", "Mol.entropie (l)", "S", "J/(mol·K)", "integrál CPL/T od Tnbv, bez mísení", kCPL),
                   &Smes::SL),
    calledDirectly(liquid("SLW", "Entropie (l)", "s", "J/(kg·K)", "SL / VSM", kCPL), &Smes::SLW),
    liquid("OBJROZL", "Objemová roztažnost (l)", "β", "1/K", "diference ROLW přes 3 K", kReducedDensity),
    liquid("PRL", "Prandtlovo číslo (l)", "Pr", "", "CPLW · ETAL / ALAL",
           kReducedDensity | kROLW | kETAL | kALAL | kCPL),
    idealGas("ETAG", 1, "η", "Pa·s", "Herning a Zipperer (1936)", kETAG),
    atPressure("RETAG", 2, "η", "Pa·s", "ETAG, Dean a Stiel (1965)", kETAG),
    idealGas("CPG", 3, "Cp", "J/(mol·K)", kMean, kCPG),
    idealGas("CPGW", 4, "cp", "J/(kg·K)", "CPG / VSM", kCPG),
    atPressure("RCPG", 5, "Cp", "J/(mol·K)", kState, kCPG),
    atPressure("RCPGW", 6, "cp", "J/(kg·K)", "RCPG / VSM", kCPG),
    idealGas("ALAG", 7, "λ", "W/(m·K)", "Wassiljewa (1904), Mason a Saxena (1958)", kALAG | kETAG),
    atPressure("RALAG", 8, "λ", "W/(m·K)", "ALAG, Stiel a Thodos (1964), upraveno", kALAG | kETAG),
    atPressure("ROGW", 9, "ρ", "kg/m³", "ideální plyn", 0),
    atPressure("RROGW", 10, "ρ", "kg/m³", kState, 0),
    atPressure("RUG", 22, "U", "J/mol", kState, kCPG),
    atPressure("RUGW", 23, "u", "J/kg", "RUG / VSM", kCPG),
    atPressure("RHG", 24, "H", "J/mol", kState, kCPG),
    atPressure("RHGW", 25, "h", "J/kg", "RHG / VSM", kCPG),
    atPressure("RSG", 28, "S", "J/(mol·K)", kState, kCPG),
    atPressure("RSGW", 29, "s", "J/(kg·K)", "RSG / VSM", kCPG),
    atPressure("RCVG", 30, "Cv", "J/(mol·K)", kState, kCPG),
    atPressure("RCVGW", 31, "cv", "J/(kg·K)", "RCVG / VSM", kCPG),
    atPressure("KAPA", 32, "κ", "", "RCPG / RCVG", kCPG),
    atPressure("LNFUG", 33, "ln φ", "", kState, 0),
    atPressure("JTKOEF", 34, "μJT", "K/Pa", kState, kCPG),
}};

std::string nearNames(std::string_view wanted) {
    const std::string folding = folded(wanted);
    const std::size_t slips = std::clamp<std::size_t>(folding.size() / 3, 0, 2);
    std::string names;
    for (const MixtureProperty& property : kProperties) {
        const bool isNear = editDistance(folding, property.name) <= slips;
        if (isNear) names.append(names.empty() ? "" : ", ").append(property.name);
    }
    return names;
}

}  // namespace

std::span<const MixtureProperty> mixtureProperties() { return kProperties; }

const MixtureProperty& findMixtureProperty(std::string_view name) {
    for (const MixtureProperty& property : kProperties)
        if (equalIgnoringCase(property.name, trimBlanks(name))) return property;
    std::string text = "Neznámá vlastnost „" + std::string(name) + "“.";
    if (const std::string near = nearNames(name); !near.empty()) text += " Podobné zkratky: " + near + ".";
    throw Failure(ExitCode::WrongUse, text + "\nVšechny vypíše velor vlastnost --seznam");
}

std::string captionOf(const Smes& smes, const MixtureProperty& property) {
    return property.libraryCaption > 0 ? smes.PopisVlastnosti(property.libraryCaption) : std::string(property.caption);
}

bool usesCorrelation(const MixtureProperty& property, int number) { return (property.correlations & bit(number)) != 0; }

bool usesReducedDensity(const MixtureProperty& property) { return (property.correlations & kReducedDensity) != 0; }

std::string neededArguments(const MixtureProperty& property) {
    if (property.needsTemperature) return property.needsPressure ? "T, P" : "T";
    return property.needsPressure ? "P" : "";
}

}  // namespace velor::app
