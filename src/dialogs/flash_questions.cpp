// The flash as the host calls it: its arguments, or the user asked for them.
#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "dialogs/typed_composition.h"
#include "object/trap.h"
#include "properties/flash.h"
#include "rules/composition.h"
#include "runtime/numbers.h"
#include "runtime/physical_constants.h"
#include "runtime/text.h"
#include "velor/smes.h"

namespace velor {

namespace {

constexpr int kAdiabatic = 1;
constexpr double kSumTolerance = 1.0E-4;

std::string ask(State& state, std::string prompt, std::string title, std::string defaultAnswer,
                Question question = Question::Other) {
    return state.messages.userInterface->askText(
        {std::move(prompt), std::move(title), std::move(defaultAnswer), question});
}

double numberIn(const std::string& answer) { return Smes::Hodnota(answer).toDouble(); }

int askMode(State& state) {
    return roundToInt16(numberIn(ask(state, "FLASH  0-izotermní; 1-adiabatický:", "VELOR", "0")));
}

double askPressure(State& state) {
    for (;;) {
        const double P = numberIn(ask(state, "Zadat tlak(Pa):", "FLASH", "101300"));
        if (P > 0) return P;
    }
}

// A wrong number of fractions is asked for again only while messages are allowed; otherwise it is taken as it stands,
// and what is missing counts as 0.
std::vector<double> askFeed(State& state) {
    for (;;) {
        const std::string answer =
            ask(state, "Zadat složení nástřiku (mol.zl.) oddělené mezerou nebo středníkem: ", "FLASH", "",
                Question::FlashFeed);
        if (answer.empty()) continue;
        std::vector<double> feed = parseComposition(answer);
        const bool complete = static_cast<int>(feed.size()) == state.definition.PocSlozek;
        if (complete || !mixtureMessageIsDue(state.messages)) return feed;
        showCounted(state.messages,
                    "Nezadáno tolik mol.zlomků, kolik je složek! " + std::to_string(state.definition.PocSlozek),
                    Icon::Exclamation, "FLASH");
    }
}

double askTemperature(State& state, double Tb, double Td) {
    const std::string prompt = std::string("Zadat teplotu(°C):") + kLineBreak + "Bod varu  " +
                               Format(Tb - kZeroCelsius, "0.0") + kLineBreak + "Rosný bod " +
                               Format(Td - kZeroCelsius, "0.0");
    const std::string suggestion = Format(0.3 * Tb + 0.7 * Td - kZeroCelsius, "#0.0");
    return numberIn(ask(state, prompt, "VELOR", suggestion)) + kZeroCelsius;
}

// Divides by the sum of the values given, which need not be as many as there are components.
void normaliseFeed(State& state, std::vector<double>& feed) {
    double sum = 0.0;
    for (const double fraction : feed) sum += fraction;
    normalise(feed);
    if (std::abs(sum - 1.0) > kSumTolerance && mixtureMessageIsDue(state.messages)) {
        showCounted(state.messages, "FLASH chybně zadané složení, součet " + Format(sum, "0.00000"), Icon::Information,
                    "FLASH");
    }
    feed.resize(static_cast<std::size_t>(std::max<int>(state.definition.PocSlozek, 0)));
}

std::vector<double> feedOf(const State& state, const Variant& Z) {
    std::vector<double> feed;
    for (int i = 1; i <= state.definition.PocSlozek; ++i) {
        ComponentSlots::index(i);
        feed.push_back(Z.at(i).toDouble());
    }
    return feed;
}

}  // namespace

std::string Smes::FLASH(int mode, Variant& T, Variant& P, const Variant& Z) {
    const PublicCall call(*state_);
    State& state = *state_;
    const bool interactive = checkedInt16(mode) < 0;
    state.last.flash = {};
    loadComponents(state);
    if (interactive) mode = askMode(state);
    if (interactive) P = askPressure(state);
    std::vector<double> feed = interactive ? askFeed(state) : feedOf(state, Z);
    normaliseFeed(state, feed);

    const bool adiabatic = mode == kAdiabatic;
    Flash flash(state, adiabatic, P.toDouble(), std::move(feed));
    if (interactive) T = askTemperature(state, flash.found().bubblePoint, flash.found().dewPoint);
    flash.run(T.toDouble());
    if (adiabatic && flash.found().outcome == FlashOutcome::Converged) T = flash.found().temperature;
    state.last.flash = flash.takeFound();
    return flash.takeReport();
}

}  // namespace velor
