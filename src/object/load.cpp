#include "object/load.h"

#include "object/locate.h"
#include "object/messages.h"
#include "records/record_file.h"
#include "runtime/numbers.h"
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
    if (state.definition.Nacteno == Definition::kNacteno) return state.definition.PocSlozek;
    if (state.place.AdresaBaze.empty()) locateDatabase(state.place, state.messages);
    state.definition.PocSlozek = leadingComponents(state.definition.slots);
    const RecordFile database(state.place.AdresaBaze);
    for (int i = 1; i <= state.definition.PocSlozek; ++i) {
        const std::int16_t number = state.definition.slots.CisloLatky(i);
        state.definition.slots.change(i) = database.read(number);
        if (isUnused(state.definition.slots.Latka(i), state.messages.ChyboveHlasky)) {
            state.definition.slots.change(i).Cislo = 0;
            show(state.messages, "INIVLR: Látka č. " + Str(number) + " není v bázi!", Icon::Exclamation);
            return 0;
        }
    }
    if (state.definition.PocSlozek > 0) state.definition.Nacteno = Definition::kNacteno;
    return state.definition.PocSlozek;
}

TLatka databaseRecord(const State& state, int i) {
    const ComponentSlots& slots = state.definition.slots;
    try {
        const TLatka record = RecordFile(state.place.AdresaBaze).read(slots.CisloLatky(i));
        return isUnused(record, state.messages.ChyboveHlasky) ? slots.Latka(i) : record;
    } catch (const RunTimeError&) {
        return slots.Latka(i);
    }
}

void tellLoadFailure(const State& state) {
    showUnlessSilent(state.messages, "Nemohu načíst z " + state.place.DataFileName + "!", Icon::Critical);
}

Variant Smes::Inivlr() {
    const PublicCall call(*state_);
    return loadComponents(*state_);
}

}  // namespace velor
