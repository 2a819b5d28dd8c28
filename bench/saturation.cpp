// Bubble and dew point.
#include <string>

#include "comparison.h"
#include "mixture.h"
#include "saturation_floor.h"

namespace velor::bench {

void addSaturation() {
    for (const int n : {1, 3, 5, 20}) {
        const auto mixture = mixtureOf(n);
        const SaturationFloor floor(mixture->records);
        const Goal goal = Goal::ratio(n == 3 ? 1.6 : 2.0);
        compare(
            "TBV " + std::to_string(n), goal, evenly(0.5e5, 2e5),
            [mixture](double P) { return mixture->smes.TBV(P, mixture->X).toDouble(); },
            [mixture, floor](double P) { return floor.bubblePoint(P, mixture->fractions); });
        compare(
            "TRB " + std::to_string(n), goal, evenly(0.5e5, 2e5),
            [mixture](double P) { return mixture->smes.TRB(P, mixture->X).toDouble(); },
            [mixture, floor](double P) { return floor.dewPoint(P, mixture->fractions); });
    }
}

}  // namespace velor::bench
