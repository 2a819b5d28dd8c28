// One property of a mixture at one point.
#pragma once

#include <string>

#include "mixture.h"
#include "mixture_property.h"
#include "properties/standing.h"

namespace velor::app {

struct Point {
    double T = 0;  // K; not read by a property that needs none
    double P = 0;  // Pa; likewise
};

struct MixtureValue {
    PropertyValue result;
    std::string reason;  // why there is none, a Czech sentence
};

MixtureValue mixtureValue(const Mixture& mixture, const MixtureProperty& property, const Point& point);

// How the pure values that the property is mixed of at T kelvin stand to their correlations: the worst of them, without
// a value. smes holds the mixture.
MixtureValue worstPureValue(const Mixture& mixture, Smes& smes, const MixtureProperty& property, double T);

// Bubble and dew point of the mixture at P pascals.
struct BoilingRange {
    MixtureValue bubble, dew;
};
BoilingRange boilingRange(const Mixture& mixture, double P);

}  // namespace velor::app
