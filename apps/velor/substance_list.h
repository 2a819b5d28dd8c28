// The substances of a database, as far as they are needed to find one.
#pragma once

#include <string>
#include <vector>

namespace velor::app {

struct Substance {
    int number = 0;
    std::string name;
    std::string synonym;
    std::string formula;
    std::string cas;  // with hyphens; empty when not known
};

using SubstanceList = std::vector<Substance>;

// The used records in the order of their numbers; none where the file is no database at all. Raises the errors of
// opening the file.
SubstanceList readSubstances(const std::string& databasePath);

// The substance of that number; null where there is none.
const Substance* findByNumber(const SubstanceList& substances, int number);

}  // namespace velor::app
