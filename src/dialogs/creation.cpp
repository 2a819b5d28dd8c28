// An object's life: its state and its forms.
#include <utility>

#include "dialogs/forms_of.h"
#include "object/state.h"
#include "platform/file_system.h"
#include "platform/system.h"
#include "velor/smes.h"

namespace velor {

namespace {

std::unique_ptr<State> newState(UserInterface& userInterface) {
    auto state = std::make_unique<State>();
    state->dialogs = std::make_unique<Forms>();
    state->person = state->messages.userInterface = &userInterface;
    state->place.CFGPath = platform::libraryFolder();
    return state;
}

}  // namespace

Smes::Smes(UserInterface& userInterface) : state_(newState(userInterface)) {}

Smes::Smes(UserInterface& userInterface, std::vector<std::string> volumes) : Smes(userInterface) {
    for (std::string& volume : volumes) volume = platform::withSeparator(volume);
    state_->place.volumes = std::move(volumes);
}

Smes::Smes(std::unique_ptr<UserInterface> userInterface) : Smes(*userInterface) {
    state_->ownUserInterface = std::move(userInterface);
}

Smes::~Smes() = default;

}  // namespace velor
