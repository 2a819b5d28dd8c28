// The value of one property of one component: what every mixture rule gathers.
#pragma once

#include <string_view>

#include "object/state.h"
#include "rules/ideal_gas.h"
#include "rules/temperature.h"
#include "velor/properties.h"
#include "velor/verdict.h"

namespace velor {

// See Smes::FFce.
double FFce(State& state, const Temperature& T, int i, int k);

// Whether property k of a component is evaluated just below its critical temperature because T lies above it: those
// from the liquid viscosity on. Helium and what has no known critical temperature are left out.
inline bool isTakenBelowCritical(int k, double Tkr, double T) {
    constexpr double kLeastCriticalTemperature = 15.0;
    return k >= kETAL && Tkr > kLeastCriticalTemperature && T > Tkr;
}

// The verdict on property k (1..10) of a record that FFce evaluates to the value at T.
PropertyValue judged(double value, const TLatka& record, bool isClamped, double T, int k);

// The heat capacity of the ideal gas.
HeatCapacity heatCapacityOf(const TLatka& record, bool isClamped);

std::string_view propertyName(int k);

}  // namespace velor
