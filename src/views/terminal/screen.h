// The terminal's whole screen, from its creation to its end.
#pragma once

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "views/terminal/event.h"
#include "views/terminal/geometry.h"

namespace velor::terminal {

enum class Style { Plain, Bold, Dim, Underlined, Reversed, Error };

class RestoreOnSignal;

class Screen {
  public:
    // Whether both streams are one person's terminal that can be drawn on.
    static bool isPossible(std::FILE* input, std::FILE* output);

    // Takes the terminal over; what it showed comes back at the end. Throws std::runtime_error where it is not
    // possible.
    Screen(std::FILE* input, std::FILE* output);
    ~Screen();
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    Size size() const;
    // Waits for what the user does next.
    Event read();

    void clear();
    // Text within the columns from..to of a row, cut at both; what lies outside the screen is not drawn. Returns the
    // column behind it.
    int write(int row, int column, int from, int to, std::string_view text, Style style);
    void showCursor(int row, int column);
    void hideCursor();
    void show();

    // What is drawn, the lowest first: a box lies over the form that opened it.
    class Layer {
      public:
        virtual ~Layer() = default;
        virtual void draw(Screen& screen) = 0;
    };
    std::vector<Layer*> layers;

  private:
    struct Terminal;
    std::unique_ptr<Terminal> terminal_;
    std::unique_ptr<RestoreOnSignal> restore_;
};

// Columns that the text takes on the screen.
int columnsOf(std::string_view text);

// The text in at most that many columns; "…" stands for what does not fit.
std::string cutTo(const std::string& text, int width);

}  // namespace velor::terminal
