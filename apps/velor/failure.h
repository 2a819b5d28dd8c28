// What ends the command before its answer: a Czech text for the error stream and the exit code.
#pragma once

#include <stdexcept>
#include <string>

namespace velor::app {

enum class ExitCode { Done = 0, NothingComputed = 1, WrongUse = 2, NoDatabase = 3, TimedOut = 4 };

class Failure : public std::runtime_error {
  public:
    Failure(ExitCode code, const std::string& text) : std::runtime_error(text), code_(code) {}

    ExitCode code() const noexcept { return code_; }

  private:
    ExitCode code_;
};

}  // namespace velor::app
