#include "rules/liquid.h"

namespace velor {

double volumeMeanTemperature(std::span<const double> x, std::span<const double> Vc, std::span<const double> Tc) {
    double volume = 0.0, weighted = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        volume += x[i] * Vc[i];
        weighted += x[i] * Vc[i] * Tc[i];
    }
    return checked::divide(weighted, volume);
}

}  // namespace velor
