// VELOR.CFG: two lines of text, the second one the full path of the database.
#pragma once

#include <string>

namespace velor {

// The second of the two comma- or line-separated items, without the blanks around it. Errors: those of opening the
// file; 62 when it ends before the second item.
std::string readConfiguredPath(const std::string& configurationFile);

// Whether the path would read back as it is written: not with a comma and quotes, and not over several lines.
bool isConfigurable(const std::string& databasePath);

// Writes the file anew. A path that holds a comma is written in quotes. Errors: 70, 75 (one that would not read back,
// too), 76.
void writeConfiguredPath(const std::string& configurationFile, const std::string& databasePath);

}  // namespace velor
