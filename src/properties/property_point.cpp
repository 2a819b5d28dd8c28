#include "properties/property_point.h"

#include "properties/property_point_rules.h"
#include "properties/saturation_point_rules.h"

namespace velor {

template class BasicPropertyPoint<double>;

PointProperty::PointProperty(const MixtureProperty& property)
    : row(property),
      evaluation(static_cast<std::size_t>(
          std::ranges::find(kEvaluations<double>, property.code, &NamedEvaluation<double>::code) -
          kEvaluations<double>.begin())) {
    if (evaluation == kEvaluations<double>.size()) checked::raise(RunTimeError::kSubscript);
}

Standing concluded(const MixtureProperty& property, Standing worst, bool isMetastable) {
    if (isMetastable) return Standing::Metastable;
    // An integral's polynomials are neither clamped nor held below the critical temperature.
    return property.isIntegral && worst != Standing::InRange ? Standing::Extrapolated : worst;
}

PropertyValue valueAt(PropertyPoint& point, const PointProperty& property, double T, double P, bool isVerdictRead) {
    if (point.isEmpty()) return {Standing::Failed, numbers::kNan};
    try {
        const double value = point.at(T, P).value(property.row, kEvaluations<double>[property.evaluation].function);
        if (!point.standings().isComputed()) return {point.standings().worst(), numbers::kNan};
        const bool isMetastable =
            isVerdictRead && isOfGasAtPressure(property.row) && point.condensing() > Raoult::kMostOfGas;
        return {concluded(property.row, point.standings().worst(), isMetastable), value};
    } catch (const RunTimeError&) {
        return {Standing::Failed, numbers::kNan};
    }
}

}  // namespace velor
