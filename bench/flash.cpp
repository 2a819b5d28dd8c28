// The isothermal flash at a temperature halfway between bubble and dew point. The floor leaves out the report, which
// the library writes.
#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "comparison.h"
#include "mixture.h"
#include "saturation_floor.h"

namespace velor::bench {

namespace {

struct FlashPoint {
    double T, P;
};

std::vector<FlashPoint> betweenBubbleAndDewPoint(const Mixture& mixture) {
    const SaturationFloor floor(mixture.records);
    std::vector<FlashPoint> points;
    for (const double P : evenly(0.5e5, 2e5))
        points.push_back({0.5 * (floor.bubblePoint(P, mixture.fractions) + floor.dewPoint(P, mixture.fractions)), P});
    return points;
}

// Newton's method for the vapour fraction with the steps damped at first: by 0.1, 0.2, 0.6, then none.
double vapourFraction(const SaturationFloor& floor, const FlashPoint& at, const std::vector<double>& z) {
    const auto& vapourPressures = floor.vapourPressures();
    const std::size_t n = vapourPressures.size();
    if (at.T < floor.bubblePoint(at.P, z)) return 0.0;
    if (at.T > floor.dewPoint(at.P, z)) return 1.0;
    const double lnT = std::log(at.T);
    std::array<double, 20> deviation;
    for (std::size_t i = 0; i < n; ++i) deviation[i] = 1.0 - vapourPressures[i](at.T, lnT) / at.P;
    double V = 1.0, damping = 0.1, change = 1.0;
    for (int pass = 1; std::abs(change) > 0.0005; ++pass) {
        double f = 0.0, slope = 0.0;
        for (std::size_t i = 0; i < n; ++i) {
            const double q = deviation[i] / (1.0 - V * deviation[i]);
            f += z[i] * q;
            slope += z[i] * q * q;
        }
        change = -f / slope;
        damping = std::min(1.0, damping * pass);
        V += damping * change;
        if (V > 1.0) V = 1.0;
        if (V <= 0.0) V = 1e-6;
    }
    return V;
}

}  // namespace

void addFlash() {
    for (const int n : {5, 20}) {
        const auto mixture = mixtureOf(n);
        const SaturationFloor floor(mixture->records);
        compare(
            "FLASH " + std::to_string(n), Goal::ratio(2.2), betweenBubbleAndDewPoint(*mixture),
            [mixture](const FlashPoint& at) {
                Variant T = at.T, P = at.P;
                benchmark::DoNotOptimize(mixture->smes.FLASH(0, T, P, mixture->X));
                return mixture->smes.lastFlash().vapourFraction;
            },
            [mixture, floor](const FlashPoint& at) { return vapourFraction(floor, at, mixture->fractions); });
    }
}

}  // namespace velor::bench
