#include "views/terminal/restore.h"

#include <termios.h>
#include <unistd.h>

#include <algorithm>
#include <array>

namespace velor::terminal {

namespace {

// A signal handler reaches nothing but what is static; there is one terminal a process.
struct Remembered {
    int input = -1, output = -1;
    termios modes{};
    std::array<char, 256> undo{};
    std::size_t undoLength = 0;
};
Remembered remembered;

// Only calls that are allowed within a handler.
void giveBack(int signal) {
    // Stopped and in the background, the shell has the terminal and has set it as it wants it.
    const bool isOurs = tcgetpgrp(remembered.input) == getpgrp();
    std::size_t written = isOurs ? 0 : remembered.undoLength;
    while (written < remembered.undoLength) {
        const ssize_t count =
            write(remembered.output, remembered.undo.data() + written, remembered.undoLength - written);
        if (count <= 0) break;
        written += static_cast<std::size_t>(count);
    }
    if (isOurs) tcsetattr(remembered.input, TCSANOW, &remembered.modes);
    raise(signal);  // the disposition is the default one again
}

}  // namespace

RestoreOnSignal::RestoreOnSignal(int input, int output) {
    remembered = {};
    remembered.input = input;
    remembered.output = output;
    tcgetattr(input, &remembered.modes);
    struct sigaction action {};
    action.sa_handler = giveBack;
    action.sa_flags = SA_RESETHAND | SA_NODEFER;
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < std::size(kSignals); ++i) {
        sigaction(kSignals[i], nullptr, &before_[i]);
        // What the caller has chosen to ignore stays ignored.
        if (before_[i].sa_handler != SIG_IGN) sigaction(kSignals[i], &action, nullptr);
    }
}

RestoreOnSignal::~RestoreOnSignal() {
    for (std::size_t i = 0; i < std::size(kSignals); ++i) sigaction(kSignals[i], &before_[i], nullptr);
}

void RestoreOnSignal::undoWith(std::string_view bytes) {
    remembered.undoLength = std::min(bytes.size(), remembered.undo.size());
    std::copy_n(bytes.begin(), remembered.undoLength, remembered.undo.begin());
}

}  // namespace velor::terminal
