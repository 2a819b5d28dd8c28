#include "typed_number.h"

#include <optional>
#include <string>

#include "failure.h"
#include "item_list.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "velor/run_time_error.h"

namespace velor::app {

namespace {

[[noreturn]] void refuse(const std::string& text) { throw Failure(ExitCode::WrongUse, text); }

std::string given(std::string_view text) { return ", zadáno: " + std::string(trimBlanks(text)) + "."; }

}  // namespace

double typedNumber(std::string_view text, std::string_view place) {
    if (trimBlanks(text).empty()) refuse(std::string(place) + " chybí číslo.");
    std::optional<double> value;
    try {
        value = parseWholeNumber(text);
    } catch (const RunTimeError&) {
        refuse("Číslo „" + std::string(text) + "“ je příliš velké.");
    }
    if (!value) refuse("„" + std::string(text) + "“ není číslo (zapište např. 298.15).");
    return *value;
}

double typedPressure(std::string_view text) {
    const double P = typedNumber(text, "V zápisu tlaku");
    if (!(P > 0)) refuse("Tlak musí být kladný (v pascalech)" + given(text));
    return P;
}

std::vector<double> typedFractions(std::string_view text) {
    std::vector<double> fractions;
    for (const std::string& item : splitItems(text)) {
        fractions.push_back(typedNumber(item, "V zápisu složení"));
        if (fractions.back() < 0) refuse("Zlomek ve složení nesmí být záporný" + given(item));
    }
    return fractions;
}

int typedCount(std::string_view text, std::string_view name, int least, int most) {
    const double count = typedNumber(text, std::string("V zápisu: ").append(name));
    if (!(count >= least && count <= most) || count != static_cast<int>(count)) {
        refuse(std::string(name) + " musí být celé číslo od " + std::to_string(least) + " do " + std::to_string(most) +
               given(text));
    }
    return static_cast<int>(count);
}

double typedSeconds(std::string_view text) {
    const double seconds = typedNumber(text, "V časovém limitu");
    constexpr double kMost = 1e9;  // beyond any clock's trouble
    if (!(seconds > 0 && seconds <= kMost)) refuse("Časový limit musí být kladný počet sekund" + given(text));
    return seconds;
}

}  // namespace velor::app
