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

// How T stands to the range [Tmin, Tmax] of a correlation: InRange to BelowCritical.
inline Standing standingAt(double T, double Tmin, double Tmax, bool isClamped, bool isBelowCritical) {
    const bool isOutside = T < Tmin || T > Tmax;
    if (isOutside && isClamped) return Standing::AtBound;
    if (isBelowCritical) return Standing::BelowCritical;
    return isOutside ? Standing::Extrapolated : Standing::InRange;
}

// The same of property k (1..10) of a record.
inline Standing standingAt(double T, const TLatka& record, bool isClamped, int k) {
    const TKorelace& block = record.Korelace[static_cast<std::size_t>(k - 1)];
    return standingAt(T, block.Tmin, block.Tmax, isClamped, isTakenBelowCritical(k, record.Tkr, T));
}

// The verdict on a value that FFce gives, whose temperature stands so to the correlation's range.
PropertyValue judged(double value, Standing standing);

// The heat capacity of the ideal gas.
HeatCapacity heatCapacityOf(const TLatka& record, bool isClamped);

std::string_view propertyName(int k);

}  // namespace velor
