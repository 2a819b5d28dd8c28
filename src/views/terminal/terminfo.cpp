#include "views/terminal/terminfo.h"

#include <curses.h>
#include <term.h>

namespace velor::terminal {

bool canPlaceTheCursor(int fileDescriptor) {
    int error = 0;
    if (setupterm(nullptr, fileDescriptor, &error) != OK) return false;
    const bool can = !capability("cup").empty();
    del_curterm(cur_term);
    return can;
}

std::string capability(const char* name) {
    const char* const value = tigetstr(name);
    if (value == nullptr || value == reinterpret_cast<const char*>(-1)) return {};
    std::string text = value;
    for (std::size_t mark; (mark = text.find("$<")) != std::string::npos;)
        text.erase(mark, text.find('>', mark) - mark + 1);
    return text;
}

}  // namespace velor::terminal
