// The commands about substances: the list, one substance, its properties; and the database that all commands work with.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "output/output.h"
#include "velor/smes.h"
#include "velor/substances.h"
#include "velor/user_interface.h"
#include "velor/verdict.h"

namespace velor::app {

// ---- The database ------------------------------------------------------------------------------------------------

struct Database {
    std::string path;
    SubstanceList substances;
};

// Opens the database chosen by the user or else the one that VELOR.CFG beside the program names. Without that file
// nothing is searched: Failure(NoDatabase) says where a database was expected.
Database openDatabase(const std::optional<std::string>& chosenPath);

// Builds the library's list of the substances, which is also written to SEZNAM.DAT beside the database. Where that may
// not be done the list in memory is complete all the same. Failure(NothingComputed): the database cannot be listed.
void buildList(Smes& smes, const Database& database);

// Loads the substances into the slots 1, 2 ... of a new mixture. Its failures are raised, not shown.
void loadInto(Smes& smes, const Database& database, std::span<const Substance> substances);

// ---- Finding substances ------------------------------------------------------------------------------------------

// The one substance that is meant, see searchSubstance. Failure(WrongUse): nothing is typed; Failure(NothingComputed):
// several are meant (they are listed) or none (similar names are offered).
const Substance& findSubstance(const SubstanceList& substances, std::string_view wanted);

// The substances of a list, see splitSubstanceNames. Failure(WrongUse): an empty item, one substance twice, more than
// 20.
SubstanceList findSubstances(const SubstanceList& substances, std::string_view wanted);

// ---- The commands: from the request to the report. Failure says why there is none. -------------------------------

// seznam: the substances of the database.
struct SubstanceListRequest {
    std::string text;  // that a line is to hold
    bool byNumber = false;
};
Report answer(const SubstanceListRequest& request, const Database& database, UserInterface& userInterface);
// Whether the library's form takes a list as long as this.
bool canBrowse(const Database& database);
// Shows the list in the order asked for, to be leafed through on a terminal until the user closes it; Enter shows a
// substance.
void browse(const SubstanceListRequest& request, const Database& database, UserInterface& user);

// latka: names, constants and correlations of a substance.
struct SubstanceRequest {
    std::string substance;
};
Report answer(const SubstanceRequest& request, const Database& database, UserInterface& userInterface);

// ukazka: constants and all ten properties of a substance at one temperature.
struct TourRequest {
    std::string substance;
    double temperature = 0;
};
Report answer(const TourRequest& request, const Database& database, UserInterface& userInterface);

// vlastnost: one property of several substances at several temperatures.
struct PropertyRequest {
    const PureProperty* property = nullptr;
    std::string substances;
    std::vector<double> temperatures;
    bool clamp = false;  // temperatures into the validity ranges
};
Report answer(const PropertyRequest& request, const Database& database, UserInterface& userInterface);

}  // namespace velor::app
