#include "object/configuration_file.h"

#include <algorithm>
#include <string_view>

#include "platform/file_system.h"
#include "platform/system.h"
#include "runtime/checked.h"
#include "runtime/text.h"

namespace velor {

namespace {

constexpr std::string_view kComment = "Soubor obsahuje na 2.ř. cestu k datovému souboru báze.";
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";  // says that the file is in UTF-8
constexpr std::size_t kMostBytes = 65536;  // two lines and far more; a file of another kind is not read to its end

void skipBlanks(std::string_view& text) { text.remove_prefix(std::min(text.find_first_not_of(' '), text.size())); }

void skipSeparator(std::string_view& text) {
    if (text.empty()) return;
    const bool lineBreak = text.starts_with("\r\n");
    text.remove_prefix(lineBreak ? 2 : 1);
}

// Takes one item: quoted, or up to the next comma or line end.
std::string_view takeItem(std::string_view& text) {
    skipBlanks(text);
    if (text.empty()) checked::raise(RunTimeError::kInputPastEnd);
    std::string_view item;
    if (text.front() == '"') {
        text.remove_prefix(1);
        item = text.substr(0, text.find('"'));
        text.remove_prefix(std::min(item.size() + 1, text.size()));
        text.remove_prefix(std::min(text.find_first_of(",\r\n"), text.size()));
    } else {
        item = text.substr(0, text.find_first_of(",\r\n"));
        text.remove_prefix(item.size());
    }
    skipSeparator(text);
    return item;
}

std::string pathIn(std::string_view content) {
    takeItem(content);
    return std::string(trimBlanks(takeItem(content)));
}

std::string contentFor(const std::string& databasePath) {
    const bool quoted = databasePath.find(',') != std::string::npos;
    const std::string_view quote = quoted ? "\"" : "";
    return std::string(kComment).append(kLineBreak).append(quote).append(databasePath).append(quote).append(kLineBreak);
}

}  // namespace

bool isConfigurable(const std::string& databasePath) { return pathIn(contentFor(databasePath)) == databasePath; }

std::string readConfiguredPath(const std::string& configurationFile) {
    std::string content = platform::readText(configurationFile, kMostBytes);
    if (!content.starts_with(kByteOrderMark)) content = platform::fromSystemText(content);
    return pathIn(content);
}

void writeConfiguredPath(const std::string& configurationFile, const std::string& databasePath) {
    if (!isConfigurable(databasePath)) checked::raise(RunTimeError::kPathFileAccess);
    const std::string content = contentFor(databasePath);
    // A path that the system's encoding cannot hold would name another file.
    const bool fits = platform::fromSystemText(platform::toSystemText(databasePath)) == databasePath;
    platform::replaceFile(configurationFile,
                          fits ? platform::toSystemText(content) : std::string(kByteOrderMark).append(content));
}

}  // namespace velor
