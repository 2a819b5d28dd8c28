// What may stand at the cursor of a command line that is being typed, for the shell's completion.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace velor::app {

// What the values on the command line are called in the help; from the name follows how one is completed.
inline constexpr const char* kSubstanceValue = "LÁTKA";
inline constexpr const char* kSubstancesValue = "LÁTKY";
inline constexpr const char* kPropertyValue = "VLASTNOST";
inline constexpr const char* kOrderValue = "POŘADÍ";
inline constexpr const char* kFileValue = "SOUBOR";
inline constexpr const char* kPictureValue = "OBRÁZEK";

inline constexpr const char* kOrderByName = "nazvu";
inline constexpr const char* kOrderByNumber = "cisel";

struct CompletionRequest {
    std::string wordBreaks;  // the shell's COMP_WORDBREAKS
    bool isList = false;     // the candidates are to be read, not to be put into the line
    std::string before;      // the line before the cursor, from the name of the command on
    std::string behind;      // the rest of it
};

// The first line says "nospace" where the word may go on behind the candidate, then one candidate a line. It asks and
// reports nothing: where no database is found there are no candidates of it.
std::string completionText(const CLI::App& program, const CompletionRequest& request);

}  // namespace velor::app
