#include "rules/pseudocritical.h"

#include <cstddef>

#include "runtime/checked.h"
#include "runtime/physical_constants.h"

namespace velor {

Pseudocritical pseudocriticalValues(std::span<const double> x, std::span<const double> M, std::span<const double> Tc,
                                    std::span<const double> Pc, std::span<const double> Vc) {
    Pseudocritical mixture;
    for (std::size_t i = 0; i < x.size(); ++i) {
        mixture.molarMass += x[i] * M[i];
        mixture.volume += x[i] * Vc[i];
        mixture.temperature += x[i] * Tc[i];
        mixture.compressibility += checked::divide(x[i] * Pc[i] * Vc[i], kGasConstant * Tc[i]);
    }
    mixture.pressure = checked::divide(mixture.compressibility * kGasConstant * mixture.temperature, mixture.volume);
    return mixture;
}

}  // namespace velor
