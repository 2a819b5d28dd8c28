#include "object/messages.h"

#include <utility>

namespace velor {

Answer show(const Messages& messages, std::string text, Icon icon, std::string title, Buttons buttons) {
    return messages.userInterface->showMessage({std::move(text), icon, std::move(title), buttons});
}

void showUnlessSilent(const Messages& messages, std::string text, Icon icon, std::string title) {
    if (messages.ChyboveHlasky < 2) show(messages, std::move(text), icon, std::move(title));
}

void showCounted(Messages& messages, std::string text, Icon icon, std::string title) {
    show(messages, std::move(text), icon, std::move(title));
    ++messages.PocHlasek;
}

void raiseToHost(std::string source, std::string description) {
    throw RunTimeError(RunTimeError::kRaisedToHost, std::move(source), std::move(description));
}

void ChybaVypoctu(const Messages& messages, const RunTimeError& error, const std::string& Zdroj) {
    // Signed, on purpose: the classic errors are positive and show no box; only numbers below the raised one do. The
    // prefix names ROLW whoever calls, as built. The box is not counted.
    if (engineMessageIsDue(messages) && error.number() < RunTimeError::kRaisedToHost) {
        show(messages, "Chyba ROLW: " + std::to_string(error.number()) + " : " + error.description(), Icon::Exclamation,
             "VELOR Chyba");
    }
    if (messages.ChyboveHlasky == -1) raiseToHost(Zdroj, "Chyba při výpočtu vlastnosti!");
}

}  // namespace velor
