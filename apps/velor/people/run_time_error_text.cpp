#include <algorithm>
#include <array>
#include <string_view>

#include "people/people.h"

namespace velor::app {

namespace {

struct Description {
    RunTimeError::Number number;
    std::string_view text;
};

constexpr std::array<Description, 11> kDescriptions{{
    {RunTimeError::kInvalidCall, "neplatný argument výpočtu"},
    {RunTimeError::kOverflow, "přetečení nebo poškozené číslo"},
    {RunTimeError::kSubscript, "index mimo meze"},
    {RunTimeError::kDivisionByZero, "dělení nulou"},
    {RunTimeError::kTypeMismatch, "nesouhlas typů"},
    {RunTimeError::kFileNotFound, "soubor nenalezen"},
    {RunTimeError::kInputPastEnd, "čtení za koncem vstupu"},
    {RunTimeError::kPermissionDenied, "přístup odepřen"},
    {RunTimeError::kPathFileAccess, "k souboru nelze přistoupit, nebo to není soubor"},
    {RunTimeError::kPathNotFound, "cesta nenalezena"},
    {RunTimeError::kInvalidUseOfNull, "neplatné použití prázdné hodnoty"},
}};

}  // namespace

std::string describe(const RunTimeError& error) {
    if (error.number() == RunTimeError::kRaisedToHost) return error.description();  // Czech already
    const auto* const known =
        std::find_if(kDescriptions.begin(), kDescriptions.end(),
                     [&](const Description& description) { return description.number == error.number(); });
    const std::string text = known == kDescriptions.end() ? error.description() : std::string(known->text);
    return text + " (chyba " + std::to_string(error.number()) + ")";
}

}  // namespace velor::app
