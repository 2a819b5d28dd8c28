#include "velor/verdict.h"

#include <limits>
#include <vector>

#include "properties/pure_value.h"
#include "rules/equations.h"
#include "rules/liquid.h"
#include "velor/constants.h"

namespace velor {

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
        case Standing::Diverged:
            return "nekonverguje";
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
        case Standing::Diverged:
            return "d";
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
        case Standing::Diverged:
            return "Iterace nekonverguje.";
        case Standing::Failed:
            return "Při výpočtu nastala chyba, rovnice nemá při této teplotě hodnotu.";
        case Standing::InRange:
            break;
    }
    return "";
}

namespace {

Standing standingAt(const Smes& smes, double T, int slot, const PureProperty& property) {
    const bool isOutside =
        T < smes.VLRConst(slot, property.number, kTmin) || T > smes.VLRConst(slot, property.number, kTmax);
    if (isOutside && smes.MezeTeplot() > 0) return Standing::AtBound;
    if (isTakenBelowCritical(property.number, smes.Tkri(slot).toDouble(), T)) return Standing::BelowCritical;
    return isOutside ? Standing::Extrapolated : Standing::InRange;
}

}  // namespace

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

namespace {

// What a property is mixed of, component by component.
class Gathering {
  public:
    Gathering(Smes& smes, const MixtureProperty& property, const Variant& X) : smes_(smes), property_(property) {
        const int count = smes.Nsloz().toInt16();
        for (int slot = 1; slot <= count; ++slot) fractions_.push_back(X.at(slot).toDouble());
    }

    MixtureVerdict worstAt(double T) {
        worst_ = {{Standing::InRange}};
        for (int slot = 1; slot <= count(); ++slot)
            if (fractions_[static_cast<std::size_t>(slot - 1)] > 0) take(slot, T);
        return worst_;
    }

    // The first correlation that a component lacks.
    std::optional<MixtureVerdict> absence() const {
        for (int slot = 1; slot <= count(); ++slot)
            for (const PureProperty& pure : pureProperties())
                if (property_.correlations.contains(pure.number) && !isGiven(smes_, slot, pure.number))
                    return MixtureVerdict{{Standing::NotGiven}, slot, &pure};
        return std::nullopt;
    }

  private:
    int count() const { return static_cast<int>(fractions_.size()); }

    void take(int slot, double T) {
        for (const PureProperty& pure : pureProperties()) {
            const bool isLeftOut = pure.number == kDHV && T >= smes_.Tkri(slot).toDouble();
            if (property_.correlations.contains(pure.number) && !isLeftOut) take(pure, slot, T);
        }
        if (property_.correlations.contains(kReducedROLW))
            take(pureProperties()[kROLW - 1], slot, temperatureOfDensity(slot, T));
    }

    void take(const PureProperty& pure, int slot, double T) {
        const Standing standing = pureValue(smes_, T, slot, pure).standing;
        if (standing > worst_.result.standing) worst_ = {{standing}, slot, &pure};
    }

    // That gives the component the mixture's reduced temperature; the density of a single one is taken at T.
    double temperatureOfDensity(int slot, double T) const {
        if (count() == 1) return T;
        std::vector<double> Vc, Tc;
        for (int i = 1; i <= count(); ++i) {
            Vc.push_back(smes_.Vkri(i).toDouble());
            Tc.push_back(smes_.Tkri(i).toDouble());
        }
        try {
            return T / volumeMeanTemperature(fractions_, Vc, Tc) * smes_.Tkri(slot).toDouble();
        } catch (const RunTimeError&) {
            return std::numeric_limits<double>::quiet_NaN();  // at which nothing has a value
        }
    }

    Smes& smes_;
    const MixtureProperty& property_;
    std::vector<double> fractions_;
    MixtureVerdict worst_{{Standing::InRange}};
};

// The object's value, without a look at where it comes from.
MixtureVerdict objectValue(Smes& smes, const MixtureProperty& property, double T, double P, const Variant& X) {
    try {
        const Variant value =
            property.isIntegral ? property.method(smes, T, P, X) : smes.Vlastnost(std::string(property.code), X, T, P);
        if (value.isEmpty()) return {{Standing::Failed}};
        const double number = value.toDouble();
        if (!property.isIntegral && number == kNothing) return {{Standing::Failed}};
        if (property.outcome && (smes.*property.outcome)() == SaturationOutcome::Diverged)
            return {{Standing::Diverged}};
        return {{Standing::InRange, number}};
    } catch (const RunTimeError& error) {
        return {{Standing::Failed}, 0, nullptr, error};
    }
}

Standing standingOf(const MixtureProperty& property, Standing worst) {
    return property.isIntegral && worst != Standing::InRange ? Standing::Extrapolated : worst;
}

// The pure values of a bubble or dew point belong to the temperature found.
MixtureVerdict saturationValue(Smes& smes, const MixtureProperty& property, double P, const Variant& X) {
    Gathering gathering(smes, property, X);
    if (const auto absent = gathering.absence()) return *absent;
    MixtureVerdict found = objectValue(smes, property, 0, P, X);
    if (!found.result.isComputed()) return found;
    const MixtureVerdict worst = gathering.worstAt(found.result.value);
    if (!worst.result.isComputed()) return worst;
    found.result.standing = worst.result.standing;
    return found;
}

}  // namespace

MixtureVerdict worstPureValue(Smes& smes, const MixtureProperty& property, double T, const Variant& X) {
    return Gathering(smes, property, X).worstAt(T);
}

MixtureVerdict mixtureValue(Smes& smes, const MixtureProperty& property, double T, double P, const Variant& X) {
    if (property.outcome) return saturationValue(smes, property, P, X);
    const MixtureVerdict worst = worstPureValue(smes, property, T, X);
    if (!worst.result.isComputed()) return worst;
    MixtureVerdict found = objectValue(smes, property, T, P, X);
    if (found.result.isComputed()) found.result.standing = standingOf(property, worst.result.standing);
    return found;
}

}  // namespace velor
