// What is wrong with a text, and on which of its lines.
#pragma once

#include <algorithm>
#include <cstddef>
#include <exception>
#include <string>
#include <utility>
#include <vector>

namespace velor::baze {

struct LineFault {
    int line = 0;
    std::string reason;  // Czech, for the user
};

// No more than people will read: a file of another kind would have one on every line.
class LineFaults {
  public:
    static constexpr std::size_t kMost = 100;

    // Where one more is found after the last that is kept; nothing else is worth reading then.
    struct Full : std::exception {};

    void push_back(LineFault fault) {
        if (faults_.size() == kMost) throw Full();
        faults_.push_back(std::move(fault));
    }
    std::size_t size() const { return faults_.size(); }
    bool empty() const { return faults_.empty(); }
    const LineFault& front() const { return faults_.front(); }
    auto begin() const { return faults_.begin(); }
    auto end() const { return faults_.end(); }
    void sortByLine() { std::ranges::stable_sort(faults_, {}, &LineFault::line); }

  private:
    std::vector<LineFault> faults_;
};

// Faults of form (a cell that is no number, a text too long) are always looked for: nothing could be stored. Faults of
// content (a wrong CAS check digit, a negative critical temperature) are left to a database that was written by
// another program and is to survive as it is.
enum class Checks { Full, FormOnly };

}  // namespace velor::baze
