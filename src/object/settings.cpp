// The settings.
#include <utility>

#include "object/locate.h"
#include "object/messages.h"
#include "object/state.h"
#include "platform/file_system.h"
#include "platform/system.h"
#include "runtime/numbers.h"
#include "velor/constants.h"
#include "velor/smes.h"

namespace velor {

namespace {

bool addressesBlock(const State& state, int i, int k) {
    return i >= 1 && i <= state.definition.PocSlozek && k >= 1 && k <= TLatka::kCorrelations;
}

}  // namespace

std::string Smes::DataFileName() const { return state_->place.DataFileName; }
void Smes::DataFileName(const std::string& name) {
    if (!name.empty()) state_->place.DataFileName = name;
}

std::string Smes::CFGPath() const { return state_->place.CFGPath; }
void Smes::CFGPath(const std::string& folder) {
    state_->place.CFGPath = platform::withSeparator(folder.empty() ? state_->place.CFGPath : folder);
}

std::string Smes::CFGName() const { return state_->place.CFGName; }
void Smes::CFGName(const std::string& name) { state_->place.CFGName = name; }

std::string Smes::AdrVELOR() {
    if (state_->place.AdresaBaze.empty()) locateDatabase(*state_);
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

int Smes::Redlich() const { return state_->settings.Redlich; }
void Smes::Redlich(int choice) { state_->settings.Redlich = checkedInt16(choice); }

void Smes::MezeZap() { state_->settings.MezeTeplot = 1; }
void Smes::MezeVyp() { state_->settings.MezeTeplot = 0; }
int Smes::MezeTeplot() const { return state_->settings.MezeTeplot; }

std::string Smes::SNazev() const { return state_->settings.SNazev; }
void Smes::SNazev(const std::string& caption) { state_->settings.SNazev = caption; }

float Smes::VLRConst(int i, int k, int j) const {
    checkedInt16(i), checkedInt16(k), checkedInt16(j);
    if (!addressesBlock(*state_, i, k)) return kNoConstant;
    const TKorelace& block = state_->definition.slots.Latka(i).Korelace[static_cast<std::size_t>(k - 1)];
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
        show(state_->messages, "VLRConst( ) - chybné zadání!", Icon::Exclamation);
        return;
    }
    if (j < 1 || j > 10) return;
    TKorelace& block = state_->definition.slots.change(i).Korelace[static_cast<std::size_t>(k - 1)];
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
