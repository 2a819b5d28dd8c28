#include "mixture_value.h"

#include <optional>

#include "properties/pure_property.h"
#include "run_time_error_text.h"

namespace velor::app {

namespace {

constexpr double kNothing = -9999;  // of Smes::Vlastnost
constexpr int kDensity = 4, kHeatOfVaporisation = 8;

MixtureValue missing(const Substance& substance, const PureProperty& property, Standing standing) {
    std::string reason = substance.name + ", " + std::string(property.code) + ": ";
    return {{standing}, reason.append(standingNote(standing))};
}

double pseudocriticalTemperature(const Mixture& mixture, const Smes& smes) {
    double volume = 0, sum = 0;
    for (std::size_t i = 0; i < mixture.moleFractions.size(); ++i) {
        const int slot = static_cast<int>(i) + 1;
        const double part = mixture.moleFractions[i] * smes.Vkri(slot).toDouble();
        volume += part;
        sum += part * smes.Tkri(slot).toDouble();
    }
    return sum / volume;
}

// How the pure values stand that the property is mixed of at T: the worst of them.
class Gathering {
  public:
    Gathering(const Mixture& mixture, Smes& smes, double T) : mixture_(mixture), smes_(smes), T_(T) {}

    MixtureValue worst(const MixtureProperty& property) {
        for (std::size_t i = 0; i < mixture_.substances.size(); ++i)
            if (mixture_.moleFractions[i] > 0) take(property, static_cast<int>(i) + 1);
        return worst_;
    }

  private:
    void take(const MixtureProperty& property, int slot) {
        const double Tkr = smes_.Tkri(slot).toDouble();
        for (const PureProperty& pure : pureProperties()) {
            const bool isLeftOut = pure.number == kHeatOfVaporisation && T_ >= Tkr;
            if (usesCorrelation(property, pure.number) && !isLeftOut) take(pure, slot, T_);
        }
        if (usesReducedDensity(property)) {
            const PureProperty& density = pureProperties()[kDensity - 1];
            take(density, slot, T_ / pseudocriticalTemperature(mixture_, smes_) * Tkr);
        }
    }

    void take(const PureProperty& pure, int slot, double T) {
        const Standing standing = pureValue(smes_, T, slot, pure).standing;
        if (standing > worst_.result.standing)
            worst_ = missing(mixture_.substances[static_cast<std::size_t>(slot - 1)], pure, standing);
    }

    const Mixture& mixture_;
    Smes& smes_;
    double T_;
    MixtureValue worst_{{Standing::InRange}, {}};
};

}  // namespace

MixtureValue worstPureValue(const Mixture& mixture, Smes& smes, const MixtureProperty& property, double T) {
    return Gathering(mixture, smes, T).worst(property);
}

namespace {

// The first component that lacks a correlation of the property.
std::optional<MixtureValue> absence(const Mixture& mixture, const Smes& smes, const MixtureProperty& property) {
    for (std::size_t i = 0; i < mixture.substances.size(); ++i)
        for (const PureProperty& pure : pureProperties())
            if (usesCorrelation(property, pure.number) && !isGiven(smes, static_cast<int>(i) + 1, pure.number))
                return missing(mixture.substances[i], pure, Standing::NotGiven);
    return std::nullopt;
}

MixtureValue failed(const MixtureObject& object, const std::string& reason) {
    const std::string said = object.log.firstText();
    return {{Standing::Failed}, said.empty() ? reason : said};
}

// The library's value, without a look at where it comes from.
MixtureValue libraryValue(MixtureObject& object, const MixtureProperty& property, const Point& point) {
    try {
        const Variant value = property.direct
                                  ? (object.smes.*property.direct)(point.T, object.X)
                                  : object.smes.Vlastnost(std::string(property.name), object.X, point.T, point.P);
        if (object.log.bubblePointDiverged()) return {{Standing::Diverged}, "Výpočet bodu varu nekonverguje."};
        if (object.log.dewPointDiverged()) return {{Standing::Diverged}, "Výpočet rosného bodu nekonverguje."};
        const bool isNothing = value.isEmpty() || (!property.direct && value.toDouble() == kNothing);
        if (isNothing) return failed(object, std::string(standingNote(Standing::Failed)));
        return {{Standing::InRange, value.toDouble()}, {}};
    } catch (const RunTimeError& error) {
        return failed(object, "Výpočet selhal: " + describe(error) + ".");
    }
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

// The pure values of a bubble or dew point belong to the temperature found.
MixtureValue saturationValue(const Mixture& whole, const MixtureProperty& property, const Point& point) {
    const Mixture mixture = withoutAbsent(whole);
    MixtureObject object(mixture);
    if (const auto absent = absence(mixture, object.smes, property)) return *absent;
    MixtureValue found = libraryValue(object, property, point);
    if (!found.result.isComputed()) return found;
    const MixtureValue worst = worstPureValue(mixture, object.smes, property, found.result.value);
    if (!worst.result.isComputed()) return worst;
    found.result.standing = worst.result.standing;
    return found;
}

bool isSaturation(const MixtureProperty& property) { return !property.needsTemperature && property.needsPressure; }

// Polynomials integrated beyond their range are neither clamped nor held below the critical temperature.
Standing standingOf(const MixtureProperty& property, Standing worst) {
    return property.direct && worst != Standing::InRange ? Standing::Extrapolated : worst;
}

}  // namespace

MixtureValue mixtureValue(const Mixture& mixture, const MixtureProperty& property, const Point& point) {
    if (isSaturation(property)) return saturationValue(mixture, property, point);
    MixtureObject object(mixture);
    const MixtureValue worst = worstPureValue(mixture, object.smes, property, point.T);
    if (!worst.result.isComputed()) return worst;
    MixtureValue found = libraryValue(object, property, point);
    if (found.result.isComputed()) found.result.standing = standingOf(property, worst.result.standing);
    return found;
}

BoilingRange boilingRange(const Mixture& mixture, double P) {
    const Point point{0, P};
    return {mixtureValue(mixture, findMixtureProperty("TBV"), point),
            mixtureValue(mixture, findMixtureProperty("TRB"), point)};
}

}  // namespace velor::app
