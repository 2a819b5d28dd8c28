#include "properties/property_point.h"

#include "properties/property_point_rules.h"
#include "properties/saturation_point_rules.h"

namespace velor {

template class BasicPropertyPoint<double>;

std::size_t evaluationIndex(const MixtureProperty& property) {
    const auto found = std::ranges::find(kEvaluations<double>, property.code, &NamedEvaluation<double>::code);
    if (found == kEvaluations<double>.end()) checked::raise(RunTimeError::kSubscript);
    return static_cast<std::size_t>(found - kEvaluations<double>.begin());
}

Standing concluded(const MixtureProperty& property, Standing worst, bool isMetastable) {
    if (isMetastable) return Standing::Metastable;
    // An integral's polynomials are neither clamped nor held below the critical temperature.
    return property.isIntegral && worst != Standing::InRange ? Standing::Extrapolated : worst;
}

PropertyValue valueAt(PropertyPoint& point, const MixtureProperty& property, std::size_t evaluation, double T, double P,
                      bool isVerdictRead) {
    if (point.isEmpty()) return {Standing::Failed, numbers::kNan};
    try {
        const double value = point.at(T, P).value(property, kEvaluations<double>[evaluation].function);
        if (!point.standings().isComputed()) return {point.standings().worst(), numbers::kNan};
        const bool isMetastable =
            isVerdictRead && isOfGasAtPressure(property) && point.condensing() > Raoult::kMostOfGas;
        return {concluded(property, point.standings().worst(), isMetastable), value};
    } catch (const RunTimeError&) {
        return {Standing::Failed, numbers::kNan};
    }
}

}  // namespace velor
