// A property by its name. The floor is the method itself: what is wanted is little more time than it takes.
#include "comparison.h"
#include "mixture.h"

namespace velor::bench {

void addByName() {
    const auto mixture = mixtureOf(3);
    compare(
        "Vlastnost ROLW 3", Goal::overhead(60.0), evenly(280.0, 400.0),
        [mixture](double T) { return mixture->smes.Vlastnost("ROLW", mixture->X, T, 1e5).toDouble(); },
        [mixture](double T) { return mixture->smes.ROLW(T, mixture->X).toDouble(); });
    compare(
        "Vlastnost TBV 3", Goal::overhead(60.0), evenly(0.5e5, 2e5),
        [mixture](double P) { return mixture->smes.Vlastnost("TBV", mixture->X, 0.0, P).toDouble(); },
        [mixture](double P) { return mixture->smes.TBV(P, mixture->X).toDouble(); });
}

}  // namespace velor::bench
