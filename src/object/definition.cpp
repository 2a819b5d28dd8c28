// Choosing which substances form the mixture.
#include <cmath>
#include <cstdlib>

#include "object/load.h"
#include "object/messages.h"
#include "object/state.h"
#include "runtime/numbers.h"
#include "velor/smes.h"

namespace velor {

namespace {

constexpr const char* kDefinitionTitle = "Definice složek";

// Loads a new definition; afterwards it counts as not loaded, so that the next property call reads the records.
void loadDefinition(State& state) {
    if (loadComponents(state) == 0 && state.messages.ChyboveHlasky < 2) {
        tellLoadFailure(state);
        return;
    }
    state.definition.Nacteno = 0;
}

enum class Outcome { Done, OutsideArray, Failed };

// One statement of DefSlozky under its trap: an index outside the array is told to the caller, any other error shows a
// message, after which the next statement runs.
template <class Statement>
Outcome attempt(State& state, const Statement& statement) {
    try {
        statement();
        return Outcome::Done;
    } catch (const RunTimeError& error) {
        if (error.number() == RunTimeError::kSubscript) return Outcome::OutsideArray;
        showUnlessSilent(state.messages, "Chybné zadání složek", Icon::Exclamation, kDefinitionTitle);
        return Outcome::Failed;
    }
}

// Sets the mode and the slots from the array. The end of a short array ends the copying: the slots behind it keep
// their numbers and no slot is set to 0 as a terminator, as built.
void copyNumbers(State& state, const Variant& Cisla) {
    const Outcome mode = attempt(
        state, [&] { state.messages.ChyboveHlasky = static_cast<std::int16_t>(Cisla.at(0).toDouble() < 0 ? 1 : 0); });
    if (mode == Outcome::OutsideArray) return;
    for (int s = 1; s <= ComponentSlots::kCount; ++s) {
        const Outcome slot = attempt(state, [&] {
            state.definition.slots.setCisloLatky(s, roundToInt16(std::abs(Cisla.at(s - 1).toDouble())));
        });
        if (slot == Outcome::OutsideArray) return;
    }
}

}  // namespace

void Smes::DefSlozky(const Variant& Cisla) {
    const PublicCall call(*state_);
    State& state = *state_;
    attempt(state, [&] {
        if (Cisla.upperBound() < Cisla.lowerBound())
            showUnlessSilent(state.messages, "Nebyly zadány čísla složek!", Icon::Exclamation, kDefinitionTitle);
    });
    copyNumbers(state, Cisla);
    attempt(state, [&] { state.definition.PocSlozek = checkedInt16(Cisla.upperBound() + 1); });
    attempt(state, [&] { loadDefinition(state); });
}

void Smes::DefSmes(int N, const Variant& Cisla) {
    const PublicCall call(*state_);
    State& state = *state_;
    // The quiet mode is tested on a count that is not yet assigned: messages are always switched on, as designed.
    state.messages.ChyboveHlasky = 0;
    const std::int16_t n = checkedInt16(std::abs(static_cast<int>(checkedInt16(N))));
    for (int s = 1; s <= n; ++s) state.definition.slots.setCisloLatky(s, Cisla.at(s).toInt16());
    if (n < ComponentSlots::kCount) state.definition.slots.setCisloLatky(n + 1, 0);
    state.definition.PocSlozek = n;
    loadDefinition(state);
}

void Smes::ZapisNslozky(int i, int n) {
    const PublicCall call(*state_);
    const std::int16_t number = checkedInt16(n);
    if (checkedInt16(i) < 1 || i > ComponentSlots::kCount) {
        showUnlessSilent(state_->messages, "Index složky mimo meze!", Icon::Critical);
        return;
    }
    state_->definition.slots.setCisloLatky(i, number);
    state_->definition.Nacteno = 0;
}

void Smes::ResetujSmes() {
    const PublicCall call(*state_);
    State& state = *state_;
    state.definition.PocSlozek = 0;
    state.definition.Nacteno = 0;
    state.messages.ChyboveHlasky = 0;
    for (int s = 1; s <= ComponentSlots::kCount; ++s) {
        state.definition.slots.setCisloLatky(s, 0);
        TLatka& record = state.definition.slots.change(s);
        record.Cislo = 0;
        record.Nazev.fill(' ');
    }
    state.dialogs->renewList();  // so that its list is built anew
}

Variant Smes::Nsloz() const { return state_->definition.PocSlozek; }

void Smes::Nsloz(const Variant& count) {
    const std::int16_t n = count.toInt16();
    if (n >= state_->definition.PocSlozek) return;
    state_->definition.PocSlozek = n;
    // A negative count is kept and fails here, deliberately unguarded.
    state_->definition.slots.setCisloLatky(n + 1, 0);
}

}  // namespace velor
