// What the dialogs are made of, without a screen.
#pragma once

#include <string>
#include <vector>

namespace velor {

inline constexpr int kEnterKey = 13;

struct ListBox {
    std::vector<std::string> items;
    int selected = -1;  // index of the selected item, -1 for none
};

struct TextBox {
    std::string text;
    bool visible = true;
    bool enabled = true;
};

// Which control has the focus; index counts within an array of controls. A view selects the text of a value box that
// gets it.
struct Focus {
    enum class Control { None, List, Number, Value, Confirm };
    Control control = Control::None;
    int index = 0;

    bool operator==(const Focus&) const = default;
};

}  // namespace velor
