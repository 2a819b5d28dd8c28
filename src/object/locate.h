// Finding the database.
#pragma once

#include <string>
#include <vector>

#include "object/state.h"

namespace velor {

// Fills AdresaBaze (and, for a path that ends in "#", DataFileName), or leaves it empty. See Smes::Adrvlr.
void locateDatabase(DatabasePlace& place, const Messages& messages);

// Full paths of the files below a folder whose name matches the mask and, without regard to case, the name.
std::vector<std::string> findFiles(const std::string& folder, const std::string& mask, const std::string& name);

}  // namespace velor
