// Message boxes, their budget, and the errors raised to the host.
#pragma once

#include <cstdint>
#include <string>

#include "velor/run_time_error.h"
#include "velor/user_interface.h"

namespace velor {

// Who is told, which messages are wanted and how many there were.
struct Messages {
    UserInterface* userInterface = nullptr;  // the person's or, while Tichy is 1, nobody's
    std::int16_t Tichy = 0;
    std::int16_t ChyboveHlasky = 0;
    std::int16_t PocHlasek = 0;
    std::int16_t MaxErrHlas = 20;
};

// Shown whatever the mode and the budget say; not counted.
Answer show(const Messages& messages, std::string text, Icon icon, std::string title = "VELOR",
            Buttons buttons = Buttons::Ok);

// The same in every mode but 2, whatever the budget.
void showUnlessSilent(const Messages& messages, std::string text, Icon icon, std::string title = "VELOR");

// Whether a message of the correlation engine is due: modes -1 and 0, budget not spent.
inline bool engineMessageIsDue(const Messages& messages) {
    return messages.ChyboveHlasky < 1 && messages.PocHlasek < messages.MaxErrHlas;
}

// Whether a message of the mixture functions is due: every mode but 2, budget not spent.
inline bool mixtureMessageIsDue(const Messages& messages) {
    return messages.ChyboveHlasky < 2 && messages.PocHlasek < messages.MaxErrHlas;
}

// Whether a search without a solution ends. The message that tells its end is its only limit, as built; where nobody
// can stop the program it ends all the same.
inline bool mayGiveUp(const Messages& messages) { return messages.Tichy != 0 || mixtureMessageIsDue(messages); }

// Shows a message and counts it. The caller has made sure that it is due.
void showCounted(Messages& messages, std::string text, Icon icon, std::string title = "VELOR");

// The error that a host sees while ChyboveHlasky is -1.
[[noreturn]] void raiseToHost(std::string source, std::string description);

// The shared reporter, for the handler of any trapped method.
void ChybaVypoctu(const Messages& messages, const RunTimeError& error, const std::string& Zdroj);

}  // namespace velor
