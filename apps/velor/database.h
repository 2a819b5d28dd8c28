// The database that the command works with.
#pragma once

#include <optional>
#include <span>
#include <string>

#include "substance_list.h"
#include "velor/smes.h"

namespace velor::app {

struct Database {
    std::string path;
    SubstanceList substances;
};

// Opens the database chosen by the user or else the one that VELOR.CFG beside the program names. Without that file
// nothing is searched: Failure(NoDatabase) says where a database was expected.
Database openDatabase(const std::optional<std::string>& chosenPath, UserInterface& userInterface);

// Builds the library's list of the substances, which is also written to SEZNAM.DAT beside the database. Where that may
// not be done the list in memory is complete all the same. Failure(NothingComputed): the database cannot be listed.
void buildList(Smes& smes, const Database& database);

// Loads the substances into the slots 1, 2 ... of a new mixture. Its failures are raised, not shown.
void loadInto(Smes& smes, const Database& database, std::span<const Substance> substances);

}  // namespace velor::app
