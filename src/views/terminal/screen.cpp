#include "views/terminal/screen.h"

#include <curses.h>
#include <locale.h>
#include <termios.h>
#include <unistd.h>
#include <wchar.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

#include "velor/text.h"
#include "views/terminal/restore.h"
#include "views/terminal/terminfo.h"

namespace velor::terminal {

namespace {

// Only the characters of the thread are UTF-8 meanwhile: numbers, dates and other threads stay as they are.
class Utf8Characters {
  public:
    Utf8Characters()
        : own_(newlocale(LC_CTYPE_MASK, "C.UTF-8", duplocale(LC_GLOBAL_LOCALE))), before_(uselocale(own_)) {}
    ~Utf8Characters() {
        uselocale(before_);
        if (own_) freelocale(own_);
    }
    Utf8Characters(const Utf8Characters&) = delete;
    Utf8Characters& operator=(const Utf8Characters&) = delete;

  private:
    locale_t own_;
    locale_t before_;
};

// An xterm may be set to send an accented letter for Alt and a letter; meanwhile it is asked for Escape and the letter.
// Its own setting is saved and comes back; other terminals pass over that.
constexpr const char* kAltSendsEscape = "\033[?1036s\033[?1039s\033[?1036h\033[?1039h";
constexpr const char* kAltAsBefore = "\033[?1036r\033[?1039r";
constexpr const char* kMouseOff = "\033[?1006l\033[?1002l\033[?1000l";
constexpr int kEscapeDelay = 50;  // ms that a key's sequence may take
constexpr short kErrorPair = 1;

// A control character from a damaged record would move the cursor.
wchar_t printable(char32_t c) {
    const auto wide = static_cast<wchar_t>(c);
    return wcwidth(wide) < 0 ? L'·' : wide;
}

bool coloursAreWanted() {
    const char* const refusal = std::getenv("NO_COLOR");
    return has_colors() && (refusal == nullptr || *refusal == '\0');
}

attr_t attribute(Style style, bool hasColours) {
    switch (style) {
        case Style::Bold:
            return A_BOLD;
        case Style::Dim:
            return A_DIM;
        case Style::Underlined:
            return A_UNDERLINE;
        case Style::Reversed:
            return A_REVERSE;
        case Style::Error:
            return A_BOLD | (hasColours ? static_cast<attr_t>(COLOR_PAIR(kErrorPair)) : 0);
        case Style::Plain:
            break;
    }
    return A_NORMAL;
}

Event keyEvent(Key key) { return {Event::Kind::Key, 0, key}; }

Key controlKey(wint_t character) {
    switch (character) {
        case '\t':
            return Key::Tab;
        case '\r':
        case '\n':
            return Key::Enter;
        case 27:
            return Key::Escape;
        case 8:
        case 127:
            return Key::Backspace;
        case 21:  // Ctrl-U
            return Key::ClearLine;
        default:
            return Key::None;
    }
}

Key functionKey(wint_t code) {
    constexpr struct {
        wint_t code;
        Key key;
    } kKeys[] = {{KEY_UP, Key::Up},       {KEY_DOWN, Key::Down},    {KEY_LEFT, Key::Left},
                 {KEY_RIGHT, Key::Right}, {KEY_PPAGE, Key::PageUp}, {KEY_NPAGE, Key::PageDown},
                 {KEY_HOME, Key::Home},   {KEY_END, Key::End},      {KEY_BTAB, Key::BackTab},
                 {KEY_ENTER, Key::Enter}, {KEY_DC, Key::Delete},    {KEY_BACKSPACE, Key::Backspace},
                 {KEY_F(2), Key::F2},     {KEY_F(3), Key::F3}};
    for (const auto& known : kKeys)
        if (known.code == code) return known.key;
    return Key::None;
}

Event mouseEvent() {
    MEVENT mouse{};
    if (getmouse(&mouse) != OK) return keyEvent(Key::None);
    Event event{Event::Kind::Mouse};
    event.row = mouse.y;
    event.column = mouse.x;
    if (mouse.bstate & BUTTON1_PRESSED) {
        event.mouse = Mouse::Left;
    } else if (mouse.bstate & (BUTTON2_PRESSED | BUTTON3_PRESSED)) {
        event.mouse = Mouse::Right;
    } else if (mouse.bstate & BUTTON4_PRESSED) {
        event.mouse = Mouse::WheelUp;
    } else if (mouse.bstate & BUTTON5_PRESSED) {
        event.mouse = Mouse::WheelDown;
    } else {
        return keyEvent(Key::None);
    }
    return event;
}

// The rest of a key's sequence that the terminal's description does not know, up to its final character.
void skipSequence() {
    wint_t character = 0;
    while (get_wch(&character) == OK && (character < 0x40 || character > 0x7E)) {
    }
}

// What is typed with Alt arrives as Escape and the key right behind it. A letter presses a button; other keys have no
// meaning with Alt, and neither have sequences that nobody knows.
Event escapeEvent() {
    timeout(0);
    wint_t next = 0;
    int kind = get_wch(&next);
    const bool isDoubled = kind == OK && next == 27;  // Alt and a key that has a sequence of its own
    if (isDoubled) kind = get_wch(&next);
    Event event = keyEvent(kind == ERR ? Key::Escape : Key::None);
    if (kind == OK && (next == '[' || next == 'O')) {
        skipSequence();
    } else if (kind == OK && !isDoubled && next > ' ' && next != 127) {
        event = {Event::Kind::Accelerator, static_cast<char32_t>(next)};
    }
    timeout(-1);
    return event;
}

// Back to the screen that was there before; a terminal that keeps none goes on below what is drawn.
std::string screenBefore() {
    const std::string back = capability("rmcup");
    return back.empty() ? "\r\n" + capability("ed") : back;
}

bool isGone(std::FILE* input) {
    termios modes{};
    return tcgetattr(fileno(input), &modes) != 0;
}

}  // namespace

struct Screen::Terminal {
    Utf8Characters characters;
    SCREEN* screen = nullptr;
    std::FILE* input = nullptr;
    std::FILE* output = nullptr;
    bool hasColours = false;

