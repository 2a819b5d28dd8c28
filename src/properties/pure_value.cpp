#include "properties/pure_value.h"

#include <string>

#include "object/trap.h"
#include "properties/prepared_correlation.h"
#include "rules/equations.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "runtime/windows_1250.h"
#include "velor/smes.h"

namespace velor {

namespace {

constexpr int kProperties = 10;

bool exists(const State& state, int i, int k) {
    return k >= 1 && k <= kProperties && i >= 1 && i <= state.definition.PocSlozek;
}

// What is shown to the user stays out of the way of the evaluation: its texts would cost every call their stack frame.

// Both rejections are tied to their message: where it is not due the evaluation goes on.
[[gnu::noinline]] bool rejects(State& state, int i, int k) {
    if (!engineMessageIsDue(state.messages)) return false;
    if (k < 1 || k > kProperties) {
        showCounted(state.messages, "FFce: Chyba č.vlastnosti(1-10): " + Str(k), Icon::Exclamation);
    } else {
        showCounted(state.messages,
                    "FFce: Chyba č.složky směsi (1-" + Str(state.definition.PocSlozek) + ") : " + Str(i),
                    Icon::Exclamation);
    }
    return true;
}

std::string substanceAndProperty(const State& state, int i, int k) {
    const auto& name = state.definition.slots.Latka(i).Nazev;
    return Str(state.definition.slots.CisloLatky(i)) + "  " + decodeWindows1250({name.data(), name.size()}) +
           " vlast. " + std::string(propertyName(k));
}

[[gnu::noinline]] void reportMissing(State& state, int i, int k) {
    if (!engineMessageIsDue(state.messages)) return;
    showCounted(state.messages, "FFce: " + Str(i) + ".složka " + substanceAndProperty(state, i, k) + " neni v bázi!",
                Icon::None);
}

[[gnu::noinline]] double reportInvalidType(State& state, double T, int i, int k) {
    const int type = state.definition.slots.Latka(i).Korelace[static_cast<std::size_t>(k - 1)].Typ;
    const std::string temperature = kLineBreak + ("Teplota(K)= " + Format(T, "#0.0"));
    if (engineMessageIsDue(state.messages)) {
        showCounted(state.messages,
                    "FFce: Typ.korel.vzt." + Str(type) + " u látky: " + substanceAndProperty(state, i, k) + temperature,
                    Icon::Exclamation, "VELOR Chyba");
    }
    if (state.messages.ChyboveHlasky == -1) {
        raiseToHost("VELOR - FFce", std::string("Chyba při výpočtu vlastnosti!") + kLineBreak +
                                        "Látka: " + substanceAndProperty(state, i, k) + temperature);
    }
    return kNoValue;
}

}  // namespace

PropertyValue judged(double value, Standing standing) {
    if (value == kNoValue) return {Standing::BeyondReference};
    if (value < 0) return {Standing::Failed};  // an equation far outside its range: none of the ten is negative
    return {standing, value};
}

HeatCapacity heatCapacityOf(const TLatka& record, bool isClamped) {
    const TKorelace& block = record.Korelace[kCPG - 1];
    return {block.A, block.Typ, isClamped, static_cast<double>(block.Tmin), static_cast<double>(block.Tmax)};
}

namespace {

double evaluate(State& state, const Temperature& T, int i, int k) {
    const PreparedCorrelation* correlation = &preparedCorrelation(state, i, k);
    if (!correlation->isGiven()) [[unlikely]] {
        reportMissing(state, i, k);
        correlation = &preparedCorrelation(state, i, k);  // the host may have changed it meanwhile
    }
    if (!correlation->hasEquation()) [[unlikely]]
        return reportInvalidType(state, T, i, k);
    return correlation->value(T, state.settings.MezeTeplot > 0);
}

const Temperature& kelvin(const Temperature& T) { return T; }
Temperature kelvin(const Variant& T) { return T.toDouble(); }

// What is raised to the host on purpose tells the substance and passes the trap as it is.
template <class Body>
double valueOf(const State& state, const Body& body) {
    return trappedOr<Raised::Passed>(
        kNoValue, state.messages, [] { return std::string("FFce"); }, body);
}

// The whole of FFce: what is not prepared yet, and what there may be a message of. T is a Temperature or the host's.
template <class Number>
[[gnu::noinline]] double valueWithMessages(State& state, const Number& T, int i, int k) {
    if (!exists(state, i, k) && rejects(state, i, k)) return 0.0;
    return valueOf(state, [&] { return evaluate(state, kelvin(T), i, k); });
}

template <class Number>
double pureValue(State& state, const Number& T, int i, int k) {
    const PreparedCorrelation* kept = exists(state, i, k) ? keptCorrelation(state, i, k) : nullptr;
    if (!kept) [[unlikely]]
        return valueWithMessages(state, T, i, k);
    return valueOf(state, [&] { return kept->value(kelvin(T), state.settings.MezeTeplot > 0); });
}

}  // namespace

double FFce(State& state, const Temperature& T, int i, int k) { return pureValue(state, T, i, k); }

std::string_view propertyName(int k) {
    if (k >= 1 && k <= kProperties) return pureProperties()[static_cast<std::size_t>(k - 1)].code;
    return k == TLatka::kCorrelations ? "Rezerva" : "Nedef. ";
}

Variant Smes::FFce(const Variant& T, int i, int k) {
    const PublicCall call(*state_);
    requireInt16({i, k});
    return pureValue(*state_, T, i, k);
}

std::string Smes::ChybRozv(int k) { return std::string(propertyName(checkedInt16(k))); }
std::string Smes::Vztah(int Typ) { return std::string(equationText(checkedInt16(Typ))); }

Variant Smes::Log10(const Variant& v) { return checked::decimalLogarithm(v.toDouble()); }

}  // namespace velor
