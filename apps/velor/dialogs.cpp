#include "dialogs.h"

#include <cstdio>
#include <iostream>

#include "views/terminal/terminal_user_interface.h"

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

Dialogs dialogsFor(const Request& request) {
    std::FILE* const output = drawnTo(request);
    if (output && TerminalUserInterface::isPossible(stdin, output))
        return {std::make_unique<TerminalUserInterface>(stdin, output), true};
    return {std::make_unique<StreamUserInterface>(std::cin, std::cerr), false};
}

}  // namespace velor::app
