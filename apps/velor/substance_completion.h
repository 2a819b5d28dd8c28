// Completing the name of a substance, or the last one of a list.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "substance_list.h"

namespace velor::app {

struct NameCompletions {
    std::size_t from = 0;  // position in what is typed from which on a name replaces it
    std::vector<std::string> names;
};

// One name of each substance that has a name beginning with what is typed: its first such name that means no other
// substance. Where there is none, the only name that holds what is typed.
NameCompletions completeSubstance(const SubstanceList& substances, std::string_view typed);

// The same for the last item of a list as findSubstances takes it, without the substances that stand in it already.
NameCompletions completeSubstances(const SubstanceList& substances, std::string_view typed);

}  // namespace velor::app
