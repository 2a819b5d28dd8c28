#include <cstdint>
#include <filesystem>
#include <iostream>
#include <span>
#include <system_error>

#include "commands/commands.h"
#include "records/record_layout.h"
#include "shared/files.h"
#include "velor/run_time_error.h"
#include "velor/supplement.h"
#include "velor/text.h"

namespace velor::baze {

namespace {

using app::systemPath;
using app::utf8Path;

std::string inCzech(const RunTimeError& error) {
    switch (error.number()) {
        case RunTimeError::kFileNotFound:
            return "soubor neexistuje";
        case RunTimeError::kPermissionDenied:
            return "přístup odepřen";
        case RunTimeError::kPathNotFound:
            return "složka neexistuje";
        default:
            return "soubor nelze číst nebo zapsat";
    }
}

// Far more than all substances that there are numbers for.
constexpr std::uintmax_t kMostBytes = 64U << 20U;

void requireModestSize(const std::string& path) {
    std::error_code unknown;
    const std::uintmax_t size = std::filesystem::file_size(systemPath(path), unknown);
    if (!unknown && size > kMostBytes)
        throw Failure(path + ": soubor má " + std::to_string(size) + " bajtů, přijímá se nejvýše " +
                      std::to_string(kMostBytes));
}

}  // namespace

CLI::App* addCommand(CLI::App& app, const std::string& name, const std::string& description) {
    CLI::App* command = app.add_subcommand(name, description);
    command->group("Příkazy");
    command->get_help_ptr()->group("Volby");
    return command;
}

void addArgument(CLI::App& command, const std::string& name, std::string& value, const std::string& description) {
    command.add_option(name, value, description)->required()->type_name("");
}

std::string pathIn(const std::string& folder, std::string_view name) {
    return utf8Path(systemPath(folder) / systemPath(std::string(name)));
}

std::string fullPath(const std::string& path) {
    return utf8Path(std::filesystem::absolute(systemPath(path)).lexically_normal());
}

std::string readFile(const std::string& path) {
    requireModestSize(path);
    try {
        return app::readFile(path);
    } catch (const RunTimeError& error) {
        throw Failure(path + ": " + inCzech(error));
    }
}

void writeFile(const std::string& path, std::string_view content) {
    try {
        app::replaceFile(path, content);
    } catch (const RunTimeError& error) {
        throw Failure(path + ": " + inCzech(error));
    }
}

void writeDatabase(const std::string& path, std::string_view bytes, std::string_view supplement) {
    const std::string beside = Supplement::pathFor(path);
    if (beside == path) throw Failure(path + ": konec .DOP má doplněk, báze potřebuje jiné jméno");
    // The supplement first: with one that knows more than the database nothing is lost.
    writeFile(beside, supplement);
    writeFile(path, bytes);
}

void requireOther(const std::string& output, const std::string& input) {
    std::error_code unknown;
    if (std::filesystem::equivalent(systemPath(output), systemPath(input), unknown))
        throw Failure(output + ": to je vstupní soubor, nebude přepsán");
}

std::vector<TLatka> readRecords(const std::string& path) {
    const std::string bytes = readFile(path);
    if (bytes.empty() || bytes.size() % kRecordSize != 0)
        throw Failure(path + ": to není báze látek, délka není násobkem " + std::to_string(kRecordSize));
    std::vector<TLatka> records;
    for (std::size_t at = 0; at < bytes.size(); at += kRecordSize)
        records.push_back(decodeRecord(std::span<const char, kRecordSize>(bytes.data() + at, kRecordSize)));
    return records;
}

void report(const std::string& path, const LineFaults& faults) {
    for (const LineFault& fault : faults)
        std::cerr << printable(path + ':' + std::to_string(fault.line) + ": " + fault.reason) << '\n';
}

void reportThatThereAreMore() { std::cerr << "Chyb je více než " << LineFaults::kMost << ", čtení skončilo.\n"; }

}  // namespace velor::baze
