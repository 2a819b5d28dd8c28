// Creation and the settings.
#include "velor/smes.h"

#include <utility>

#include "database/constant_table.h"
#include "database/locate.h"
#include "platform/file_system.h"
#include "platform/system.h"
#include "runtime/numbers.h"
#include "smes/messages.h"
#include "smes/state.h"

namespace velor {

namespace {

std::unique_ptr<State> newState(UserInterface& userInterface) {
    auto state = std::make_unique<State>();
    createForms(*state);
    state->userInterface = &userInterface;
    state->CFGPath = platform::libraryFolder();
    return state;
}

bool addressesBlock(const State& state, int i, int k) {
    return i >= 1 && i <= state.PocSlozek && k >= 1 && k <= TLatka::kCorrelations;
}

}  // namespace

Smes::Smes() {
    auto boxes = platform::defaultUserInterface();
    state_ = newState(*boxes);
    state_->ownUserInterface = std::move(boxes);
}

Smes::Smes(UserInterface& userInterface) : state_(newState(userInterface)) {}

Smes::Smes(UserInterface& userInterface, std::vector<std::string> volumes) : state_(newState(userInterface)) {
    state_->systemVolumes = false;
    for (const std::string& volume : volumes) state_->volumes.push_back(platform::withSeparator(volume));
}

Smes::~Smes() { releaseForms(*state_); }

std::string Smes::DataFileName() const { return state_->DataFileName; }
void Smes::DataFileName(const std::string& name) {
    if (!name.empty()) state_->DataFileName = name;
}

std::string Smes::CFGPath() const { return state_->CFGPath; }
void Smes::CFGPath(const std::string& folder) {
    state_->CFGPath = platform::withSeparator(folder.empty() ? state_->CFGPath : folder);
}

std::string Smes::CFGName() const { return state_->CFGName; }
void Smes::CFGName(const std::string& name) { state_->CFGName = name; }

std::string Smes::AdrVELOR() {
    if (state_->AdresaBaze.empty()) locateDatabase(*state_);
    return state_->AdresaBaze;
}
void Smes::AdrVELOR(const std::string& path) { state_->AdresaBaze = path; }
std::string Smes::SouborBaze() { return AdrVELOR(); }

int Smes::ChyboveHlasky() const { return state_->ChyboveHlasky; }
void Smes::ChyboveHlasky(int mode) {
    const std::int16_t value = checkedInt16(mode);
    if (value >= -1 && value <= 2) state_->ChyboveHlasky = value;
}

int Smes::MaxErrHlas() const { return state_->MaxErrHlas; }
void Smes::MaxErrHlas(int limit) {
    const std::int16_t value = checkedInt16(limit);
    if (value >= 0) state_->MaxErrHlas = value;
}

int Smes::PocHlasek() const { return state_->PocHlasek; }

int Smes::Redlich() const { return state_->Redlich; }
void Smes::Redlich(int choice) { state_->Redlich = checkedInt16(choice); }

void Smes::MezeZap() { state_->MezeTeplot = 1; }
void Smes::MezeVyp() { state_->MezeTeplot = 0; }
int Smes::MezeTeplot() const { return state_->MezeTeplot; }

std::string Smes::SNazev() const { return state_->SNazev; }
void Smes::SNazev(const std::string& caption) { state_->SNazev = caption; }

float Smes::VLRConst(int i, int k, int j) const {
    checkedInt16(i), checkedInt16(k), checkedInt16(j);
    if (!addressesBlock(*state_, i, k)) return kNoConstant;
    const TKorelace& block = state_->slots.Latka(i).Korelace[static_cast<std::size_t>(k - 1)];
    switch (j) {
        case 7:
            return block.Typ;
        case 8:
            return block.Priznak;
        case 9:
            return block.Tmin;
        case 10:
            return block.Tmax;
        default:
            break;
    }
    if (j < 1 || j > 6) return 0;
    const float coefficient = block.A[static_cast<std::size_t>(j - 1)];
    checked::finite(coefficient);
    return coefficient;
}

void Smes::VLRConst(int i, int k, int j, const Variant& value) {
    checkedInt16(i), checkedInt16(k), checkedInt16(j);
    const float number = value.toSingle();
    if (!addressesBlock(*state_, i, k)) {
        show(*state_, "VLRConst( ) - chybné zadání!", Icon::Exclamation);
        return;
    }
    if (j < 1 || j > 10) return;
    TKorelace& block = state_->slots.change(i).Korelace[static_cast<std::size_t>(k - 1)];
    switch (j) {
        case 7:
            block.Typ = roundToInt16(number);
            break;
        case 8:
            block.Priznak = roundToInt16(number);
            break;
        case 9:
            block.Tmin = roundToInt16(number);
            break;
        case 10:
            block.Tmax = roundToInt16(number);
            break;
        default:
            block.A[static_cast<std::size_t>(j - 1)] = number;
    }
}

}  // namespace velor
