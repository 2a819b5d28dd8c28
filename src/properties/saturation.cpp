#include "properties/saturation.h"

#include <string>

#include "object/trap.h"
#include "properties/pure_value.h"
#include "rules/saturation.h"
#include "velor/smes.h"

namespace velor {

namespace {

struct Method {
    Saturation kind;
    const char* name;
    const char* divergence;
    SaturationOutcome LastResults::*outcome;
};

constexpr Method kTBV{Saturation::Bubble, "TBV", "Výp.bodu varu diverguje!", &LastResults::bubblePoint};
constexpr Method kTRB{Saturation::Dew, "TRB", "Výp.ros.bodu diverguje!", &LastResults::dewPoint};

double saturationTemperature(State& state, const Method& method, double P, const Composition& X) {
    const int n = state.definition.PocSlozek;
    const ComponentValues x = takeFractions(state, X);
    ComponentValues Tc(n);
    for (int i = 1; i <= n; ++i) Tc[i] = state.definition.slots.Latka(i).Tkr;

    std::int16_t messagesBefore = state.messages.PocHlasek;
    const auto vapourPressure = [&](std::size_t i, const Temperature& T) {
        messagesBefore = state.messages.PocHlasek;
        return FFce(state, T, static_cast<int>(i) + 1, kTENS);
    };
    // By a forward difference of 1 K. The method evaluates the pressure at T a second time for it, so whatever message
    // that shows comes twice; where none was shown the value is known.
    const auto rise = [&](std::size_t i, const Temperature& T, const Temperature& warmer, double Ps) {
        const int component = static_cast<int>(i) + 1;
        const bool messagesShown = state.messages.PocHlasek != messagesBefore;
        const double above = FFce(state, warmer, component, kTENS);
        return above - (messagesShown ? FFce(state, T, component, kTENS) : Ps);
    };
    const SaturationPoint point = saturationPoint(method.kind, P, x.first(n), Tc.first(n), vapourPressure, rise,
                                                  [&] { return mayGiveUp(state.messages); });
    state.last.*method.outcome = point.diverged ? SaturationOutcome::Diverged : SaturationOutcome::Converged;
    if (!point.diverged) return point.temperature;
    if (mixtureMessageIsDue(state.messages)) showCounted(state.messages, method.divergence, Icon::Exclamation);
    // After a divergence the bubble point answers 0 and the dew point its last estimate; both are meant.
    return method.kind == Saturation::Bubble ? 0.0 : point.temperature;
}

std::string title(const Method& method, const HostNumber& P) {
    return std::string("VELOR - ") + method.name + "; P(Pa)= " + P.text("#0");
}

std::optional<double> trappedTemperature(State& state, const Method& method, double P, const Composition& X) {
    state.last.*method.outcome = SaturationOutcome::Failed;  // until it has ended
    return trapped(
        state.messages, [&] { return title(method, P); }, [&] { return saturationTemperature(state, method, P, X); });
}

Variant publicTemperature(State& state, const Method& method, const Variant& P, const Variant& X) {
    state.last.*method.outcome = SaturationOutcome::Failed;  // until it has ended
    return trappedMethod(
        state, [&] { return title(method, P); },
        [&] { return saturationTemperature(state, method, P.toDouble(), Composition(X)); });
}

}  // namespace

std::optional<double> TBV(State& state, double P, const Composition& X) {
    return trappedTemperature(state, kTBV, P, X);
}
std::optional<double> TRB(State& state, double P, const Composition& Y) {
    return trappedTemperature(state, kTRB, P, Y);
}

Variant Smes::TBV(const Variant& P, const Variant& X) { return publicTemperature(*state_, kTBV, P, X); }
Variant Smes::TRB(const Variant& P, const Variant& Y) { return publicTemperature(*state_, kTRB, P, Y); }

SaturationOutcome Smes::lastBubblePoint() const { return state_->last.bubblePoint; }
SaturationOutcome Smes::lastDewPoint() const { return state_->last.dewPoint; }

}  // namespace velor
