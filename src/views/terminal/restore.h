// The terminal as it was, on ways out of the program that run no destructor.
#pragma once

#include <csignal>
#include <cstddef>
#include <iterator>
#include <string_view>

namespace velor::terminal {

// While it exists, a signal that ends the program (Ctrl-C, a request to end, a crash) first gives the terminal back:
// its modes, its cursor and the screen that was there before. The signal then does what it would have done.
class RestoreOnSignal {
  public:
    // The file descriptors of the terminal, in the modes to go back to.
    RestoreOnSignal(int input, int output);
    ~RestoreOnSignal();
    RestoreOnSignal(const RestoreOnSignal&) = delete;
    RestoreOnSignal& operator=(const RestoreOnSignal&) = delete;

    // The bytes that undo what has been switched on.
    static void undoWith(std::string_view bytes);

  private:
    static constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGABRT, SIGSEGV, SIGBUS, SIGFPE, SIGILL};
    struct sigaction before_[std::size(kSignals)];
};

}  // namespace velor::terminal
