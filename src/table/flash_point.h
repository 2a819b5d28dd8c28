// One flash of a prepared mixture over plain numbers: what the table computes where the object has its method.
#pragma once

#include <span>
#include <vector>

#include "properties/property_point.h"
#include "rules/flash.h"
#include "velor/flash_record.h"

namespace velor {

// Made once for many points: it takes its room when it is made.
class FlashPoint {
  public:
    FlashPoint(const PreparedComponents& mixture, FlashKind kind);

    // At T kelvin and P pascals; mole fractions, one a component. Tells the verdict.
    Standing run(double T, double P, std::span<const double> feed);

    // Of the last run. Where there is no bubble or dew point it is 0.
    const FlashRecord& found() const { return found_; }

  private:
    struct Rows {
        PointProperty bubblePoint{*findMixtureProperty("TBV")};
        PointProperty dewPoint{*findMixtureProperty("TRB")};
        PointProperty vapourPressure{*findMixtureProperty("TENS")};
        PointProperty liquidEnthalpy{*findMixtureProperty("HL")};
        PointProperty vapourEnthalpy{*findMixtureProperty("RHG")};
    };

    bool isAdiabatic() const { return found_.kind == FlashKind::Adiabatic; }
    PropertyPoint of(std::span<const double> fractions) const { return {mixture_, fractions}; }
    PropertyValue value(const PointProperty& property, std::span<const double> fractions, double T) const;
    Standing standing(const PointProperty& property, std::span<const double> fractions, double T) const;

    void begin(double T, double P, std::span<const double> feed);
    Standing compute();
    bool isAllVapour(const PropertyValue& dew) const;
    Standing vapourVerdict(const PropertyValue& dew) const;
    Standing finishTrivially(FlashOutcome outcome, double V, Standing verdict);
    Standing iterate(double start);
    void solve(double start);
    const Equilibrium& equilibrium(double T);
    void dropUnknownEquilibriums();

    double liquidEnthalpy(double T, std::span<const double> x) const { return of(x).at(T, P_).HL(); }
    double vapourEnthalpy(double T, std::span<const double> y) const { return of(y).at(T, P_).RHG(); }

    Rows rows_;
    const PreparedComponents& mixture_;
    double T0_ = 0, P_ = 0;
    std::vector<double> slopes_;  // dK/dT, where the temperature is sought
    Equilibrium equilibrium_;
    FlashSolution solution_;  // its room is used for all points
    FlashRecord found_;
};

}  // namespace velor
