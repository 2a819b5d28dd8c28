// Where a form's controls stand when it is resized or shown at another resolution.
#pragma once

#include <windows.h>

#include <span>
#include <vector>

namespace velor::forms {

// What of the room that a form gains a control takes; a form made smaller takes it back.
enum Stretch : unsigned { kMoveX = 1, kMoveY = 2, kGrowX = 4, kGrowY = 8 };

// The controls with the numbers first to last.
struct Anchor {
    int first, last;
    unsigned stretch;
};

class Layout {
  public:
    Layout() = default;
    // Remembers how the controls stand now, at that resolution. Controls without an anchor keep their place.
    Layout(HWND window, unsigned dpi, std::span<const Anchor> anchors);

    // Puts the controls where they belong in the window as large as it is.
    void arrange(HWND window, unsigned dpi) const;
    int scaled(LONG length, unsigned dpi) const;

  private:
    struct Place {
        HWND control;
        RECT rectangle;
        unsigned stretch;
    };

    RECT placed(const Place& place, SIZE gain, unsigned dpi) const;

    SIZE client_{};
    unsigned dpi_ = USER_DEFAULT_SCREEN_DPI;
    std::vector<Place> places_;
};

// Centres the window on its owner, or on the screen, and keeps all of it on that screen.
void centre(HWND window, HWND owner);

}  // namespace velor::forms
