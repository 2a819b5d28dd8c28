#include "rules/pseudocritical.h"

#include <cstddef>

#include "rules/composition.h"
#include "runtime/checked.h"
#include "runtime/physical_constants.h"

namespace velor {

Pseudocritical pseudocriticalValues(std::span<const double> x, std::span<const double> M, std::span<const double> Tc,
                                    std::span<const double> Pc, std::span<const double> Vc) {
    Pseudocritical mixture;
    mixture.molarMass = moleMean(x, M);
    mixture.volume = moleMean(x, Vc);
    mixture.temperature = moleMean(x, Tc);
    for (std::size_t i = 0; i < x.size(); ++i)
        mixture.compressibility += checked::divide(x[i] * Pc[i] * Vc[i], kGasConstant * Tc[i]);
    mixture.pressure = checked::divide(mixture.compressibility * kGasConstant * mixture.temperature, mixture.volume);
    return mixture;
}

}  // namespace velor
