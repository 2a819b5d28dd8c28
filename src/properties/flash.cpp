// Single-stage flash of a feed, isothermal or adiabatic.
#include "rules/flash.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "dialogs/typed_composition.h"
#include "object/trap.h"
#include "properties/flash_report.h"
#include "properties/liquid.h"
#include "properties/pure_value.h"
#include "properties/saturation.h"
#include "properties/state_functions.h"
#include "runtime/numbers.h"
#include "runtime/physical_constants.h"
#include "runtime/text.h"
#include "velor/smes.h"

namespace velor {

namespace {

constexpr int kAdiabatic = 1;
constexpr double kToleranceV = 0.0005;
constexpr double kToleranceT = 0.1;       // K
constexpr double kTemperatureStep = 6.0;  // K, of the difference quotients
constexpr int kPassLimit = 30;
constexpr double kSumTolerance = 1.0E-4;
constexpr double kLeastTemperature = 50.0;  // K
constexpr double kLeastVapour = 1.0E-6;
constexpr double kTemperatureDamping = 0.7;

// ---- What the user is asked ------------------------------------------------------------------------------------

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

// ---- The calculation -------------------------------------------------------------------------------------------

class Flash {
  public:
    Flash(State& state, int mode, std::vector<double> feed)
        : state_(state), adiabatic_(mode == kAdiabatic), n_(feed.size()) {
        found_.kind = adiabatic_ ? FlashKind::Adiabatic : FlashKind::Isothermal;
        found_.feed = std::move(feed);
        found_.liquid.resize(n_);
        found_.vapour.resize(n_);
        report_ = std::string("FLASH výpočet ") + (adiabatic_ ? "adiabatický" : "izotermní") + kLineBreak;
    }

    void findBoilingRange(double P) {
        P_ = P;
        found_.bubblePoint = TBV(state_, P, feed()).value_or(0.0);
        found_.dewPoint = TRB(state_, P, feed()).value_or(0.0);
        found_.bubbleOutcome = state_.last.bubblePoint;
        found_.dewOutcome = state_.last.dewPoint;
    }

    double bubblePoint() const { return found_.bubblePoint; }
    double dewPoint() const { return found_.dewPoint; }

    // The final temperature.
    double run(double T0) {
        T0_ = found_.temperature = T0;
        if (!adiabatic_ && T0 > found_.dewPoint) {
            finishTrivially(FlashOutcome::AllVapour, 1.0, "Zadáno T > rosný bod : Vše odpařeno");
            found_.vapour = found_.feed;
        } else if (T0 < found_.bubblePoint) {
            finishTrivially(FlashOutcome::AllLiquid, 0.0, "Zadáno T < bod varu: Vše kapalné");
            found_.liquid = found_.feed;
        } else {
            iterate();
        }
        if (found_.outcome != FlashOutcome::NotConverged) appendResults();
        return found_.temperature;
    }

    FlashRecord takeFound() { return std::move(found_); }
    const std::string& report() const { return report_; }

  private:
    Composition feed() const { return Composition(found_.feed); }

    void finishTrivially(FlashOutcome outcome, double V, const char* text) {
        found_.outcome = outcome;
        found_.vapourFraction = V;
        show(state_.messages, text, Icon::Exclamation);
        report_ += text;
        report_ += kLineBreak;
    }

    void iterate() {
        double& V = found_.vapourFraction = 1.0;
        double& T = found_.temperature;
        if (adiabatic_) {
            T = (found_.bubblePoint + found_.dewPoint) * 0.5;
            H0_ = HL(state_, T0_, feed());
        }
        double relaxation = 0.1;
        for (int counter = 1;;) {
            const FlashStep step = pass(counter == 1);
            relaxation = std::min(relaxation * counter, 1.0);
            T += kTemperatureDamping * relaxation * step.T;
            V += relaxation * step.V;
            if (V > 1.0) V = 1.0;
            if (V <= 0.0) V = kLeastVapour;
            T = std::max(T, kLeastTemperature);
            found_.passes = counter;
            found_.outcome = FlashOutcome::NotConverged;
            if (++counter > kPassLimit) return;  // told by the missing result lines alone, on purpose
            if (!(std::abs(step.V) > kToleranceV || std::abs(step.T) > kToleranceT)) break;
        }
        found_.outcome = FlashOutcome::Converged;
    }

