// The commands of velor-baze: each adds itself to the command line, and does its work once that is read.
#pragma once

#include <CLI/CLI.hpp>
#include <functional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "baze/fault.h"
#include "velor/record.h"

namespace velor::baze {

inline constexpr int kDone = 0;
inline constexpr int kFailed = 1;
inline constexpr int kWrongCommandLine = 2;

// What the command that was given does; its exit code.
using Action = std::function<int()>;

void addCompile(CLI::App& app, Action& action);
void addDecompile(CLI::App& app, Action& action);
void addAccuracy(CLI::App& app, Action& action);
void addOwnSubstancesCommand(CLI::App& app, Action& action);
void addConsistency(CLI::App& app, Action& action);
void addEstimate(CLI::App& app, Action& action);
void addFit(CLI::App& app, Action& action);
void addTemplateCommand(CLI::App& app, Action& action);

// ---- What they share ---------------------------------------------------------------------------------------------

// Something that stops the program, already in words for the user.
class Failure : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

CLI::App* addCommand(CLI::App& app, const std::string& name, const std::string& description);
// The name says what it is; a type beside it would only repeat that.
void addArgument(CLI::App& command, const std::string& name, std::string& value, const std::string& description);

std::string pathIn(const std::string& folder, std::string_view name);
std::string fullPath(const std::string& path);

// Whole files; Failure names the file and the reason.
std::string readFile(const std::string& path);
void writeFile(const std::string& path, std::string_view content);
// A database and the supplement beside it.
void writeDatabase(const std::string& path, std::string_view bytes, std::string_view supplement);
// An output that is an input is refused.
void requireOther(const std::string& output, const std::string& input);
// The records of a database, in the order of their numbers from 1.
std::vector<TLatka> readRecords(const std::string& path);

// The faults of a file, a line each, as file:line: reason.
void report(const std::string& path, const LineFaults& faults);
void reportThatThereAreMore();
// Reads something of the file's text that names its faults; Failure where it has any, after they were reported.
template <class Reading>
auto readTable(const std::string& path, Reading reading) {
    LineFaults faults;
    const std::string text = readFile(path);
    decltype(reading(std::string_view(text), faults)) result;
    try {
        result = reading(std::string_view(text), faults);
    } catch (const LineFaults::Full&) {
    }
    report(path, faults);
    if (!faults.empty()) throw Failure(path + ": soubor nelze použít");
    return result;
}

}  // namespace velor::baze
