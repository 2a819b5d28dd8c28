// The settings.
#include <utility>

#include "object/locate.h"
#include "object/messages.h"
#include "object/state.h"
#include "platform/file_system.h"
#include "runtime/numbers.h"
#include "velor/constants.h"
#include "velor/smes.h"

namespace velor {

std::string Smes::DataFileName() const { return state_->place.DataFileName; }
void Smes::DataFileName(const std::string& name) {
    if (!name.empty()) state_->place.DataFileName = state_->place.usualFileName = name;
}

std::string Smes::CFGPath() const { return state_->place.CFGPath; }
void Smes::CFGPath(const std::string& folder) {
    state_->place.CFGPath = platform::withSeparator(folder.empty() ? state_->place.CFGPath : folder);
}

std::string Smes::CFGName() const { return state_->place.CFGName; }
void Smes::CFGName(const std::string& name) { state_->place.CFGName = name; }

std::string Smes::AdrVELOR() {
    const PublicCall call(*state_);
    if (state_->place.AdresaBaze.empty()) locateDatabase(state_->place, state_->messages);
    return state_->place.AdresaBaze;
}
void Smes::AdrVELOR(const std::string& path) { state_->place.AdresaBaze = path; }
std::string Smes::SouborBaze() { return AdrVELOR(); }

int Smes::ChyboveHlasky() const { return state_->messages.ChyboveHlasky; }
void Smes::ChyboveHlasky(int mode) {
    const std::int16_t value = checkedInt16(mode);
    if (value >= -1 && value <= 2) state_->messages.ChyboveHlasky = value;
}

int Smes::MaxErrHlas() const { return state_->messages.MaxErrHlas; }
void Smes::MaxErrHlas(int limit) {
    const std::int16_t value = checkedInt16(limit);
    if (value >= 0) state_->messages.MaxErrHlas = value;
}

int Smes::PocHlasek() const { return state_->messages.PocHlasek; }

int Smes::Tichy() const { return state_->messages.Tichy; }
void Smes::Tichy(int value) {
    // Any number but 0, so that the True of every language is taken.
    state_->messages.Tichy = checkedInt16(value) != 0 ? 1 : 0;
    state_->messages.userInterface = value != 0 ? &state_->nobody : state_->person;
}

std::string Smes::PosledniHlaska() const { return state_->nobody.lastText; }

int Smes::Redlich() const { return state_->settings.Redlich; }
void Smes::Redlich(int choice) { state_->settings.Redlich = checkedInt16(choice); }

void Smes::MezeZap() { state_->settings.MezeTeplot = 1; }
void Smes::MezeVyp() { state_->settings.MezeTeplot = 0; }
int Smes::MezeTeplot() const { return state_->settings.MezeTeplot; }

std::string Smes::SNazev() const { return state_->settings.SNazev; }
void Smes::SNazev(const std::string& caption) { state_->settings.SNazev = caption; }

}  // namespace velor
