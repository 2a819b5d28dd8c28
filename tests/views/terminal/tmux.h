// A program on a terminal of the test's own: tmux stands for the terminal and for the person in front of it.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <memory>
#include <sstream>
#include <string>
#include <thread>

#include "support/temporary_folder.h"

namespace velor::test {

class Tmux {
  public:
    Tmux(int columns, int rows) {
        run("new-session -d -x " + std::to_string(columns) + " -y " + std::to_string(rows) +
            " 'PS1=\\$\\  exec bash --norc --noprofile -i'");
        waitFor("$");
    }
    ~Tmux() { run("kill-server"); }
    Tmux(const Tmux&) = delete;
    Tmux& operator=(const Tmux&) = delete;

    // Keys by tmux's names for them: "Enter", "F2", "M-s" (Alt), "C-c"; anything else is typed as it stands.
    void press(const std::string& keys) { run("send-keys " + keys); }
    void type(const std::string& text) { run("send-keys -l -- '" + text + "'"); }
    void resize(int columns, int rows) {
        run("resize-window -x " + std::to_string(columns) + " -y " + std::to_string(rows));
    }
    // A button of the mouse at a row and column counted from 0, pressed and released.
    void click(int row, int column, int button = 0) {
        constexpr int kReleased = 3;
        for (const int state : {button, kReleased}) {
            std::string bytes = "\033[M";
            for (const int value : {state, column + 1, row + 1}) bytes += static_cast<char>(32 + value);
            type(bytes);
        }
    }

    std::string screen() { return run("capture-pane -p"); }
    // Waits until the screen holds the text, and gives the screen.
    std::string waitFor(const std::string& text) {
        return waitUntil([&](const std::string& shown) { return shown.find(text) != std::string::npos; }, text);
    }
    std::string waitUntilGone(const std::string& text) {
        return waitUntil([&](const std::string& shown) { return shown.find(text) == std::string::npos; }, "no " + text);
    }
    // The row that holds the text, counted from 0; -1 where none does.
    int rowOf(const std::string& text) {
        std::istringstream lines(screen());
        int row = 0;
        for (std::string line; std::getline(lines, line); ++row)
            if (line.find(text) != std::string::npos) return row;
        return -1;
    }
    std::string line(const std::string& text) {
        std::istringstream lines(screen());
        for (std::string line; std::getline(lines, line);)
            if (line.find(text) != std::string::npos) return line;
        return {};
    }
    // "alternate screen, cursor, mouse": 0 or 1 each.
    std::string modes() { return run("display -p '#{alternate_on}#{cursor_flag}#{mouse_any_flag}'").substr(0, 3); }

  private:
    std::string run(const std::string& command) const {
        const std::string line = "tmux -u -f /dev/null -S " + (folder_ / "socket") + " " + command + " 2>&1";
        const std::unique_ptr<FILE, decltype([](FILE* pipe) { pclose(pipe); })> pipe(popen(line.c_str(), "r"));
        std::string output;
        std::array<char, 4096> part{};
        while (const std::size_t count = fread(part.data(), 1, part.size(), pipe.get()))
            output.append(part.data(), count);
        return output;
    }
    template <class Condition>
    std::string waitUntil(const Condition& isMet, const std::string& what) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        std::string shown;
        do {
            shown = screen();
            if (isMet(shown)) return shown;
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        } while (std::chrono::steady_clock::now() < end);
        ADD_FAILURE() << "waited for " << what << " in\n" << shown;
        return shown;
    }

    TemporaryFolder folder_;
};

}  // namespace velor::test
