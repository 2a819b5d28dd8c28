// A stream for a terminal: names of a database from elsewhere may hold escape sequences.
#pragma once

#include <ostream>
#include <streambuf>
#include <string>

namespace velor {

// Passes UTF-8 text on to another stream line by line, each control character but line ends and tabulators as "?".
class SafeStream final : private std::streambuf, public std::ostream {
  public:
    explicit SafeStream(std::ostream& target) : std::ostream(this), target_(target) {}
    ~SafeStream() override { sync(); }

  private:
    std::streambuf::int_type overflow(std::streambuf::int_type c) override;
    int sync() override;

    std::ostream& target_;
    std::string held_;  // what was written since the last line end or flush
};

}  // namespace velor
