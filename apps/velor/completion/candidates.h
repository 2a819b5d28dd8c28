// What the user began to type, completed to names, as freely as names are found, and to files.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "velor/substances.h"

namespace velor::app {

// ---- One of several names: letter case and diacritics do not matter ----------------------------------------------

// What the folded text of a name that begins with what is typed begins with.
std::string foldedStart(std::string_view typed);

// What follows in the name behind the start that is typed; none where the name begins otherwise.
std::optional<std::string_view> behindStart(std::string_view name, std::string_view typed);

// The names that begin with what is typed.
std::vector<std::string> namesStartingWith(const std::vector<std::string>& names, std::string_view typed);

// Several such names spelled as far as that as it is typed. A shell puts their common start into the line, and that
// must never take letters away.
std::vector<std::string> spelledAsTyped(std::vector<std::string> names, std::string_view typed);

// ---- The name of a substance, or the last one of a list ----------------------------------------------------------

struct NameCompletions {
    std::size_t from = 0;  // position in what is typed from which on a name replaces it
    std::vector<std::string> names;
};

// One name of each substance that has a name beginning with what is typed: its first such name that means no other
// substance. Where there is none, the only name that holds what is typed.
NameCompletions completeSubstance(const SubstanceList& substances, std::string_view typed);

// The same for the last item of a list as findSubstances takes it, without the substances that stand in it already.
NameCompletions completeSubstances(const SubstanceList& substances, std::string_view typed);

// ---- The name of a file ------------------------------------------------------------------------------------------

// The entries of the typed path's folder that continue it: folders, which end in "/", and the files that are wanted.
// Hidden ones only where a dot is typed. They replace what is typed behind the last "/". A path that begins with "~/"
// begins in the user's own folder where that is not quoted.
std::vector<std::string> completeFile(std::string_view typed, bool isTildeQuoted,
                                      const std::function<bool(std::string_view name)>& isWanted);

// A path as the shell passes it on.
std::string withHome(std::string_view path);

}  // namespace velor::app
