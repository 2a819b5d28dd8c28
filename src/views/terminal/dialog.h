// A form or box on the screen: its controls, the focus that walks through them, and the loop until it is closed.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "views/terminal/control.h"
#include "views/terminal/screen.h"

namespace velor::terminal {

class Dialog : public Screen::Layer {
  public:
    Dialog(Screen& screen, std::function<std::string()> title) : screen_(screen), title_(std::move(title)) {}
    ~Dialog() override;
    Dialog(const Dialog&) = delete;
    Dialog& operator=(const Dialog&) = delete;

    std::function<void(Size page)> layout;  // places the controls on the page
    std::function<void()> escape;           // Esc, or nobody is there any more
    std::function<bool(const Event&)> before;
    std::function<void()> after;        // behind every event: the view follows the form's focus
    std::function<Size(Size)> boxSize;  // of a box over what is there; without it the whole screen is taken
    Style titleStyle = Style::Bold;     // of a box
    int pinnedRows = 0;                 // at the end of the screen, for controls that do not scroll

    template <class C, class... Arguments>
    C& add(Arguments&&... arguments) {
        auto control = std::make_unique<C>(std::forward<Arguments>(arguments)...);
        C& added = *control;
        controls_.push_back(std::move(control));
        return added;
    }

    void focus(const Control& control);
    bool hasFocus(const Control& control) const { return focused_ == &control; }

    // Moves the page up (negative) or down.
    void scroll(int rows);

    // Shows the dialog and passes on what the user does, until isOpen is false.
    void run(const bool& isOpen);
    // Whether it was closed because nobody can answer any more.
    bool isDeserted() const { return isDeserted_; }
    void draw(Screen& screen) override;

  private:
    struct Places {
        Area outer, page, pinned;
    };

    Places places() const;
    void drawFrame(const Places& at);
    void drawMoreMarks(const Area& page);
    void dispatch(const Event& event);
    void pressKey(const Event& event);
    void pressMouse(const Event& event);
    void walk(int step);
    void keepFocusInSight(int pageRows);
    int pageLength() const;

    Screen& screen_;
    std::function<std::string()> title_;
    std::vector<std::unique_ptr<Control>> controls_;
    Control* focused_ = nullptr;
    int firstRow_ = 0;
    bool followsFocus_ = true;
    bool isDeserted_ = false;
};

// Buttons one behind another on a row, from the column on; they take a new row where the width ends. Returns the rows
// taken.
int placeInRows(const std::vector<Button*>& buttons, int row, int width);

}  // namespace velor::terminal
