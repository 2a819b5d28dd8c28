#include "velor/verdict.h"

#include <limits>
#include <vector>

#include "properties/pure_value.h"
#include "rules/equations.h"
#include "rules/liquid.h"

namespace velor {

bool isGiven(const Smes& smes, int slot, int property) { return smes.VLRConst(slot, property, kPriznak) != 0; }

PropertyValue pureValue(Smes& smes, double T, int slot, const PureProperty& property) {
    if (!isGiven(smes, slot, property.number)) return {Standing::NotGiven};
    const auto type = static_cast<int>(smes.VLRConst(slot, property.number, kTyp));
    if (!isEquationType(type)) return {Standing::Failed};  // the engine would say so in a box each time
    try {
        const double value = smes.FFce(T, slot, property.number).toDouble();
        return judged(value, standingAt(T, smes.record(slot), smes.MezeTeplot() > 0, property.number));
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
            if (!property_.correlations.contains(pure.number)) continue;
            const bool isLeftOut = pure.number == kDHV && T >= smes_.Tkri(slot).toDouble();
            take(pure, slot, isLeftOut ? Standing::LeftOut : pureValue(smes_, T, slot, pure).standing);
        }
        if (property_.correlations.contains(kReducedROLW)) takeDensity(slot, temperatureOfDensity(slot, T));
    }

    void takeDensity(int slot, double T) {
        const PureProperty& density = pureProperties()[kROLW - 1];
        take(density, slot, pureValue(smes_, T, slot, density).standing);
    }

    void take(const PureProperty& pure, int slot, Standing standing) {
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
        const Variant value = property.method(smes, T, P, X);
        if (value.isEmpty()) return {{Standing::Failed}};
        if (property.outcome && (smes.*property.outcome)() == SaturationOutcome::Diverged)
            return {{Standing::Diverged}};
        return {{Standing::InRange, value.toDouble()}};
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
    // Held below every critical temperature the iteration may come to rest where it has solved nothing.
    if (!isSaturationPoint(smes, property, found.result.value, P, X)) return {{Standing::Diverged}};
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
    if (!found.result.isComputed()) return found;
    found.result.standing = standingOf(property, worst.result.standing);
    const bool isOfGasAtPressure = property.phase == Phase::Gas && property.needsPressure;
    if (isOfGasAtPressure && isMetastableGas(smes, T, P, X)) found.result.standing = Standing::Metastable;
    return found;
}

}  // namespace velor
