// The people in front of the command: what they are told, how they are asked, and how long they wait.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <istream>
#include <memory>
#include <mutex>
#include <stdexcept>
#include <string>
#include <thread>

#include "velor/run_time_error.h"
#include "velor/user_interface.h"

namespace velor::app {

// ---- What ends the command before its answer ---------------------------------------------------------------------

enum class ExitCode { Done = 0, NothingComputed = 1, WrongUse = 2, NoDatabase = 3, TimedOut = 4 };

// A Czech text for the error stream and the exit code.
class Failure : public std::runtime_error {
  public:
    Failure(ExitCode code, const std::string& text) : std::runtime_error(text), code_(code) {}

    ExitCode code() const noexcept { return code_; }

  private:
    ExitCode code_;
};

// Says something beside the answer: a line on the error stream.
void tell(const std::string& text);

// A run-time error of the library for Czech readers: "soubor nenalezen (chyba 53)".
std::string describe(const RunTimeError& error);

// While it exists the process may run for the given time; then a sentence goes to the error stream and the process ends
// with ExitCode::TimedOut. Waiting for the user does not count.
class TimeLimit {
  public:
    explicit TimeLimit(double seconds);
    ~TimeLimit();
    TimeLimit(const TimeLimit&) = delete;
    TimeLimit& operator=(const TimeLimit&) = delete;

    // Stops the clock while it exists; behind it the whole time is allowed again. A form may show a message of its own,
    // so that pauses may lie within each other.
    class Pause {
      public:
        explicit Pause(TimeLimit& limit) : limit_(limit) { limit_.pause(1); }
        ~Pause() { limit_.pause(-1); }
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

      private:
        TimeLimit& limit_;
    };

  private:
    using Clock = std::chrono::steady_clock;

    void pause(int change);
    void watch();

    const double seconds_;
    std::mutex mutex_;
    std::condition_variable changed_;
    Clock::time_point end_;
    int pauses_ = 0;  // that exist now
    bool isOver_ = false;
    std::thread watcher_;  // last, because it uses all above
};

// ---- User interfaces ---------------------------------------------------------------------------------------------

// In front of another one: what is not overridden is passed on.
class ForwardingUserInterface : public UserInterface {
  public:
    explicit ForwardingUserInterface(UserInterface& next) : next_(next) {}

    Answer showMessage(const Message& message) override { return next_.showMessage(message); }
    std::string askText(const InputRequest& request) override { return next_.askText(request); }
    void showForm(F_Sezn& form) override { next_.showForm(form); }
    void showForm(F_Seznam& form) override { next_.showForm(form); }
    void showForm(F_Sloz& form) override { next_.showForm(form); }
    void showForm(frmLatka& form) override { next_.showForm(form); }
    void showForm(F_Zmenaz& form) override { next_.showForm(form); }
    void showForm(frmOprav& form) override { next_.showForm(form); }

  private:
    UserInterface& next_;
};

// Dialogs that stop the clock while the user thinks: passes everything on to another user interface; the time that its
// answers take does not count.
class PatientUserInterface : public UserInterface {
  public:
    // Whether the dialogs take the whole screen; the input is the stream that their answers come from otherwise.
    PatientUserInterface(UserInterface& dialogs, bool isOnScreen, const std::istream& input, TimeLimit& limit)
        : dialogs_(dialogs), isOnScreen_(isOnScreen), input_(input), limit_(limit) {}

    Answer showMessage(const Message& message) override;
    std::string askText(const InputRequest& request) override;
    void showForm(F_Sezn& form) override { showPatiently(form); }
    void showForm(F_Seznam& form) override { showPatiently(form); }
    void showForm(F_Sloz& form) override { showPatiently(form); }
    void showForm(frmLatka& form) override { showPatiently(form); }
    void showForm(F_Zmenaz& form) override { showPatiently(form); }
    void showForm(frmOprav& form) override { showPatiently(form); }

    bool isOnScreen() const { return isOnScreen_; }
    // Whether an answer was due after the end of input: then No or Back is nobody's decision.
    bool isDeserted() const { return input_.fail(); }

  private:
    template <class Form>
    void showPatiently(Form& form) {
        const TimeLimit::Pause pause(limit_);
        dialogs_.showForm(form);
    }

    UserInterface& dialogs_;
    bool isOnScreen_;
    const std::istream& input_;
    TimeLimit& limit_;
};

// How the command's dialogs are led.
struct Dialogs {
    std::unique_ptr<UserInterface> userInterface;
    bool areOnScreen = false;
};

// On the whole screen of the terminal that the output leads to; by questions and answers, a line each, where there is
// no such terminal or no output is given.
Dialogs dialogsOn(std::FILE* output);

}  // namespace velor::app
