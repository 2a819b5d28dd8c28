#include "views/terminal/dialog.h"

#include <algorithm>

#include "velor/text.h"

namespace velor::terminal {

Dialog::~Dialog() { std::erase(screen_.layers, this); }

// ---- Drawing -----------------------------------------------------------------------------------------------------

Dialog::Places Dialog::places() const {
    const Size screen = screen_.size();
    if (!boxSize) {
        const int pinned = std::min(pinnedRows, std::max(0, screen.rows - 3));
        return {{0, 0, screen.rows, screen.columns},
                {1, 0, std::max(0, screen.rows - 2 - pinned), screen.columns},
                {screen.rows - 1 - pinned, 0, pinned, screen.columns}};
    }
    const Size box = boxSize(screen);
    const Area outer{std::max(0, (screen.rows - box.rows) / 2), std::max(0, (screen.columns - box.columns) / 2),
                     std::min(box.rows, screen.rows), std::min(box.columns, screen.columns)};
    const int pinned = std::min(pinnedRows, std::max(0, outer.rows - 2));
    return {outer,
            {outer.row + 1, outer.column + 2, std::max(0, outer.rows - 2 - pinned), std::max(0, outer.columns - 4)},
            {outer.row + outer.rows - 1 - pinned, outer.column + 2, pinned, std::max(0, outer.columns - 4)}};
}

// That there is more above or below, at the right end of the page.
void Dialog::drawMoreMarks(const Area& page) {
    Canvas canvas(screen_, {page.row, page.column, page.rows, page.columns});
    if (firstRow_ > 0) canvas.write(0, page.columns - 1, 1, "↑", Style::Bold);
    if (firstRow_ + page.rows < pageLength()) canvas.write(page.rows - 1, page.columns - 1, 1, "↓", Style::Bold);
}

void Dialog::drawFrame(const Places& at) {
    const std::string title(trimBlanks(title_()));
    Canvas canvas(screen_, at.outer);
    const int last = at.outer.rows - 1, width = at.outer.columns;
    if (!boxSize) {
        screen_.clear();  // what lies below is out of sight
        canvas.fill(0, 0, width, Style::Reversed);
        canvas.write(0, 1, width - 2, title, Style::Reversed);
        if (focused_) canvas.write(last, 1, width - 2, focused_->hint, Style::Dim);
        return;
    }
    std::string line;
    for (int i = 0; i < width - 2; ++i) line += "─";
    for (int row = 0; row <= last; ++row) canvas.fill(row, 0, width, Style::Plain);
    canvas.write(0, 0, width, "┌" + line + "┐");
    for (int row = 1; row < last; ++row) {
        canvas.write(row, 0, 1, "│");
        canvas.write(row, width - 1, 1, "│");
    }
    canvas.write(last, 0, width, "└" + line + "┘");
    canvas.write(0, 2, width - 4, " " + title + " ", titleStyle);
}

int Dialog::pageLength() const {
    int rows = 0;
    for (const auto& control : controls_)
        if (control->isShown && !control->isPinned) rows = std::max(rows, control->area.row + control->area.rows);
    return rows;
}

void Dialog::keepFocusInSight(int pageRows) {
    if (followsFocus_ && focused_ && !focused_->isPinned) {
        const Area& area = focused_->area;
        firstRow_ = std::clamp(firstRow_, std::min(area.row, area.row + area.rows - pageRows), area.row);
    }
    firstRow_ = std::clamp(firstRow_, 0, std::max(0, pageLength() - pageRows));
}

void Dialog::draw(Screen& screen) {
    const Area wholePage = places().page;
    layout({wholePage.rows, wholePage.columns});
    const Places at = places();  // the layout decides how many rows are pinned
    keepFocusInSight(at.page.rows);
    screen.hideCursor();
    drawFrame(at);
    Canvas page(screen, at.page, firstRow_), pinned(screen, at.pinned);
    for (const auto& control : controls_)
        if (control->isShown && control.get() != focused_) control->draw(control->isPinned ? pinned : page, false);
    drawMoreMarks(at.page);
    // The last one: it places the cursor.
    if (focused_) focused_->draw(focused_->isPinned ? pinned : page, true);
}

// ---- What the user does ------------------------------------------------------------------------------------------

void Dialog::focus(const Control& control) {
    const auto found = std::find_if(controls_.begin(), controls_.end(), [&](auto& c) { return c.get() == &control; });
    if (found == controls_.end()) return;
    followsFocus_ = true;
    focused_ = found->get();
    focused_->focused();
}

void Dialog::walk(int step) {
    const auto count = static_cast<int>(controls_.size());
    const auto here = std::find_if(controls_.begin(), controls_.end(), [&](auto& c) { return c.get() == focused_; });
    int index = here == controls_.end() ? -1 : static_cast<int>(here - controls_.begin());
    for (int tried = 0; tried < count; ++tried) {
        index = (index + step + count) % count;
        if (controls_[static_cast<std::size_t>(index)]->takesFocus())
            return focus(*controls_[static_cast<std::size_t>(index)]);
    }
}

void Dialog::scroll(int rows) {
    followsFocus_ = false;
    firstRow_ += rows;
}

void Dialog::pressKey(const Event& event) {
    if (focused_ && focused_->key(event)) return;
    switch (event.key) {
        case Key::Tab:
        case Key::Down:
        case Key::Right:
            return walk(+1);
        case Key::BackTab:
        case Key::Up:
        case Key::Left:
            return walk(-1);
        case Key::PageUp:
        case Key::PageDown:
            return scroll((event.key == Key::PageUp ? -1 : 1) * std::max(1, places().page.rows - 1));
        case Key::Escape:
            return escape();
        default:
            return;
    }
}

void Dialog::pressMouse(const Event& event) {
    const Places at = places();
    for (const auto& control : controls_) {
        const Area& area = control->isPinned ? at.pinned : at.page;
        if (!control->isShown || !area.holds(event.row, event.column)) continue;
        const int row = event.row - area.row + (control->isPinned ? 0 : firstRow_), column = event.column - area.column;
        if (!control->area.holds(row, column)) continue;
        const bool isWheel = event.mouse == Mouse::WheelUp || event.mouse == Mouse::WheelDown;
        if (isWheel && !control->takesWheel()) continue;
        if (control->takesFocus()) focus(*control);
        return control->mouse(event.mouse, row - control->area.row, column - control->area.column);
    }
    constexpr int kWheelRows = 3;
    if (event.mouse == Mouse::WheelUp) scroll(-kWheelRows);
    if (event.mouse == Mouse::WheelDown) scroll(kWheelRows);
}

void Dialog::dispatch(const Event& event) {
    if (event.kind == Event::Kind::Deserted) {
        isDeserted_ = true;
        return escape();
    }
    if (before && before(event)) return;
    switch (event.kind) {
        case Event::Kind::Key:
        case Event::Kind::Character:
            return pressKey(event);
        case Event::Kind::Mouse:
            return pressMouse(event);
        case Event::Kind::Accelerator:
            for (const auto& control : controls_)
                if (control->isShown) control->accelerate(event.character);
            return;
        default:
            return;
    }
}

void Dialog::run(const bool& isOpen) {
    screen_.layers.push_back(this);
    if (!focused_) walk(+1);
    while (isOpen) {
        screen_.clear();
        for (Screen::Layer* layer : screen_.layers) layer->draw(screen_);
        screen_.show();
        dispatch(screen_.read());
        if (after) after();
    }
    std::erase(screen_.layers, this);
}

int placeInRows(const std::vector<Button*>& buttons, int row, int width) {
    constexpr int kGap = 2;
    int column = 1, rows = 1;
    for (Button* button : buttons) {
        if (column > 1 && column + button->width() > width) {
            column = 1;
            ++rows;
        }
        button->area = {row + rows - 1, column, 1, button->width()};
        column += button->width() + kGap;
    }
    return rows;
}

}  // namespace velor::terminal
