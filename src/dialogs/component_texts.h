// A component's record as its display shows it.
#pragma once

#include <array>
#include <string>

#include "velor/component_forms.h"
#include "velor/record.h"

namespace velor {

std::array<frmLatka::Constant, frmLatka::kConstants> constantTexts(const TLatka& record);
std::array<CorrelationText, frmLatka::kProperties> correlationTexts(const TLatka& record);

// A line for each of the ten properties, columns aligned.
std::vector<std::string> propertyLines();

}  // namespace velor
