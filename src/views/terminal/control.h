// What a form's view is made of. A control knows its place and shows what it is given; what it does is up to the view.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "views/line_search.h"
#include "views/terminal/canvas.h"

namespace velor::terminal {

class Control {
  public:
    virtual ~Control() = default;

    Area area;              // on the page; placed by the view's layout
    bool isPinned = false;  // rows count from the end of the screen, and do not scroll
    bool isShown = true;
    std::string hint;  // what its keys do, shown while it has the focus

    virtual bool takesFocus() const { return false; }
    virtual bool takesWheel() const { return false; }
    virtual void draw(Canvas& canvas, bool hasFocus) = 0;
    // Whether the control has used the key.
    virtual bool key(const Event&) { return false; }
    // Row and column within the control.
    virtual void mouse(Mouse, int /*row*/, int /*column*/) {}
    virtual void accelerate(char32_t /*letter*/) {}
    virtual void focused() {}
};

// Text that changes with what is shown; wraps at its width.
class Label : public Control {
  public:
    explicit Label(std::function<std::string()> text, Style style = Style::Plain)
        : text_(std::move(text)), style_(style) {}
    std::function<void(Mouse)> clicked;

    void draw(Canvas& canvas, bool hasFocus) override;
    void mouse(Mouse mouse, int, int) override;
    // Rows that the text takes in that width.
    int rowsIn(int width) const;

  private:
    std::function<std::string()> text_;
    Style style_;
};

// One line of text to be typed. The view hears of every change and of every key before the control takes it.
class TextField : public Control {
  public:
    TextField(std::function<std::string()> text, std::function<void(std::string)> changed)
        : text_(std::move(text)), changed_(std::move(changed)) {}
    std::function<bool(const Event&)> before;  // true: the view has used the key
    std::function<void(const Event&)> after;

    bool takesFocus() const override { return isShown; }
    void draw(Canvas& canvas, bool hasFocus) override;
    bool key(const Event& event) override;
    void mouse(Mouse, int row, int column) override;
    // A field that gets the focus has its text selected: the first character typed replaces it.
    void focused() override;

  private:
    bool edit(const Event& event);
    bool moveCursor(const Event& event, int length);

    std::function<std::string()> text_;
    std::function<void(std::string)> changed_;
    int cursor_ = 0;  // in characters
    int first_ = 0;   // the first character shown
    bool isSelected_ = false;
};

// A button or an option; Enter, blank, a click or Alt with the letter marked "&" in its caption press it.
class Button : public Control {
  public:
    Button(std::function<std::string()> caption, std::function<void()> pressed)
        : caption_(std::move(caption)), pressed_(std::move(pressed)) {
        hint = "Enter potvrdí · Tab dál · Esc zpět";
    }
    std::function<bool()> isChosen;  // an option's mark; a plain button has none

    bool takesFocus() const override { return isShown; }
    int width() const;
    void draw(Canvas& canvas, bool hasFocus) override;
    bool key(const Event& event) override;
    void mouse(Mouse, int, int) override { pressed_(); }
    void accelerate(char32_t letter) override;

  private:
    std::function<std::string()> caption_;
    std::function<void()> pressed_;
};

// A list with search as you type: letters narrow it down to the lines that hold them, without regard to letter case and
// diacritics.
class List : public Control {
  public:
    // The items stay as they are while the list lives.
    List(const std::vector<std::string>& items, int selected, std::function<void(int index)> changed);
    std::function<void(int index)> picked;                      // by Enter or a double click
    std::function<bool(const Event&)> before;                   // true: the view has used the key
    std::function<void()> clicked;                              // instead of what a click does otherwise
    std::function<std::string(int index, int width)> lineText;  // an item as it is shown, where not as it is searched

    bool takesFocus() const override { return isShown; }
    bool takesWheel() const override { return true; }
    void draw(Canvas& canvas, bool hasFocus) override;
    bool key(const Event& event) override;
    void mouse(Mouse mouse, int row, int column) override;

    void search(const std::string& text);
    const std::string& searched() const { return searched_; }
    std::size_t found() const { return shown_.size(); }
    void select(int index) { current_ = index; }
    // Up, Down and the like, for a field that keeps the focus while the list moves.
    bool scroll(const Event& event);

  private:
    void moveTo(int position);
    int position() const;  // of the selected item among those shown; -1 where it is not
    void pick();

    const std::vector<std::string>& items_;
    std::function<void(int)> changed_;
    LineSearch search_;
    std::vector<int> shown_;  // indices of the items that hold the searched text
    std::string searched_;
    bool isSearchDone_ = false;  // an item was picked: the next letter begins another search
    int current_;                // index of the selected item
    int top_ = 0;                // position of the first line shown
    int clickedItem_ = -1;
    long long clickedAt_ = 0;  // ms
};

}  // namespace velor::terminal
