#include "dialogs/typed_composition.h"

#include <algorithm>
#include <string_view>

#include "object/state.h"
#include "runtime/checked.h"
#include "runtime/numbers.h"
#include "runtime/text.h"

namespace velor {

std::vector<double> parseComposition(const std::string& text) {
    std::string points = text;
    std::replace(points.begin(), points.end(), ',', '.');
    std::vector<double> fractions;
    for (std::string_view rest = trimBlanks(points); !rest.empty();) {
        if (fractions.size() == ComponentSlots::kCount) checked::raise(RunTimeError::kSubscript);
        // Positions count from 1; 0 says that there is none.
        const std::size_t separator = std::max(rest.find(' ') + 1, rest.find(';') + 1);
        fractions.push_back(parseLeadingNumber(separator == 0 ? rest : rest.substr(0, separator - 1)));
        rest = separator == 0 ? std::string_view() : rest.substr(separator);
    }
    return fractions;
}

}  // namespace velor
