#include "smes/messages.h"

#include <utility>

namespace velor {

Answer show(State& state, std::string text, Icon icon, std::string title, Buttons buttons) {
    return state.userInterface->showMessage({std::move(text), icon, std::move(title), buttons});
}

void showCounted(State& state, std::string text, Icon icon, std::string title) {
    show(state, std::move(text), icon, std::move(title));
    ++state.PocHlasek;
}

void raiseToHost(std::string source, std::string description) {
    throw RunTimeError(RunTimeError::kRaisedToHost, std::move(source), std::move(description));
}

void ChybaVypoctu(State& state, const RunTimeError& error, const std::string& Zdroj) {
    // Signed, on purpose: the classic errors are positive and show no box; only numbers below the raised one do. The
    // prefix names ROLW whoever calls, as built. The box is not counted.
    if (engineMessageIsDue(state) && error.number() < RunTimeError::kRaisedToHost) {
        show(state, "Chyba ROLW: " + std::to_string(error.number()) + " : " + error.description(), Icon::Exclamation,
             "VELOR Chyba");
    }
    if (state.ChyboveHlasky == -1) raiseToHost(Zdroj, "Chyba při výpočtu vlastnosti!");
}

}  // namespace velor
