// Finding substances by what the user calls them: number, CAS number, Czech or other name, formula.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "substance_list.h"

namespace velor::app {

struct SubstanceName {
    std::string text;
    std::string folded;
    bool isSimple;  // not two names in one text
};

// The texts of the name and the synonym and, where one holds two names, these as well.
std::vector<SubstanceName> namesOf(const Substance& substance);

// The one substance that is meant. Letter case and diacritics do not matter; in a formula they decide first (CO, Co).
// A whole name wins over a formula and that over a part of a name.
// Failure(NothingComputed): several are meant (they are listed) or none (similar names are offered).
const Substance& findSubstance(const SubstanceList& substances, std::string_view wanted);

// Substances separated by commas or, where there is one, by semicolons. A comma that belongs to a whole name
// (2,2-Dimethylpropan) does not separate. Failure(WrongUse): an empty item, one substance twice, more than 20.
SubstanceList findSubstances(const SubstanceList& substances, std::string_view wanted);

}  // namespace velor::app
