// The constants of one component.
#include <algorithm>
#include <array>
#include <cmath>

#include "object/load.h"
#include "object/state.h"
#include "runtime/checked.h"
#include "runtime/numbers.h"
#include "runtime/physical_constants.h"
#include "runtime/text.h"
#include "runtime/windows_1250.h"
#include "velor/smes.h"

namespace velor {

namespace {

const TLatka& recordOf(const State& state, int i) { return state.definition.slots.Latka(checkedInt16(i)); }

bool slotIsEmpty(const State& state, int i) { return state.definition.slots.CisloLatky(checkedInt16(i)) < 1; }

float constantOf(const State& state, int i, float TLatka::*constant) {
    const float value = recordOf(state, i).*constant;
    checked::finite(value);
    return value;
}

Variant constantOrEmptyText(const State& state, int i, float TLatka::*constant) {
    if (slotIsEmpty(state, i)) return "";
    return constantOf(state, i, constant);
}

Variant celsiusOrEmptyText(const State& state, int i, float TLatka::*temperature) {
    if (slotIsEmpty(state, i)) return "";
    return constantOf(state, i, temperature) - kZeroCelsius;
}

template <std::size_t Width>
Variant textOrEmpty(const State& state, int i, std::array<char, Width> TLatka::*text) {
    if (slotIsEmpty(state, i)) return "";
    const auto& field = recordOf(state, i).*text;
    return decodeWindows1250({field.data(), field.size()});
}

}  // namespace

Variant Smes::Mvi(int i) const { return constantOrEmptyText(*state_, i, &TLatka::Mv); }
Variant Smes::Tkri(int i) const { return constantOrEmptyText(*state_, i, &TLatka::Tkr); }
Variant Smes::TkriC(int i) const { return celsiusOrEmptyText(*state_, i, &TLatka::Tkr); }
Variant Smes::Pkri(int i) const { return constantOrEmptyText(*state_, i, &TLatka::Pkr); }
Variant Smes::Vkri(int i) const { return constantOrEmptyText(*state_, i, &TLatka::Vkr); }
Variant Smes::Acenti(int i) const { return constantOrEmptyText(*state_, i, &TLatka::Acent); }
Variant Smes::Tnbvi(int i) const { return constantOrEmptyText(*state_, i, &TLatka::Tnbv); }
Variant Smes::TnbviC(int i) const { return celsiusOrEmptyText(*state_, i, &TLatka::Tnbv); }
Variant Smes::Ttani(int i) const { return constantOrEmptyText(*state_, i, &TLatka::Ttani); }
Variant Smes::TtaniC(int i) const {
    Variant celsius = celsiusOrEmptyText(*state_, i, &TLatka::Ttani);
    // The single nearest to 273.15 is not 273.15.
    if (celsius.kind() == Variant::Kind::Double && std::abs(celsius.toDouble()) < 1E-5) return 0.0;
    return celsius;
}
Variant Smes::Htani(int i) const { return constantOrEmptyText(*state_, i, &TLatka::Htani); }
Variant Smes::Nlomui(int i) const { return constantOrEmptyText(*state_, i, &TLatka::Nlomu); }
Variant Smes::TNlomui(int i) const { return constantOf(*state_, i, &TLatka::TNlomu); }
float Smes::Dipolm(int i) const { return constantOf(*state_, i, &TLatka::Dipol); }
Variant Smes::TDipolm(int i) const { return constantOf(*state_, i, &TLatka::TDipol); }
Variant Smes::Permiti(int i) const { return constantOf(*state_, i, &TLatka::Permit); }
Variant Smes::TPermiti(int i) const { return constantOf(*state_, i, &TLatka::TPermit); }
Variant Smes::Gyr(int i) const { return constantOf(*state_, i, &TLatka::Gyr); }

std::string componentName(const State& state, int i) { return textOrEmpty(state, i, &TLatka::Nazev).toText(); }

Variant Smes::Nazev(int i) const { return textOrEmpty(*state_, i, &TLatka::Nazev); }
Variant Smes::Vzorec(int i) const { return textOrEmpty(*state_, i, &TLatka::Vzorec); }
Variant Smes::Synonym(int i) const { return textOrEmpty(*state_, i, &TLatka::Synonym); }

void Smes::Nazev(int i, const std::string& name) {
    const std::string bytes = encodeWindows1250OrQuestionMarks(name);
    auto& field = state_->definition.slots.change(checkedInt16(i)).Nazev;
    field.fill(' ');
    std::copy_n(bytes.begin(), std::min(bytes.size(), field.size()), field.begin());
}

const TLatka& Smes::record(int i) const { return recordOf(*state_, i); }
void Smes::record(int i, const TLatka& record) { state_->definition.slots.change(checkedInt16(i)) = record; }

Variant Smes::CAS(int i) const {
    const std::int32_t number = recordOf(*state_, i).CAS;
    if (number <= 0) return " ";
    return "[" + casText(Str(number)) + "]";  // the leading blank stays inside the bracket, as designed
}

}  // namespace velor
