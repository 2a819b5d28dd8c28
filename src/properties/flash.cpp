#include "properties/flash.h"

#include <cstddef>
#include <utility>

#include "object/trap.h"
#include "properties/flash_report.h"
#include "properties/liquid.h"
#include "properties/prepared_correlation.h"
#include "properties/pure_value.h"
#include "properties/saturation.h"
#include "properties/state_functions.h"
#include "runtime/text.h"
#include "velor/smes.h"

namespace velor {

namespace {

bool mayTellOfVapourPressures(const State& state, std::size_t components) {
    if (state.messages.ChyboveHlasky == -1) return true;  // any error is raised to the host
    for (int i = 1; i <= static_cast<int>(components); ++i)
        if (!keptCorrelation(state, i, kTENS)) return true;
    return false;
}

}  // namespace

Flash::Flash(State& state, bool adiabatic, double P, std::vector<double> feed)
    : state_(state), adiabatic_(adiabatic), P_(P) {
    report_ = std::string("FLASH výpočet ") + (adiabatic_ ? "adiabatický" : "izotermní") + kLineBreak;
    found_.kind = adiabatic_ ? FlashKind::Adiabatic : FlashKind::Isothermal;
    found_.feed = std::move(feed);
    found_.liquid.resize(found_.feed.size());
    found_.vapour.resize(found_.feed.size());
    const Composition z(found_.feed);
    found_.bubblePoint = TBV(state_, P, z).value_or(0.0);
    found_.dewPoint = TRB(state_, P, z).value_or(0.0);
    found_.bubbleOutcome = state_.last.bubblePoint;
    found_.dewOutcome = state_.last.dewPoint;
}

void Flash::run(double T0) {
    found_.temperature = T0;
    if (!adiabatic_ && T0 > found_.dewPoint) {
        finishTrivially(FlashOutcome::AllVapour, 1.0, "Zadáno T > rosný bod : Vše odpařeno");
        found_.vapour = found_.feed;
    } else if (T0 < found_.bubblePoint) {
        finishTrivially(FlashOutcome::AllLiquid, 0.0, "Zadáno T < bod varu: Vše kapalné");
        found_.liquid = found_.feed;
    } else {
        iterate(T0);
    }
    // No convergence is told by the missing result lines alone, on purpose.
    if (found_.outcome != FlashOutcome::NotConverged) appendResults(T0);
}

void Flash::finishTrivially(FlashOutcome outcome, double V, const char* text) {
    found_.outcome = outcome;
    found_.vapourFraction = V;
    show(state_.messages, text, Icon::Exclamation);
    report_ += text;
    report_ += kLineBreak;
}

void Flash::iterate(double T0) {
    FlashSolution solution = solve(T0);
    found_.outcome = solution.converged ? FlashOutcome::Converged : FlashOutcome::NotConverged;
    found_.passes = solution.passes;
    found_.vapourFraction = solution.V;
    found_.temperature = solution.T;
    found_.materialResidual = solution.materialResidual;
    found_.energyResidual = solution.energyResidual;
    found_.liquid = std::move(solution.x);
    found_.vapour = std::move(solution.y);
}

FlashSolution Flash::solve(double T0) {
    const auto equilibriumAt = [&](double T) { return equilibrium(T); };
    FlashSolution solution;
    if (!adiabatic_) {
        isothermalFlash(solution, T0, found_.feed, equilibriumAt);
        return solution;
    }
    const double H0 = HL(state_, T0, Composition(found_.feed));
    const double start = (found_.bubblePoint + found_.dewPoint) * 0.5;
    adiabaticFlash(
        solution, H0, start, found_.feed, equilibriumAt,
        [&](double T, const std::vector<double>& x) { return HL(state_, T, Composition(x)); },
        [&](double T, const std::vector<double>& y) { return vapourEnthalpy(T, y); });
    return solution;
}

// At a given temperature the K-values stay the same; they are gathered again only for messages that are due.
Equilibrium Flash::equilibrium(double T) {
    const bool first = found_.equilibrium.empty();
    if (adiabatic_ || first) {
        const Composition z(found_.feed);
        state_.last.flashPressure = TENS(state_, T, z).value_or(0.0);
        // Again at the warmer temperature, only for a message or an error that this may tell.
        if (mayTellOfVapourPressures(state_, found_.feed.size())) TENS(state_, T + kFlashTemperatureStep, z);
    }
    if (adiabatic_ || first || messagesShown_) gatherEquilibrium(T);
    return {found_.equilibrium, slopes_};
}

// K = p°/P by Raoult's law (1887), and its slope where the temperature is sought.
void Flash::gatherEquilibrium(double T) {
    const std::int16_t messagesBefore = state_.messages.PocHlasek;
    const std::size_t n = found_.feed.size();
    found_.equilibrium.resize(n);
    if (adiabatic_) slopes_.resize(n);
    const Temperature at(T), warmer(T + kFlashTemperatureStep);
    for (std::size_t i = 0; i < n; ++i) {
        const int component = static_cast<int>(i) + 1;
        const double K = found_.equilibrium[i] = checked::divide(FFce(state_, at, component, kTENS), P_);
        if (!adiabatic_) continue;
        const double above = checked::divide(FFce(state_, warmer, component, kTENS), P_);
        slopes_[i] = (above - K) / kFlashTemperatureStep;
    }
    messagesShown_ = state_.messages.PocHlasek != messagesBefore;
}

double Flash::vapourEnthalpy(double T, const std::vector<double>& y) {
    const std::optional<double> enthalpy = realGasMember(state_, &RealGasState::enthalpy, T, P_, Composition(y));
    if (!enthalpy) checked::raise(RunTimeError::kTypeMismatch);
    return *enthalpy;
}

void Flash::appendResults(double T0) {
    std::vector<std::string> names;
    names.reserve(found_.feed.size());
    for (int i = 1; i <= static_cast<int>(found_.feed.size()); ++i)
        names.push_back(componentName(state_.definition.slots, i));
    appendFlashReport(report_, {T0, found_.temperature, state_.last.flashPressure, P_}, found_, names);
}

const FlashRecord& Smes::lastFlash() const { return state_->last.flash; }

}  // namespace velor
