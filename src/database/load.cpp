#include "database/load.h"

#include "database/locate.h"
#include "database/record_file.h"
#include "runtime/numbers.h"
#include "smes/messages.h"
#include "velor/smes.h"

namespace velor {

namespace {

std::int16_t leadingComponents(const ComponentSlots& slots) {
    std::int16_t count = 0;
    while (count < ComponentSlots::kCount && slots.CisloLatky(count + 1) >= 1) ++count;
    return count;
}

// With messages switched off a record of zero bytes is accepted, as designed.
bool isUnused(const TLatka& record, std::int16_t mode) {
    return (record.Nazev[0] == ' ' && record.Nazev[1] == ' ') || (mode < 1 && record.Nazev[0] == '\0');
}

}  // namespace

std::int16_t loadComponents(State& state) {
    if (state.Nacteno == State::kNacteno) return state.PocSlozek;
    if (state.AdresaBaze.empty()) locateDatabase(state);
    state.PocSlozek = leadingComponents(state.slots);
    const RecordFile database(state.AdresaBaze);
    for (int i = 1; i <= state.PocSlozek; ++i) {
        const std::int16_t number = state.slots.CisloLatky(i);
        state.slots.change(i) = database.read(number);
        if (isUnused(state.slots.Latka(i), state.ChyboveHlasky)) {
            state.slots.change(i).Cislo = 0;
            show(state, "INIVLR: Látka č. " + Str(number) + " není v bázi!", Icon::Exclamation);
            return 0;
        }
    }
    if (state.PocSlozek > 0) state.Nacteno = State::kNacteno;
    return state.PocSlozek;
}

Variant Smes::Inivlr() { return loadComponents(*state_); }

}  // namespace velor
