// The last resort against a computation that does not end.
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace velor::app {

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

}  // namespace velor::app
