#include "terminal/screen.h"

#include <curses.h>
#include <locale.h>
#include <unistd.h>
#include <wchar.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

#include "runtime/text.h"
#include "terminal/restore.h"
#include "terminal/terminfo.h"

namespace velor::terminal {

namespace {

// Only the characters of the thread are UTF-8 meanwhile: numbers, dates and other threads stay as they are.
class Utf8Characters {
  public:
    Utf8Characters() : own_(newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr)), before_(uselocale(own_)) {}
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

bool coloursAreWanted() { return has_colors() && std::getenv("NO_COLOR") == nullptr; }

attr_t attribute(Style style) {
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
            return A_BOLD | (coloursAreWanted() ? static_cast<attr_t>(COLOR_PAIR(kErrorPair)) : 0);
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

// A letter right behind an Escape was typed with Alt.
Event escapeEvent() {
    timeout(0);
    wint_t next = 0;
    const int kind = get_wch(&next);
    timeout(-1);
    if (kind == OK && next > ' ' && next != 127) return {Event::Kind::Accelerator, static_cast<char32_t>(next)};
    if (kind != ERR) unget_wch(static_cast<wchar_t>(next));
    return keyEvent(Key::Escape);
}

}  // namespace

struct Screen::Terminal {
    Utf8Characters characters;
    SCREEN* screen = nullptr;
    std::FILE* output = nullptr;

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
    terminal_->output = output;
    terminal_->send(kAltSendsEscape);
    RestoreOnSignal::undoWith(std::string(kAltAsBefore) + kMouseOff + capability("rmkx") + capability("sgr0") +
                              capability("cnorm") + capability("rmcup"));
    cbreak();
    noecho();
    nonl();
    keypad(stdscr, TRUE);
    set_escdelay(kEscapeDelay);
    mouseinterval(0);
    mousemask(BUTTON1_PRESSED | BUTTON2_PRESSED | BUTTON3_PRESSED | BUTTON4_PRESSED | BUTTON5_PRESSED, nullptr);
    if (coloursAreWanted()) {
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
            return {Event::Kind::Deserted};
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
        const auto c = static_cast<wchar_t>(takeCodePoint(rest));
        const int width = std::max(0, wcwidth(c));
        if (column >= from && column + width <= to) {
            if (visible.empty()) start = column;
            visible += c;
        }
        column += width;
    }
    if (row < 0 || row >= area.rows || visible.empty()) return column;
    attrset(static_cast<int>(attribute(style)));
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

int columnsOf(std::string_view text) {
    int columns = 0;
    while (!text.empty()) columns += std::max(0, wcwidth(static_cast<wchar_t>(takeCodePoint(text))));
    return columns;
}

}  // namespace velor::terminal
