// Message and input boxes as questions and answers on streams.
#include <istream>
#include <ostream>

#include "runtime/checked.h"
#include "runtime/text.h"
#include "velor/user_interface.h"
#include "views/stream/safe_stream.h"

namespace velor {

namespace {

const char* iconMark(Icon icon) {
    switch (icon) {
        case Icon::Critical:
            return "(X) ";
        case Icon::Exclamation:
            return "(!) ";
        case Icon::Information:
            return "(i) ";
        case Icon::None:
            break;
    }
    return "";
}

// Terminals want lines ended by LF alone; a lone CR breaks a line, too.
std::string terminalLines(const std::string& text) {
    std::string lines;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r') {
            lines += text[i];
        } else if (i + 1 == text.size() || text[i + 1] != '\n') {
            lines += '\n';
        }
    }
    return lines;
}

}  // namespace

StreamUserInterface::StreamUserInterface(std::istream& answers, std::ostream& messages)
    : answers_(answers), safe_(std::make_unique<SafeStream>(messages)), messages_(*safe_) {}

StreamUserInterface::~StreamUserInterface() = default;

bool StreamUserInterface::readLine(std::string& line) {
    if (!std::getline(answers_, line)) return false;
    std::erase(line, '\r');
    return true;
}

Answer StreamUserInterface::showMessage(const Message& message) {
    messages_ << iconMark(message.icon) << message.title << ": " << terminalLines(message.text) << std::endl;
    if (message.buttons == Buttons::Ok) return Answer::Ok;
    for (std::string line;;) {
        messages_ << "[a/n] " << std::flush;
        if (!readLine(line)) return Answer::No;
        const std::string answer = upperCase(trimBlanks(line));
        if (answer == "A" || answer == "ANO" || answer == "Y" || answer == "YES") return Answer::Yes;
        if (answer == "N" || answer == "NE" || answer == "NO") return Answer::No;
    }
}

std::string StreamUserInterface::askText(const InputRequest& request) {
    messages_ << request.title << ": " << terminalLines(request.prompt);
    if (!request.defaultAnswer.empty()) messages_ << " [" << request.defaultAnswer << "]";
    messages_ << ' ' << std::flush;
    std::string line;
    if (!readLine(line)) checked::raise(RunTimeError::kInputPastEnd);
    return line.empty() ? request.defaultAnswer : line;
}

}  // namespace velor
