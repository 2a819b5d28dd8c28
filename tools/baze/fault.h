// What is wrong with a text, and on which of its lines.
#pragma once

#include <string>
#include <vector>

namespace velor::baze {

struct LineFault {
    int line = 0;
    std::string reason;  // Czech, for the user
};

using LineFaults = std::vector<LineFault>;

// Faults of form (a cell that is no number, a text too long) are always looked for: nothing could be stored. Faults of
// content (a wrong CAS check digit, a negative critical temperature) are left to a database that was written by
// another program and is to survive as it is.
enum class Checks { Full, FormOnly };

}  // namespace velor::baze
