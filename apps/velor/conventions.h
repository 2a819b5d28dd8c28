// What holds for all commands: the exit codes and the files that they use.
#pragma once

#include <array>
#include <string_view>

namespace velor::app {

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

}  // namespace velor::app