    FlashStep pass(bool first) {
        const double V = found_.vapourFraction, T = found_.temperature;
        if (adiabatic_ || first) {
            state_.last.flashPressure = TENS(state_, T, feed()).value_or(0.0);
            TENS(state_, T + kTemperatureStep, feed());  // only for the messages that it may show
        }
        // At a given temperature the K-values stay the same; they are computed again only for messages that are due.
        if (adiabatic_ || first || messagesShown_) findEquilibrium(T);
        const MaterialBalance material =
            splitFeed(V, found_.feed, found_.equilibrium, slopes_, found_.liquid, found_.vapour);
        found_.materialResidual = checked::finite(material.residual);
        if (!adiabatic_) return isothermalStep(material);
        normalise(found_.liquid);
        normalise(found_.vapour);
        const EnergyBalance energy = energyBalance(V, T);
        found_.energyResidual = checked::finite(energy.residual);
        return adiabaticStep(material, energy);
    }

    void findEquilibrium(double T) {
        const std::int16_t messagesBefore = state_.messages.PocHlasek;
        found_.equilibrium.resize(n_);
        if (adiabatic_) slopes_.resize(n_);
        for (std::size_t i = 0; i < n_; ++i) {
            const int component = static_cast<int>(i) + 1;
            const double K = found_.equilibrium[i] = checked::divide(FFce(state_, T, component, kTENS), P_);
            if (!adiabatic_) continue;
            const double warmer = checked::divide(FFce(state_, T + kTemperatureStep, component, kTENS), P_);
            slopes_[i] = (warmer - K) / kTemperatureStep;
        }
        messagesShown_ = state_.messages.PocHlasek != messagesBefore;
    }

    EnergyBalance energyBalance(double V, double T) {
        const Composition x(found_.liquid), y(found_.vapour);
        const double liquid = HL(state_, T, x), vapour = vapourEnthalpy(T, y);
        const double liquidRise = HL(state_, T + kTemperatureStep, x) - liquid;
        const double vapourRise = vapourEnthalpy(T + kTemperatureStep, y) - vapour;
        return {(1.0 - V) * liquid + V * vapour - H0_, vapour - liquid,
                (1.0 - V) * liquidRise / kTemperatureStep + V * vapourRise / kTemperatureStep};
    }

    double vapourEnthalpy(double T, const Composition& y) {
        const std::optional<double> enthalpy = realGasMember(state_, &RealGasState::enthalpy, T, P_, y);
        if (!enthalpy) checked::raise(RunTimeError::kTypeMismatch);
        return *enthalpy;
    }

    void appendResults() {
        std::vector<std::string> names;
        for (int i = 1; i <= static_cast<int>(n_); ++i) names.push_back(componentName(state_, i));
        report_ += flashReport({T0_, found_.temperature, state_.last.flashPressure, P_}, found_, names);
    }

    State& state_;
    bool adiabatic_;
    std::size_t n_;
    double P_ = 0, T0_ = 0, H0_ = 0;
    std::vector<double> slopes_;  // dK/dT, where the temperature is sought
    bool messagesShown_ = false;  // by the last evaluation of the K-values
    FlashRecord found_;
    std::string report_;
};

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
    State& state = *state_;
    const bool interactive = checkedInt16(mode) < 0;
    state.last.flash = {};
    loadComponents(state);
    if (interactive) mode = askMode(state);
    if (interactive) P = askPressure(state);
    std::vector<double> feed = interactive ? askFeed(state) : feedOf(state, Z);
    normaliseFeed(state, feed);

    Flash flash(state, mode, std::move(feed));
    flash.findBoilingRange(P.toDouble());
    if (interactive) T = askTemperature(state, flash.bubblePoint(), flash.dewPoint());
    const double end = flash.run(T.toDouble());
    state.last.flash = flash.takeFound();
    if (mode == kAdiabatic && state.last.flash.outcome == FlashOutcome::Converged) T = end;
    return flash.report();
}

const FlashRecord& Smes::lastFlash() const { return state_->last.flash; }

}  // namespace velor
