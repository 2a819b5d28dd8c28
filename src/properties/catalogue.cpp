#include <algorithm>
#include <array>

#include "object/state.h"
#include "runtime/checked.h"
#include "velor/properties.h"
#include "velor/smes.h"
#include "velor/text.h"

namespace velor {

namespace {

// ---- Pure substances ----------------------------------------------------------------------------

constexpr auto kPureProperties = std::to_array<PureProperty>({
    {kETAG, "ETAG", "viskozita plynu", "Pa·s"},
    {kCPG, "CPG", "molární tepelná kapacita plynu", "J/(mol·K)"},
    {kALAG, "ALAG", "tepelná vodivost plynu", "W/(m·K)"},
    {kROLW, "ROLW", "hustota kapaliny", "kg/m³"},
    {kETAL, "ETAL", "viskozita kapaliny", "Pa·s"},
    {kALAL, "ALAL", "tepelná vodivost kapaliny", "W/(m·K)"},
    {kCPL, "CPL", "molární tepelná kapacita kapaliny", "J/(mol·K)"},
    {kDHV, "DHV", "molární výparné teplo", "J/mol"},
    {kTENS, "TENS", "tenze par", "Pa"},
    {kSIGMA, "SIGMA", "povrchové napětí", "N/m"},
});

// ---- Mixtures -----------------------------------------------------------------------------------

using Method = MixtureProperty::Method;

template <Variant (Smes::*method)(const Variant&)>
constexpr Method ofX = [](Smes& smes, const Variant&, const Variant&, const Variant& X) { return (smes.*method)(X); };

template <Variant (Smes::*method)(const Variant&, const Variant&)>
constexpr Method ofT =
    [](Smes& smes, const Variant& T, const Variant&, const Variant& X) { return (smes.*method)(T, X); };

template <Variant (Smes::*method)(const Variant&, const Variant&)>
constexpr Method ofP =
    [](Smes& smes, const Variant&, const Variant& P, const Variant& X) { return (smes.*method)(P, X); };

template <Variant (Smes::*method)(const Variant&, const Variant&, const Variant&)>
constexpr Method ofTP =
    [](Smes& smes, const Variant& T, const Variant& P, const Variant& X) { return (smes.*method)(T, P, X); };

constexpr MixtureProperty atTemperature(MixtureProperty row, Phase phase) {
    row.needsTemperature = true;
    row.phase = phase;
    return row;
}

constexpr MixtureProperty liquid(MixtureProperty row) { return atTemperature(row, Phase::Liquid); }
constexpr MixtureProperty idealGas(MixtureProperty row) { return atTemperature(row, Phase::Gas); }

constexpr MixtureProperty integral(MixtureProperty row) {
    row.isIntegral = true;
    return liquid(row);
}

constexpr MixtureProperty gasAtPressure(MixtureProperty row) {
    row.needsPressure = true;
    return atTemperature(row, Phase::Gas);
}

constexpr MixtureProperty saturation(MixtureProperty row, MixtureProperty::Outcome outcome) {
    row.needsPressure = true;
    row.outcome = outcome;
    return row;
}

constexpr const char* kMean = "součet podle molových zlomků";
constexpr const char* kState = "Redlich a Kwong (1949)";
constexpr const char* kRaoult = "Raoult (1887), Newtonova metoda";

// clang-format off
constexpr auto kMixtureProperties = std::to_array<MixtureProperty>({
    {"VSM", "Molární hmotnost", 0, "M", "kg/mol", kMean, {}, ofX<&Smes::VSM>},
    saturation({"TBV", "Teplota bodu varu (l)", 20, "Tb", "K", kRaoult, {kTENS}, ofP<&Smes::TBV>}, &Smes::lastBubblePoint),
    saturation({"TRB", "Teplota rosného bodu (g)", 21, "Td", "K", kRaoult, {kTENS}, ofP<&Smes::TRB>}, &Smes::lastDewPoint),
    liquid({"ROLW", "Hustota (l)", 11, "ρ", "kg/m³", "mísení molárních objemů při téže Tr", {kReducedROLW}, ofT<&Smes::ROLW>}),
    liquid({"CPL", "Mol.specifické teplo Cp(l)", 12, "Cp", "J/(mol·K)", kMean, {kCPL}, ofT<&Smes::CPL>}),
    liquid({"CPLW", "Specifické teplo Cp(l)", 13, "cp", "J/(kg·K)", "CPL / VSM", {kCPL}, ofT<&Smes::CPLW>}),
    liquid({"ETAL", "Viskozita (l)", 14, "η", "Pa·s", "logaritmy kinematických viskozit", {kReducedROLW, kROLW, kETAL}, ofT<&Smes::ETAL>}),
    liquid({"ALAL", "Tepelná vodivost (l)", 15, "λ", "W/(m·K)", "Vredeveld (1973)", {kALAL}, ofT<&Smes::ALAL>}),
    liquid({"DHV", "Mol.výparné teplo (l)", 16, "ΔHv", "J/mol", "součet podle molových zlomků, T < Tkr", {kDHV}, ofT<&Smes::DHV>}),
    liquid({"DHVW", "Výparné teplo (l)", 17, "Δhv", "J/kg", "DHV / VSM", {kDHV}, ofT<&Smes::DHVW>}),
    liquid({"SIGMA", "Povrchové napětí (l)", 18, "σ", "N/m", "mísení čtvrtých odmocnin", {kReducedROLW, kROLW, kSIGMA}, ofT<&Smes::SIGMA>}),
    liquid({"TENS", "Tenze par", 19, "p°", "Pa", "Raoult (1887)", {kTENS}, ofT<&Smes::TENS>}),
    integral({"HL", "Mol.entalpie (l)", 26, "H", "J/mol", "integrál CPL od Tnbv", {kCPL}, ofT<&Smes::HL>}),
    integral({"HLW", "Entalpie (l)", 27, "h", "J/kg", "HL / VSM", {kCPL}, ofT<&Smes::HLW>}),
    integral({"SL", "Mol.entropie (l)", 0, "S", "J/(mol·K)", "integrál CPL/T od Tnbv, bez mísení", {kCPL}, ofT<&Smes::SL>}),
    integral({"SLW", "Entropie (l)", 0, "s", "J/(kg·K)", "SL / VSM", {kCPL}, ofT<&Smes::SLW>}),
    liquid({"OBJROZL", "Objemová roztažnost (l)", 0, "β", "1/K", "diference ROLW přes 3 K", {kReducedROLW}, ofT<&Smes::ObjRozL>}),
    liquid({"PRL", "Prandtlovo číslo (l)", 0, "Pr", "", "CPLW · ETAL / ALAL", {kReducedROLW, kROLW, kETAL, kALAL, kCPL}, ofT<&Smes::PrL>}),
    idealGas({"ETAG", "Viskozita (g)", 1, "η", "Pa·s", "Herning a Zipperer (1936)", {kETAG}, ofT<&Smes::ETAG>}),
    gasAtPressure({"RETAG", "Viskozita (rg)", 2, "η", "Pa·s", "ETAG, Dean a Stiel (1965)", {kETAG}, ofTP<&Smes::RETAG>}),
    idealGas({"CPG", "Mol.specifické teplo Cp(g)", 3, "Cp", "J/(mol·K)", kMean, {kCPG}, ofT<&Smes::CPG>}),
    idealGas({"CPGW", "Specifické teplo Cp(g)", 4, "cp", "J/(kg·K)", "CPG / VSM", {kCPG}, ofT<&Smes::CPGW>}),
    gasAtPressure({"RCPG", "Mol.specifické teplo Cp(rg)", 5, "Cp", "J/(mol·K)", kState, {kCPG}, ofTP<&Smes::RCPG>}),
    gasAtPressure({"RCPGW", "Specifické teplo Cp(rg)", 6, "cp", "J/(kg·K)", "RCPG / VSM", {kCPG}, ofTP<&Smes::RCPGW>}),
    idealGas({"ALAG", "Tepelná vodivost (g)", 7, "λ", "W/(m·K)", "Wassiljewa (1904), Mason a Saxena (1958)", {kALAG, kETAG}, ofT<&Smes::ALAG>}),
    gasAtPressure({"RALAG", "Tepelná vodivost (rg)", 8, "λ", "W/(m·K)", "ALAG, Stiel a Thodos (1964), upraveno", {kALAG, kETAG}, ofTP<&Smes::RALAG>}),
    gasAtPressure({"ROGW", "Hustota (g)", 9, "ρ", "kg/m³", "ideální plyn", {}, ofTP<&Smes::ROGW>}),
    gasAtPressure({"RROGW", "Hustota (rg)", 10, "ρ", "kg/m³", kState, {}, ofTP<&Smes::RROGW>}),
    gasAtPressure({"RUG", "Mol.vnitřní energie (rg)", 22, "U", "J/mol", kState, {kCPG}, ofTP<&Smes::RUG>}),
    gasAtPressure({"RUGW", "Vnitřní energie (rg)", 23, "u", "J/kg", "RUG / VSM", {kCPG}, ofTP<&Smes::RUGW>}),
    gasAtPressure({"RHG", "Mol.entalpie (rg)", 24, "H", "J/mol", kState, {kCPG}, ofTP<&Smes::RHG>}),
    gasAtPressure({"RHGW", "Entalpie (rg)", 25, "h", "J/kg", "RHG / VSM", {kCPG}, ofTP<&Smes::RHGW>}),
    gasAtPressure({"RSG", "Mol.entropie (rg)", 28, "S", "J/(mol·K)", kState, {kCPG}, ofTP<&Smes::RSG>}),
    gasAtPressure({"RSGW", "Entropie (rg)", 29, "s", "J/(kg·K)", "RSG / VSM", {kCPG}, ofTP<&Smes::RSGW>}),
    gasAtPressure({"RCVG", "Mol.spec.teplo Cv (rg)", 30, "Cv", "J/(mol·K)", kState, {kCPG}, ofTP<&Smes::RCVG>}),
    gasAtPressure({"RCVGW", "Spec.teplo Cv (rg)", 31, "cv", "J/(kg·K)", "RCVG / VSM", {kCPG}, ofTP<&Smes::RCVGW>}),
    gasAtPressure({"KAPA", "Adiabatický koeficient (rg)", 32, "κ", "", "RCPG / RCVG", {kCPG}, ofTP<&Smes::Kapa>}),
    gasAtPressure({"LNFUG", "Ln-fugacit.koef. (rg)", 33, "ln φ", "", kState, {}, ofTP<&Smes::LnFug>}),
    // Spelt so, as built.
    gasAtPressure({"JTKOEF", "Joule-Thompsnův koef. (rg)", 34, "μJT", "K/Pa", kState, {kCPG}, ofTP<&Smes::JTkoef>}),
});
// clang-format on

template <class Row>
const Row* findByCode(std::span<const Row> rows, std::string_view code) {
    const std::string wanted = upperCase(code);
    const auto found = std::ranges::find(rows, std::string_view(wanted), &Row::code);
    return found == rows.end() ? nullptr : &*found;
}

}  // namespace

std::span<const PureProperty> pureProperties() { return kPureProperties; }

const PureProperty* findPureProperty(std::string_view code) { return findByCode(pureProperties(), code); }

std::string_view equationInstead(int substance, int property) {
    return substance == kWater && property == kROLW ? "IAPWS, nasycená kapalina (Wagner a Pruss, 1993)" : "";
}

std::string_view correlationNote(int substance, int property) {
    if (equationInstead(substance, property).empty()) return {};
    return "Hustota vody (ROLW) se počítá rovnicí IAPWS pro nasycenou kapalinu, ne uvedeným vztahem.";
}

std::span<const MixtureProperty> mixtureProperties() { return kMixtureProperties; }

const MixtureProperty* findMixtureProperty(std::string_view code) { return findByCode(mixtureProperties(), code); }

std::vector<std::string_view> nearCodes(std::string_view wanted) {
    const std::string folding = folded(wanted);
    const std::size_t slips = std::min<std::size_t>(folding.size() / 3, 2);
    std::vector<std::string_view> codes;
    for (const MixtureProperty& property : kMixtureProperties)
        if (editDistance(folding, property.code) <= slips) codes.push_back(property.code);
    return codes;
}

void Smes::inivlast() { state_->settings.captionsAreFilled = true; }

std::string Smes::PopisVlastnosti(int i) const {
    const auto found =
        i > 0 ? std::ranges::find(kMixtureProperties, i, &MixtureProperty::captionNumber) : kMixtureProperties.end();
    if (found == kMixtureProperties.end()) checked::raise(RunTimeError::kSubscript);
    return state_->settings.captionsAreFilled ? std::string(found->caption) : std::string();
}

}  // namespace velor
