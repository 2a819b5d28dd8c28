// The one exception of the library: a classic run-time error with its number, source and description.
#pragma once

#include <cstdint>
#include <exception>
#include <string>

namespace velor {

class RunTimeError : public std::exception {
  public:
    // The classic numbers that the library raises.
    enum Number : std::int32_t {
        kInvalidCall = 5,            // logarithm, root or power of what has none; a negative length
        kOverflow = 6,               // a result that is not finite or does not fit its type
        kSubscript = 9,              // an index outside its array
        kDivisionByZero = 11,        // 0/0 included
        kTypeMismatch = 13,          // a text that is no number, an array where a number belongs
        kFileNotFound = 53,          //
        kInputPastEnd = 62,          // nobody can answer, or a text file ends too early
        kPermissionDenied = 70,      //
        kPathFileAccess = 75,        // a folder in the place of a file, a device that fails
        kPathNotFound = 76,          // the folder of a file does not exist
        kInvalidUseOfNull = 94,      //
        kRaisedToHost = -2147220904  // &H80040258: raised on purpose while ChyboveHlasky is -1
    };

    // A classic error with its classic description and the source "VELOR".
    explicit RunTimeError(Number number);
    RunTimeError(std::int32_t number, std::string source, std::string description);

    std::int32_t number() const noexcept { return number_; }
    const std::string& source() const noexcept { return source_; }
    const std::string& description() const noexcept { return description_; }
    const char* what() const noexcept override { return description_.c_str(); }

  private:
    std::int32_t number_;
    std::string source_;
    std::string description_;
};

}  // namespace velor
