// The library's list of substances, to be leafed through on a terminal.
#pragma once

#include "database.h"
#include "requests.h"
#include "velor/user_interface.h"

namespace velor::app {

// Whether the library's form takes a list as long as this.
bool canBrowse(const Database& database);

// Shows the list in the order asked for until the user closes it.
void browse(const SubstanceListRequest& request, const Database& database, UserInterface& user);

}  // namespace velor::app
