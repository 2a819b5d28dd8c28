#include "rules/equations.h"

#include <cmath>

namespace velor {

namespace {

constexpr auto kTable = []<class... Forms>(std::tuple<Forms...>*) {
    return std::array<Equation, sizeof...(Forms)>{Equation{Forms::kFacts, &finiteValue<Forms, double>}...};
}(static_cast<EquationForms*>(nullptr));

}  // namespace

constinit const std::span<const Equation> kEquations = kTable;

void EquationConstants::prepareLogarithms() {
    for (std::size_t j = 0; j < logarithms_.size(); ++j)
        if (A_[j] > 0.0 && std::isfinite(A_[j])) logarithms_[j] = std::log(A_[j]);
}

std::string_view equationText(int type) { return isEquationType(type) ? equationOf(type).text : " Neznámý vztah! "; }

std::string equationTypesText() { return "1 až " + std::to_string(kEquations.size()); }

}  // namespace velor
