// Completing the name of a file.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace velor::app {

// The entries of the typed path's folder that continue it: folders, which end in "/", and the files that are wanted.
// Hidden ones only where a dot is typed. They replace what is typed behind the last "/". A path that begins with "~/"
// begins in the user's own folder where that is not quoted.
std::vector<std::string> completeFile(std::string_view typed, bool isTildeQuoted,
                                      const std::function<bool(std::string_view name)>& isWanted);

// A path as the shell passes it on.
std::string withHome(std::string_view path);

}  // namespace velor::app
