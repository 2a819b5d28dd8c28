// One function for each subcommand: from the request to the report. Failure says why there is none.
#pragma once

#include "database.h"
#include "report.h"
#include "requests.h"

namespace velor::app {

// latka: names, constants and correlations of a substance.
Report answer(const SubstanceRequest& request, const Database& database, UserInterface& userInterface);

// vlastnost: one property of several substances at several temperatures.
Report answer(const PropertyRequest& request, const Database& database, UserInterface& userInterface);

// ukazka: constants and all ten properties of a substance at one temperature.
Report answer(const TourRequest& request, const Database& database, UserInterface& userInterface);

}  // namespace velor::app
