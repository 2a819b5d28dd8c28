// What the user does at the terminal.
#pragma once

namespace velor::terminal {

enum class Key {
    None,
    Up,
    Down,
    Left,
    Right,
    PageUp,
    PageDown,
    Home,
    End,
    Tab,
    BackTab,
    Enter,
    Escape,
    Backspace,
    Delete,
    ClearLine,
    F2,
    F3
};

enum class Mouse { Left, Right, WheelUp, WheelDown };

struct Event {
    enum class Kind { Character, Accelerator, Key, Mouse, Resize, Deserted };  // Deserted: nobody can answer any more
    Kind kind;
    char32_t character = 0;  // typed, or typed with Alt for an accelerator
    Key key = Key::None;
    Mouse mouse = Mouse::Left;
    int row = 0, column = 0;  // of the mouse

    bool is(Key wanted) const { return kind == Kind::Key && key == wanted; }
};

}  // namespace velor::terminal
