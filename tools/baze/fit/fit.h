// Points fitted to an equation by least squares of relative deviations.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "baze/fit/forms.h"
#include "baze/fit/points.h"
#include "velor/properties.h"
#include "velor/record.h"

namespace velor::baze {

struct FitOptions {
    double Tkr = 0, Pkr = 0;             // of the substance; 0: not known
    bool isRobust = false;               // points far from the others count little
    std::vector<MeasuredPoint> through;  // which the curve goes through
};

struct Fit {
    TKorelace block;                              // as a record holds it
    std::vector<double> deviations;               // of the block from each point, %
    std::vector<double> weights;                  // with which each point counted in the end, 0 to 1 where robust
    double rms = 0, most = 0;                     // %
    double aicc = 0;                              // Akaike's criterion for few points; infinite where they are too few
    std::vector<int> free;                        // the coefficients that were fitted, from 1
    std::vector<std::vector<double>> covariance;  // of those; empty where the points do not tell
    std::string doubt;  // why it is not to be trusted outside its points, in Czech; empty where it is
};

// The equation at T kelvin; NaN where it has no value.
double curveValue(const Fit& fit, double T);

// Coefficients are single precision, and what is told of them is told of the equation as the library evaluates it.
// None where the points are too few or the equation does not take such values.
std::optional<Fit> fitted(int type, std::span<const MeasuredPoint> points, const PureProperty& property,
                          const FitOptions& options);

// The equations that may be used for a property, by the criterion: the best first, those that are in doubt last.
std::vector<Fit> bestFits(std::span<const MeasuredPoint> points, const PureProperty& property,
                          const FitOptions& options);

}  // namespace velor::baze
