#include <cstdlib>
#include <iostream>

#include "people/people.h"
#include "velor/text.h"

namespace velor::app {

namespace {

[[noreturn]] void giveUp(double seconds) {
    std::cerr << "velor: Výpočet neskončil do " << roundedText(seconds)
              << " s a byl přerušen. Limit lze změnit přepínačem --limit." << std::endl;
    std::_Exit(static_cast<int>(ExitCode::TimedOut));  // the computation cannot be stopped in any other way
}

}  // namespace

TimeLimit::TimeLimit(double seconds) : seconds_(seconds) {
    pause(0);
    watcher_ = std::thread([this] { watch(); });
}

TimeLimit::~TimeLimit() {
    {
        const std::lock_guard lock(mutex_);
        isOver_ = true;
    }
    changed_.notify_one();
    watcher_.join();
}

void TimeLimit::pause(int change) {
    {
        const std::lock_guard lock(mutex_);
        pauses_ += change;
        end_ = Clock::now() + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds_));
    }
    changed_.notify_one();
}

void TimeLimit::watch() {
    std::unique_lock lock(mutex_);
    while (!isOver_) {
        if (pauses_ > 0) {
            changed_.wait(lock);
        } else if (Clock::now() >= end_) {
            giveUp(seconds_);
        } else {
            changed_.wait_until(lock, end_);
        }
    }
}

}  // namespace velor::app
