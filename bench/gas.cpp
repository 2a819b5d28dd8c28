// Viscosity and conductivity of the gas at low pressure.
#include <string>

#include "comparison.h"
#include "gas_floor.h"
#include "mixture.h"

namespace velor::bench {

void addGas() {
    for (const int n : {5, 20}) {
        const auto mixture = mixtureOf(n);
        const GasFloor floor(mixture->records);
        compare(
            "ETAG " + std::to_string(n), Goal::ratio(n < 20 ? 2.5 : 2.0), evenly(350.0, 550.0),
            [mixture](double T) { return mixture->smes.ETAG(T, mixture->X).toDouble(); },
            [mixture, floor](double T) { return floor.viscosity(T, mixture->fractions); });
        compare(
            "ALAG " + std::to_string(n), Goal::ratio(n < 20 ? 2.0 : 1.4), evenly(350.0, 550.0),
            [mixture](double T) { return mixture->smes.ALAG(T, mixture->X).toDouble(); },
            [mixture, floor](double T) { return floor.conductivity(T, mixture->fractions); });
    }
}

}  // namespace velor::bench
