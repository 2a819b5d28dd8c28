// The help, the manual page and the command-line library's own words in Czech.
#pragma once

#include <CLI/CLI.hpp>
#include <array>
#include <memory>
#include <string>
#include <string_view>

namespace velor::app {

// ---- What holds for all commands: the exit codes and the files that they use -------------------------------------

struct Convention {
    std::string_view name;
    std::string_view meaning;
};

inline constexpr std::array<Convention, 5> kExitCodes{{
    {"0", "v pořádku"},
    {"1", "nic nebylo vypočteno nebo nalezeno"},
    {"2", "chybné zadání"},
    {"3", "chybí databáze"},
    {"4", "překročen časový limit"},
}};

inline constexpr std::array<Convention, 3> kFiles{{
    {"VELOR.CFG", "vedle programu; na druhém řádku je cesta k databázi, neurčí-li ji --baze"},
    {"VELOR.DRC", "databáze látek"},
    {"SEZNAM.DAT", "vedle databáze; seznam látek, jak jej naposledy sestavil příkaz seznam"},
}};

// ---- Help --------------------------------------------------------------------------------------------------------

// A line of the help: a name and, in the column of descriptions, what it means.
std::string definition(const std::string& name, const std::string& description);

// Help with Czech headings, aligned by characters.
std::shared_ptr<CLI::Formatter> czechFormatter();

// What is wrong with the command line, as a Czech sentence.
std::string czechParseError(const CLI::ParseError& error);

// That an option or a positional is missing, with an example of it.
std::string missingText(std::string_view name);

// The manual page of the command, made of its description: in the language of the man macros, UTF-8.
std::string manualPage(const CLI::App& program, const std::string& version);

}  // namespace velor::app
