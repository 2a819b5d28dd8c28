// Which correlations are estimates.
#pragma once

#include "velor/properties.h"
#include "velor/supplement.h"

namespace velor {

// Whether one of the correlations that a property is mixed of is.
inline bool isAmong(Correlations correlations, const EstimatedProperties& estimated) {
    if (estimated.none()) return false;
    for (const PureProperty& property : pureProperties())
        if (estimated.test(static_cast<std::size_t>(property.number)) && correlations.contains(property.number))
            return true;
    return correlations.contains(kReducedROLW) && estimated.test(kROLW);
}

}  // namespace velor
