#include "dialogs.h"

#include <cstdio>
#include <iostream>

#include "terminal/terminal_user_interface.h"

namespace velor::app {

namespace {

using terminal::TerminalUserInterface;

// The dialog is drawn to the error stream, so that the result can be kept in a file.
std::FILE* drawnTo(const Request& request) {
    if (std::holds_alternative<MixtureDialogRequest>(request.question)) return stderr;
    const auto* const list = std::get_if<SubstanceListRequest>(&request.question);
    return list && list->text.empty() && request.form == OutputForm::Text ? stdout : nullptr;
}

}  // namespace

bool isOnScreen(const Request& request) {
    std::FILE* const output = drawnTo(request);
    return output && TerminalUserInterface::isPossible(stdin, output);
}

std::unique_ptr<UserInterface> dialogsFor(const Request& request) {
    if (isOnScreen(request)) return std::make_unique<TerminalUserInterface>(stdin, drawnTo(request));
    return std::make_unique<StreamUserInterface>(std::cin, std::cerr);
}

}  // namespace velor::app
