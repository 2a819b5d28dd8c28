// The last resort against a computation that does not end.
#pragma once

#include <chrono>
#include <condition_variable>
#include <iosfwd>
#include <mutex>
#include <thread>

#include "velor/user_interface.h"

namespace velor::app {

// While it exists the process may run for the given time; then a sentence goes to the error stream and the process ends
// with ExitCode::TimedOut. Waiting for the user does not count.
class TimeLimit {
  public:
    explicit TimeLimit(double seconds);
    ~TimeLimit();
    TimeLimit(const TimeLimit&) = delete;
    TimeLimit& operator=(const TimeLimit&) = delete;

    // Stops the clock while it exists; behind it the whole time is allowed again.
    class Pause {
      public:
        explicit Pause(TimeLimit& limit) : limit_(limit) { limit_.set(true); }
        ~Pause() { limit_.set(false); }
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

      private:
        TimeLimit& limit_;
    };

  private:
    using Clock = std::chrono::steady_clock;

    void set(bool isPaused);
    void watch();

    const double seconds_;
    std::mutex mutex_;
    std::condition_variable changed_;
    Clock::time_point end_;
    bool isPaused_ = false;
    bool isOver_ = false;
    std::thread watcher_;  // last, because it uses all above
};

// Questions and answers on streams that stop the clock while the user thinks.
class PatientUserInterface : public StreamUserInterface {
  public:
    PatientUserInterface(std::istream& answers, std::ostream& messages, TimeLimit& limit)
        : StreamUserInterface(answers, messages), limit_(limit) {}

    Answer showMessage(const Message& message) override;
    std::string askText(const InputRequest& request) override;

  private:
    TimeLimit& limit_;
};

}  // namespace velor::app
