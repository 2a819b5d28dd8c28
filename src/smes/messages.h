// Message boxes, their budget, and the errors raised to the host.
#pragma once

#include <string>
#include <string_view>

#include "smes/state.h"
#include "velor/run_time_error.h"

namespace velor {

inline constexpr std::string_view kLineBreak = "\r\n";

// Shown whatever the mode and the budget say; not counted.
Answer show(State& state, std::string text, Icon icon, std::string title = "VELOR", Buttons buttons = Buttons::Ok);

// Whether a message of the correlation engine is due: modes -1 and 0, budget not spent.
inline bool engineMessageIsDue(const State& state) {
    return state.ChyboveHlasky < 1 && state.PocHlasek < state.MaxErrHlas;
}

// Whether a message of the mixture functions is due: every mode but 2, budget not spent.
inline bool mixtureMessageIsDue(const State& state) {
    return state.ChyboveHlasky < 2 && state.PocHlasek < state.MaxErrHlas;
}

// The mixture's caption for titles.
inline std::string mixtureName(const State& state) { return state.SNazev.empty() ? "nepojmenovaná" : state.SNazev; }

// Shows a message and counts it. The caller has made sure that it is due.
void showCounted(State& state, std::string text, Icon icon, std::string title = "VELOR");

// The error that a host sees while ChyboveHlasky is -1.
[[noreturn]] void raiseToHost(std::string source, std::string description);

// The shared reporter, for the handler of any trapped method.
void ChybaVypoctu(State& state, const RunTimeError& error, const std::string& Zdroj);

}  // namespace velor
