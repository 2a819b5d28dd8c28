// The substances of a database, and finding one by what people call it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "velor/record.h"

namespace velor {

// What a record says of its substance: UTF-8, without the padding, control characters shown as "?".
struct SubstanceName {
    std::string text;
    std::string folded;  // see folded() of text.h; of a further name without hyphens, commas and blanks
    bool isSimple;       // not two names in one text
};

struct Substance {
    int number = 0;
    std::string name;
    std::string synonym;
    std::string formula;
    std::string cas;                               // registry number with hyphens; empty when not known
    std::vector<SubstanceName> furtherNames = {};  // from the supplement; none where it cannot be read
};

using SubstanceList = std::vector<Substance>;

Substance substanceOf(int number, const TLatka& record);

// The used records of a database in the order of their numbers, with the names that its supplement has of them; none
// where the file is no database at all. Raises the
// errors of opening the file: 53, 70, 75, 76.
SubstanceList readSubstances(const std::string& databasePath);

// The substance of that number; null where there is none.
const Substance* findByNumber(const SubstanceList& substances, int number);

// ---- The finder ---------------------------------------------------------------------------------
// Letter case and diacritics do not matter; in a formula they decide first (CO, Co).

// The texts of the name and the synonym and, where one holds two names ("Water (H2O)"), these as well.
std::vector<SubstanceName> namesOf(const Substance& substance);

enum class Finding {
    Found,          // the one candidate
    Interpreted,    // the one candidate, of whose name only the beginning or the beginning of a word was given: to be
                    // told
    NothingTyped,   //
    Unknown,        // the candidates have similar names or hold the text, the likeliest first
    UnknownNumber,  // digits, but no substance has that number
    Several,        // each of the candidates is called so, in the order of their numbers
};

struct FoundSubstance {
    Finding outcome;
    std::vector<const Substance*> candidates;  // of the list searched
};

// The substance that is meant by a number, or a CAS number, a whole name, a formula, a further name; what comes first
// wins. Hyphens, commas and blanks of a further name do not matter; one that covers several substances lists them. A
// part of a name alone is never enough to be sure.
FoundSubstance searchSubstance(const SubstanceList& substances, std::string_view wanted);

// The names in a list as splitItems takes it. A comma that belongs to a whole name (2,2-Dimethylpropan) does not
// separate.
std::vector<std::string> splitSubstanceNames(const SubstanceList& substances, std::string_view wanted);

}  // namespace velor