    void send(const char* bytes) const {
        std::fputs(bytes, output);
        std::fflush(output);
    }
};

bool Screen::isPossible(std::FILE* input, std::FILE* output) {
    if (!isatty(fileno(input)) || !isatty(fileno(output)) || std::getenv("TERM") == nullptr) return false;
    return canPlaceTheCursor(fileno(output));
}

Screen::Screen(std::FILE* input, std::FILE* output) : terminal_(std::make_unique<Terminal>()) {
    // Before the library puts its own handlers and modes in their place.
    restore_ = std::make_unique<RestoreOnSignal>(fileno(input), fileno(output));
    terminal_->screen = newterm(nullptr, output, input);
    if (!terminal_->screen) throw std::runtime_error("terminál nelze použít");
    set_term(terminal_->screen);
    terminal_->input = input;
    terminal_->output = output;
    terminal_->send(kAltSendsEscape);
    RestoreOnSignal::undoWith(std::string(kAltAsBefore) + kMouseOff + capability("rmkx") + capability("sgr0") +
                              capability("cnorm") + screenBefore());
    cbreak();
    noecho();
    nonl();
    keypad(stdscr, TRUE);
    set_escdelay(kEscapeDelay);
    mouseinterval(0);
    mousemask(BUTTON1_PRESSED | BUTTON2_PRESSED | BUTTON3_PRESSED | BUTTON4_PRESSED | BUTTON5_PRESSED, nullptr);
    terminal_->hasColours = coloursAreWanted();
    if (terminal_->hasColours) {
        start_color();
        use_default_colors();
        init_pair(kErrorPair, COLOR_RED, -1);
    }
}

Screen::~Screen() {
    curs_set(1);
    endwin();
    terminal_->send(kAltAsBefore);
    delscreen(terminal_->screen);
}

Size Screen::size() const { return {getmaxy(stdscr), getmaxx(stdscr)}; }

Event Screen::read() {
    wint_t code = 0;
    switch (get_wch(&code)) {
        case ERR:
            // Bytes that are no character fail, too; a terminal that is gone fails for ever.
            return isGone(terminal_->input) ? Event{Event::Kind::Deserted} : keyEvent(Key::None);
        case KEY_CODE_YES:
            if (code == KEY_RESIZE) return {Event::Kind::Resize};
            return code == KEY_MOUSE ? mouseEvent() : keyEvent(functionKey(code));
        default:
            break;
    }
    const Key key = controlKey(code);
    if (key == Key::Escape) return escapeEvent();
    if (key != Key::None || code < ' ') return keyEvent(key);
    return {Event::Kind::Character, static_cast<char32_t>(code)};
}

void Screen::clear() { erase(); }

int Screen::write(int row, int column, int from, int to, std::string_view text, Style style) {
    const Size area = size();
    to = std::min(to, area.columns);
    std::wstring visible;  // single bytes the library may take for control characters
    int start = column;
    for (std::string_view rest = text; !rest.empty();) {
        const wchar_t c = printable(takeCodePoint(rest));
        const int width = wcwidth(c);
        if (column >= from && column + width <= to) {
            if (visible.empty()) start = column;
            visible += c;
        }
        column += width;
    }
    if (row < 0 || row >= area.rows || visible.empty()) return column;
    attrset(static_cast<int>(attribute(style, terminal_->hasColours)));
    mvaddwstr(row, start, visible.c_str());
    attrset(A_NORMAL);
    return column;
}

void Screen::showCursor(int row, int column) {
    curs_set(1);
    move(row, column);
}

void Screen::hideCursor() { curs_set(0); }
void Screen::show() { refresh(); }

std::string cutTo(const std::string& text, int width) {
    if (columnsOf(text) <= width) return text;
    std::string_view rest = text;
    while (!rest.empty() && columnsOf(text.substr(0, text.size() - rest.size())) < width) takeCodePoint(rest);
    std::string cut = text.substr(0, text.size() - rest.size());
    while (!cut.empty() && columnsOf(cut) >= width) {
        std::size_t last = cut.size() - 1;
        while (last > 0 && (static_cast<unsigned char>(cut[last]) & 0xC0U) == 0x80U) --last;
        cut.erase(last);
    }
    return width > 0 ? cut + "…" : std::string();
}

int columnsOf(std::string_view text) {
    int columns = 0;
    while (!text.empty()) columns += wcwidth(printable(takeCodePoint(text)));
    return columns;
}

}  // namespace velor::terminal
