#include "mixtures/mixture.h"
#include "velor/table.h"

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

namespace {

PreparedMixture prepared(const Mixture& mixture) {
    const MixtureSettings settings{.isSoave = false, .isClamped = mixture.clamp};
    if (!mixture.components.empty()) return PreparedMixture(mixture.components, settings);
    std::vector<int> numbers;
    for (const Substance& substance : mixture.substances) numbers.push_back(substance.number);
    return {mixture.database.path, numbers, settings};
}

// The object knows which component stands in the way and what the library says of it.
std::string reasonWithoutValue(const Mixture& whole, const MixtureProperty& property, const Point& point,
                               Standing standing) {
    const Mixture mixture = property.outcome ? withoutAbsent(whole) : whole;
    MixtureObject object(mixture);
    const MixtureVerdict verdict = velor::mixtureValue(object.smes, property, point.T, point.P, object.X);
    if (!verdict.result.isComputed()) return reasonOf(verdict, property, mixture, object.log);
    return reasonOf({{standing}}, property, mixture, object.log);
}

}  // namespace

std::vector<MixtureValue> mixtureValues(const Mixture& mixture, const MixtureProperty& property,
                                        std::span<const Point> points) {
    std::vector<double> T, P, found(points.size());
    std::vector<Standing> standings(points.size());
    for (const Point& point : points) {
        T.push_back(point.T);
        P.push_back(point.P);
    }
    evaluate(prepared(mixture), property, T, P, {mixture.moleFractions}, found, standings);
    std::vector<MixtureValue> values;
    for (std::size_t i = 0; i < points.size(); ++i) {
        values.push_back({{standings[i], found[i]}, {}});
        if (!values[i].result.isComputed())
            values[i].reason = reasonWithoutValue(mixture, property, points[i], standings[i]);
    }
    return values;
}

MixtureValue mixtureValue(const Mixture& mixture, const MixtureProperty& property, const Point& point) {
    return mixtureValues(mixture, property, {&point, 1}).front();
}

BoilingRange boilingRange(const Mixture& mixture, double P) {
    const Point point{0, P};
    return {mixtureValue(mixture, *findMixtureProperty("TBV"), point),
            mixtureValue(mixture, *findMixtureProperty("TRB"), point)};
}

}  // namespace velor::app
