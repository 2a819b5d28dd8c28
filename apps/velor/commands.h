// One function for each subcommand: from the request to the report. Failure says why there is none.
#pragma once

#include "database.h"
#include "mixture.h"
#include "report.h"
#include "requests.h"

namespace velor::app {

// seznam: the substances of the database.
Report answer(const SubstanceListRequest& request, const Database& database, UserInterface& userInterface);

// latka: names, constants and correlations of a substance.
Report answer(const SubstanceRequest& request, const Database& database, UserInterface& userInterface);

// vlastnost: one property of several substances, or of a mixture, at several temperatures.
Report answer(const PropertyRequest& request, const Database& database, UserInterface& userInterface);
Report answer(const MixturePropertyRequest& request, const Database& database, UserInterface& userInterface);

// vlastnost --seznam: the properties of mixtures; needs no database.
Report propertyList();

// ukazka: constants and all ten properties of a substance at one temperature.
Report answer(const TourRequest& request, const Database& database, UserInterface& userInterface);

// smes: composition, molar mass, pseudocritical values, bubble and dew point of a mixture.
Report answer(const MixtureRequest& request, const Database& database, UserInterface& userInterface);
// The same of a mixture that is known already, at P pascals.
Report describeMixture(const Mixture& mixture, double P);

// prehled: all properties of a mixture at one state.
Report answer(const OverviewRequest& request, const Database& database, UserInterface& userInterface);

// rovnovaha: boiling temperatures of a binary mixture against its composition, as a table or a picture.
Report answer(const EquilibriumRequest& request, const Database& database, UserInterface& userInterface);

// graf: a picture of one property against temperature.
Report answer(const GraphRequest& request, const Database& database, UserInterface& userInterface);

// flash: isothermal or adiabatic flash of a mixture; the second asks the user for its data.
Report answer(const FlashRequest& request, const Database& database, UserInterface& userInterface);
Report answer(const AskingFlashRequest& request, const Database& database, UserInterface& userInterface);
// The second for a known mixture: its composition is suggested.
Report askedFlash(const Mixture& mixture, UserInterface& userInterface);

}  // namespace velor::app
