#include "mixtures/mixture.h"

namespace velor::app {

namespace {

// Why there is no value, or what of the substances it has to be read with care for; a Czech sentence.
std::string reasonOf(const MixtureVerdict& verdict, const MixtureProperty& property, const Mixture& mixture,
                     const MessageLog& log) {
    const Standing standing = verdict.result.standing;
    if (verdict.property) {
        const Substance& substance = mixture.substances[static_cast<std::size_t>(verdict.slot - 1)];
        return (substance.name + ", ").append(verdict.property->code).append(": ").append(standingNote(standing));
    }
    if (standing == Standing::Diverged)
        return property.code == "TBV" ? "Výpočet bodu varu nekonverguje." : "Výpočet rosného bodu nekonverguje.";
    if (standing != Standing::Failed) return {};
    const std::string said = log.firstText();
    if (!said.empty()) return said;
    if (verdict.error) return "Výpočet selhal: " + describe(*verdict.error) + ".";
    return std::string(standingNote(standing));
}

// The library holds the temperature below the critical ones of all components, even of those that are not there.
Mixture withoutAbsent(const Mixture& mixture) {
    Mixture present{mixture.database, {}, {}, mixture.clamp};
    for (std::size_t i = 0; i < mixture.substances.size(); ++i) {
        if (mixture.moleFractions[i] == 0) continue;
        present.substances.push_back(mixture.substances[i]);
        present.moleFractions.push_back(mixture.moleFractions[i]);
        if (!mixture.components.empty()) present.components.push_back(mixture.components[i]);
    }
    return present;
}

}  // namespace

MixtureValue worstPureValue(const Mixture& mixture, MixtureObject& object, const MixtureProperty& property, double T) {
    const MixtureVerdict worst = velor::worstPureValue(object.smes, property, T, Fractions(mixture.moleFractions));
    return {worst.result, reasonOf(worst, property, mixture, object.log)};
}

MixtureValue mixtureValue(const Mixture& whole, const MixtureProperty& property, const Point& point) {
    const Mixture mixture = property.outcome ? withoutAbsent(whole) : whole;
    MixtureObject object(mixture);
    const MixtureVerdict verdict = velor::mixtureValue(object.smes, property, point.T, point.P, object.X);
    return {verdict.result, reasonOf(verdict, property, mixture, object.log)};
}

BoilingRange boilingRange(const Mixture& mixture, double P) {
    const Point point{0, P};
    return {mixtureValue(mixture, *findMixtureProperty("TBV"), point),
            mixtureValue(mixture, *findMixtureProperty("TRB"), point)};
}

}  // namespace velor::app
