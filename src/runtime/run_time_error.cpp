#include "velor/run_time_error.h"

#include <utility>

#include "runtime/checked.h"

namespace velor {

namespace {

const char* classicDescription(RunTimeError::Number number) {
    switch (number) {
        case RunTimeError::kInvalidCall:
            return "Invalid procedure call or argument";
        case RunTimeError::kOverflow:
            return "Overflow";
        case RunTimeError::kSubscript:
            return "Subscript out of range";
        case RunTimeError::kDivisionByZero:
            return "Division by zero";
        case RunTimeError::kTypeMismatch:
            return "Type mismatch";
        case RunTimeError::kFileNotFound:
            return "File not found";
        case RunTimeError::kInputPastEnd:
            return "Input past end of file";
        case RunTimeError::kPermissionDenied:
            return "Permission denied";
        case RunTimeError::kPathFileAccess:
            return "Path/File access error";
        case RunTimeError::kPathNotFound:
            return "Path not found";
        case RunTimeError::kInvalidUseOfNull:
            return "Invalid use of Null";
        case RunTimeError::kRaisedToHost:
            break;
    }
    return "Application-defined or object-defined error";
}

}  // namespace

RunTimeError::RunTimeError(Number number) : RunTimeError(number, "VELOR", classicDescription(number)) {}

RunTimeError::RunTimeError(std::int32_t number, std::string source, std::string description)
    : number_(number), source_(std::move(source)), description_(std::move(description)) {}

void checked::raise(RunTimeError::Number number) { throw RunTimeError(number); }

void checked::raiseDivision(double denominator) {
    raise(denominator == 0.0 ? RunTimeError::kDivisionByZero : RunTimeError::kOverflow);
}

}  // namespace velor
