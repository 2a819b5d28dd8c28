// What the dialogs are made of, without a screen.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "velor/run_time_error.h"

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

// A box or an item of a form by its index. Error 9: an index outside.
template <class Boxes>
auto& boxAt(Boxes& boxes, int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= boxes.size()) throw RunTimeError(RunTimeError::kSubscript);
    return boxes[static_cast<std::size_t>(index)];
}

// Captions carry the mark "&" before the letter of their accelerator key; for a view that shows no such key.
inline std::string withoutMark(std::string caption) {
    std::erase(caption, '&');
    return caption;
}

// Which control has the focus; index counts within an array of controls. A view selects the text of a value box that
// gets it.
struct Focus {
    enum class Control { None, List, Number, Value, Confirm };
    Control control = Control::None;
    int index = 0;

    bool operator==(const Focus&) const = default;
};

}  // namespace velor
