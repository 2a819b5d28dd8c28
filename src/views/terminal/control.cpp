#include "views/terminal/control.h"

#include <algorithm>
#include <chrono>

#include "velor/form_controls.h"
#include "velor/text.h"
#include "views/terminal/wrapped_lines.h"

namespace velor::terminal {

// ---- Label -------------------------------------------------------------------------------------------------------

int Label::rowsIn(int width) const { return static_cast<int>(wrappedLines(text_(), width).size()); }

void Label::draw(Canvas& canvas, bool) {
    if (area.rows == 1) return canvas.write(area.row, area.column, area.columns, cutTo(text_(), area.columns), style_);
    int row = area.row;
    for (const std::string& line : wrappedLines(text_(), area.columns)) {
        if (row == area.row + area.rows) return;
        canvas.write(row++, area.column, area.columns, line, style_);
    }
}

void Label::mouse(Mouse mouse, int, int) {
    if (clicked) clicked(mouse);
}

// ---- TextField ---------------------------------------------------------------------------------------------------

namespace {

// Byte position of a character.
std::size_t byteAt(const std::string& text, int character) {
    std::string_view rest = text;
    for (; character > 0 && !rest.empty(); --character) takeCodePoint(rest);
    return text.size() - rest.size();
}

int lengthOf(const std::string& text) { return static_cast<int>(characterCount(text)); }

}  // namespace

void TextField::focused() {
    cursor_ = lengthOf(text_());
    isSelected_ = true;
}

void TextField::draw(Canvas& canvas, bool hasFocus) {
    const std::string text = text_();
    cursor_ = std::min(cursor_, lengthOf(text));
    first_ = hasFocus ? std::min(first_, cursor_) : 0;
    const auto columnsBefore = [&](int character) {
        return columnsOf(
            std::string_view(text).substr(byteAt(text, first_), byteAt(text, character) - byteAt(text, first_)));
    };
    // The cursor behind the last character needs a column, too.
    while (hasFocus && first_ < cursor_ && columnsBefore(cursor_) >= area.columns) ++first_;
    canvas.fill(area.row, area.column, area.columns, Style::Underlined);
    const Style style = hasFocus && isSelected_ && !text.empty() ? Style::Reversed : Style::Underlined;
    canvas.write(area.row, area.column, area.columns, std::string_view(text).substr(byteAt(text, first_)), style);
    if (hasFocus) canvas.showCursor(area.row, area.column + columnsBefore(cursor_));
}

bool TextField::moveCursor(const Event& event, int length) {
    switch (event.key) {
        case Key::Left:
            cursor_ = isSelected_ ? 0 : std::max(0, cursor_ - 1);
            break;
        case Key::Right:
            cursor_ = isSelected_ ? length : std::min(length, cursor_ + 1);
            break;
        case Key::Home:
            cursor_ = 0;
            break;
        case Key::End:
            cursor_ = length;
            break;
        default:
            return false;
    }
    isSelected_ = false;
    return true;
}

bool TextField::edit(const Event& event) {
    std::string text = text_();
    cursor_ = std::min(cursor_, lengthOf(text));
    const bool isTyped = event.kind == Event::Kind::Character;
    const bool isErased = event.is(Key::Backspace) || event.is(Key::Delete) || event.is(Key::ClearLine);
    if (!isTyped && !isErased) return event.kind == Event::Kind::Key && moveCursor(event, lengthOf(text));
    if (isSelected_ || event.is(Key::ClearLine)) {
        text.clear();
        cursor_ = 0;
    } else if (event.is(Key::Backspace) && cursor_ > 0) {
        --cursor_;
        text.erase(byteAt(text, cursor_), byteAt(text, cursor_ + 1) - byteAt(text, cursor_));
    } else if (event.is(Key::Delete)) {
        text.erase(byteAt(text, cursor_), byteAt(text, cursor_ + 1) - byteAt(text, cursor_));
    }
    if (isTyped) {
        std::string typed;
        appendCodePoint(typed, event.character);
        text.insert(byteAt(text, cursor_), typed);
        ++cursor_;
    }
    isSelected_ = false;
    changed_(text);
    return true;
}

bool TextField::key(const Event& event) {
    if (before && before(event)) return true;
    const bool isUsed = edit(event);
    if (isUsed && after) after(event);
    return isUsed;
}

void TextField::mouse(Mouse, int, int column) {
    const std::string text = text_();
    std::string_view rest = std::string_view(text).substr(byteAt(text, first_));
    cursor_ = first_;
    for (int passed = 0; !rest.empty(); ++cursor_) {
        const std::string_view behind = rest;
        takeCodePoint(rest);
        passed += columnsOf(behind.substr(0, behind.size() - rest.size()));
        if (passed > column) break;
    }
    isSelected_ = false;
}

// ---- Button ------------------------------------------------------------------------------------------------------

int Button::width() const { return columnsOf(withoutMark(caption_())) + 4; }

void Button::draw(Canvas& canvas, bool hasFocus) {
    const std::string caption = caption_(), plain = withoutMark(caption);
    const std::string text = isChosen ? (isChosen() ? "(•) " : "( ) ") + plain : "[ " + plain + " ]";
    canvas.write(area.row, area.column, area.columns, text, hasFocus ? Style::Reversed : Style::Plain);
    const std::size_t mark = caption.find('&');
    if (mark == std::string::npos || hasFocus) return;
    std::string_view letter = std::string_view(plain).substr(mark);
    const std::size_t rest = letter.size();
    takeCodePoint(letter);
    const int column = area.column + (isChosen ? 4 : 2) + columnsOf(plain.substr(0, mark));
    canvas.write(area.row, column, 1, plain.substr(mark, rest - letter.size()), Style::Underlined);
}

bool Button::key(const Event& event) {
    const bool isBlank = event.kind == Event::Kind::Character && event.character == U' ';
    if (!event.is(Key::Enter) && !isBlank) return false;
    pressed_();
    return true;
}

void Button::accelerate(char32_t letter) {
    const std::string caption = caption_();
    const std::size_t mark = caption.find('&');
    if (mark == std::string::npos) return;
    std::string_view rest = std::string_view(caption).substr(mark + 1);
    std::string marked, typed;
    if (!rest.empty()) appendCodePoint(marked, takeCodePoint(rest));
    appendCodePoint(typed, letter);
    if (folded(marked) == folded(typed)) pressed_();
}

// ---- List --------------------------------------------------------------------------------------------------------

List::List(const std::vector<std::string>& items, int selected, std::function<void(int index)> changed)
    : items_(items), changed_(std::move(changed)), search_(items), current_(std::max(0, selected)) {
    search({});
}

void List::search(const std::string& text) {
    searched_ = text;
    shown_ = search_.holding(text);
    if (text.empty() && position() >= 0) return;
    moveTo(static_cast<int>(search_.bestOf(shown_, text)));
}

int List::position() const {
    const auto at = std::find(shown_.begin(), shown_.end(), current_);
    return at == shown_.end() ? -1 : static_cast<int>(at - shown_.begin());
}

void List::moveTo(int position) {
    if (shown_.empty()) return;
    current_ = shown_[static_cast<std::size_t>(std::clamp(position, 0, static_cast<int>(shown_.size()) - 1))];
    changed_(current_);
}

void List::draw(Canvas& canvas, bool hasFocus) {
    const int count = static_cast<int>(shown_.size()), here = std::max(0, position());
    top_ = std::clamp(top_, std::max(0, here - area.rows + 1), here);
    top_ = std::clamp(top_, 0, std::max(0, count - area.rows));
    for (int line = 0; line < area.rows && top_ + line < count; ++line) {
        const int index = shown_[static_cast<std::size_t>(top_ + line)];
        const bool isCurrent = index == current_;
        const Style style = !isCurrent ? Style::Plain : hasFocus ? Style::Reversed : Style::Bold;
        if (isCurrent) canvas.fill(area.row + line, area.column, area.columns - 1, style);
        const std::string text = lineText ? lineText(index, area.columns - 1) : items_[static_cast<std::size_t>(index)];
        canvas.write(area.row + line, area.column, area.columns - 1, text, style);
    }
    if (count <= area.rows) return;
    const int bar = top_ * (area.rows - 1) / std::max(1, count - area.rows);
    for (int line = 0; line < area.rows; ++line)
        canvas.write(area.row + line, area.column + area.columns - 1, 1, line == bar ? "█" : "│", Style::Dim);
}

bool List::scroll(const Event& event) {
    if (event.kind != Event::Kind::Key) return false;
    switch (event.key) {
        case Key::Up:
            moveTo(position() - 1);
            return true;
        case Key::Down:
            moveTo(position() + 1);
            return true;
        case Key::PageUp:
            moveTo(position() - area.rows);
            return true;
        case Key::PageDown:
            moveTo(position() + area.rows);
            return true;
        case Key::Home:
            moveTo(0);
            return true;
        case Key::End:
            moveTo(static_cast<int>(shown_.size()) - 1);
            return true;
        default:
            return false;
    }
}

void List::pick() {
    if (shown_.empty()) return;
    isSearchDone_ = true;
    if (picked) picked(current_);
}

bool List::key(const Event& event) {
    if (scroll(event) || (before && before(event))) return true;
    std::string text = searched_;
    if (event.kind == Event::Kind::Character) {
        if (isSearchDone_) text.clear();
        appendCodePoint(text, event.character);
    } else if (event.is(Key::Backspace) && !text.empty()) {
        text.erase(byteAt(text, lengthOf(text) - 1));
    } else if (event.is(Key::ClearLine) || (event.is(Key::Escape) && !text.empty())) {
        text.clear();
    } else if (event.is(Key::Enter)) {
        pick();
        return true;
    } else {
        return false;
    }
    isSearchDone_ = false;
    search(text);
    return true;
}

void List::mouse(Mouse mouse, int row, int) {
    constexpr int kWheelLines = 3;
    constexpr long long kDoubleClick = 500;  // ms
    if (mouse == Mouse::WheelUp) return moveTo(position() - kWheelLines);
    if (mouse == Mouse::WheelDown) return moveTo(position() + kWheelLines);
    if (clicked) return clicked();
    if (top_ + row >= static_cast<int>(shown_.size())) return;
    moveTo(top_ + row);
    const auto now =
        std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now().time_since_epoch())
            .count();
    const bool isSecond = clickedItem_ == current_ && now - clickedAt_ < kDoubleClick;
    clickedItem_ = isSecond ? -1 : current_;
    clickedAt_ = now;
    if (isSecond) pick();
}

}  // namespace velor::terminal
