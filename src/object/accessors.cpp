// What the slots hold: names, constants and correlations of the components.
#include <algorithm>
#include <array>
#include <cmath>

#include "object/load.h"
#include "object/messages.h"
#include "object/state.h"
#include "records/record_layout.h"
#include "runtime/checked.h"
#include "runtime/numbers.h"
#include "runtime/physical_constants.h"
#include "runtime/text.h"
#include "runtime/windows_1250.h"
#include "velor/constants.h"
#include "velor/smes.h"

namespace velor {

namespace {

const TLatka& recordOf(const ComponentSlots& slots, int i) { return slots.Latka(checkedInt16(i)); }

bool slotIsEmpty(const ComponentSlots& slots, int i) { return slots.CisloLatky(checkedInt16(i)) < 1; }

float constantOf(const ComponentSlots& slots, int i, float TLatka::*constant) {
    const float value = recordOf(slots, i).*constant;
    checked::finite(value);
    return value;
}

Variant constantOrEmptyText(const ComponentSlots& slots, int i, float TLatka::*constant) {
    if (slotIsEmpty(slots, i)) return "";
    return constantOf(slots, i, constant);
}

Variant celsiusOrEmptyText(const ComponentSlots& slots, int i, float TLatka::*temperature) {
    if (slotIsEmpty(slots, i)) return "";
    return constantOf(slots, i, temperature) - kZeroCelsius;
}

template <std::size_t Width>
std::string textOrEmpty(const ComponentSlots& slots, int i, std::array<char, Width> TLatka::*text) {
    if (slotIsEmpty(slots, i)) return "";
    const auto& field = recordOf(slots, i).*text;
    return decodeWindows1250({field.data(), field.size()});
}

bool addressesBlock(const Definition& definition, int i, int k) {
    return i >= 1 && i <= definition.PocSlozek && k >= 1 && k <= TLatka::kCorrelations;
}

bool addressesConstant(const Definition& definition, int i, int k) {
    return checkedInt16(i) >= 1 && i <= definition.PocSlozek && checkedInt16(k) >= 1 && k <= TLatka::kConstants;
}

}  // namespace

Variant Smes::Mvi(int i) const { return constantOrEmptyText(state_->definition.slots, i, &TLatka::Mv); }
Variant Smes::Tkri(int i) const { return constantOrEmptyText(state_->definition.slots, i, &TLatka::Tkr); }
Variant Smes::TkriC(int i) const { return celsiusOrEmptyText(state_->definition.slots, i, &TLatka::Tkr); }
Variant Smes::Pkri(int i) const { return constantOrEmptyText(state_->definition.slots, i, &TLatka::Pkr); }
Variant Smes::Vkri(int i) const { return constantOrEmptyText(state_->definition.slots, i, &TLatka::Vkr); }
Variant Smes::Acenti(int i) const { return constantOrEmptyText(state_->definition.slots, i, &TLatka::Acent); }
Variant Smes::Tnbvi(int i) const { return constantOrEmptyText(state_->definition.slots, i, &TLatka::Tnbv); }
Variant Smes::TnbviC(int i) const { return celsiusOrEmptyText(state_->definition.slots, i, &TLatka::Tnbv); }
Variant Smes::Ttani(int i) const { return constantOrEmptyText(state_->definition.slots, i, &TLatka::Ttani); }
Variant Smes::TtaniC(int i) const {
    Variant celsius = celsiusOrEmptyText(state_->definition.slots, i, &TLatka::Ttani);
    // The single nearest to 273.15 is not 273.15.
    if (celsius.kind() == Variant::Kind::Double && std::abs(celsius.toDouble()) < 1E-5) return 0.0;
    return celsius;
}
Variant Smes::Htani(int i) const { return constantOrEmptyText(state_->definition.slots, i, &TLatka::Htani); }
Variant Smes::Nlomui(int i) const { return constantOrEmptyText(state_->definition.slots, i, &TLatka::Nlomu); }
Variant Smes::TNlomui(int i) const { return constantOf(state_->definition.slots, i, &TLatka::TNlomu); }
float Smes::Dipolm(int i) const { return constantOf(state_->definition.slots, i, &TLatka::Dipol); }
Variant Smes::TDipolm(int i) const { return constantOf(state_->definition.slots, i, &TLatka::TDipol); }
Variant Smes::Permiti(int i) const { return constantOf(state_->definition.slots, i, &TLatka::Permit); }
Variant Smes::TPermiti(int i) const { return constantOf(state_->definition.slots, i, &TLatka::TPermit); }
Variant Smes::Gyr(int i) const { return constantOf(state_->definition.slots, i, &TLatka::Gyr); }

std::string componentName(const ComponentSlots& slots, int i) { return textOrEmpty(slots, i, &TLatka::Nazev); }

Variant Smes::Nazev(int i) const { return textOrEmpty(state_->definition.slots, i, &TLatka::Nazev); }
Variant Smes::Vzorec(int i) const { return textOrEmpty(state_->definition.slots, i, &TLatka::Vzorec); }
Variant Smes::Synonym(int i) const { return textOrEmpty(state_->definition.slots, i, &TLatka::Synonym); }

void Smes::Nazev(int i, const std::string& name) {
    const std::string bytes = encodeWindows1250OrQuestionMarks(name);
    auto& field = state_->definition.slots.change(checkedInt16(i)).Nazev;
    field.fill(' ');
    std::copy_n(bytes.begin(), std::min(bytes.size(), field.size()), field.begin());
}

const TLatka& Smes::record(int i) const { return recordOf(state_->definition.slots, i); }
void Smes::record(int i, const TLatka& record) { state_->definition.slots.change(checkedInt16(i)) = record; }

Variant Smes::CAS(int i) const {
    const std::int32_t number = recordOf(state_->definition.slots, i).CAS;
    if (number <= 0) return " ";
    return "[" + casText(Str(number)) + "]";  // the leading blank stays inside the bracket, as designed
}

float Smes::VLRConst(int i, int k, int j) const {
    requireInt16({i, k, j});
    if (!addressesBlock(state_->definition, i, k)) return kNoConstant;
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
    const PublicCall call(*state_);
    requireInt16({i, k, j});
    const float number = value.toSingle();
    if (!addressesBlock(state_->definition, i, k)) {
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

Variant Smes::Nslozky(int i) const { return state_->definition.slots.Latka(checkedInt16(i)).Cislo; }

float Smes::Bod(int i, int k) const {
    if (!addressesConstant(state_->definition, i, k)) return kNoConstant;
    const float constant = state_->definition.slots.Latka(i).*constantMember(k);
    checked::finite(constant);
    return constant;
}

void Smes::Bod(int i, int k, const Variant& value) {
    const PublicCall call(*state_);
    const float constant = value.toSingle();
    if (!addressesConstant(state_->definition, i, k)) {
        showUnlessSilent(state_->messages, "Bod( ) - chybné zadání!", Icon::Exclamation);
        return;
    }
    state_->definition.slots.change(i).*constantMember(k) = constant;
}

}  // namespace velor
