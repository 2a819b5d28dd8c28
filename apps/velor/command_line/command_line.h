// The command line: what the user asks for, as he typed it.
#pragma once

#include <optional>
#include <string>
#include <variant>

#include "mixtures/mixtures.h"
#include "output/output.h"
#include "substances/substances.h"

namespace velor::app {

struct Request {
    std::optional<std::string> database;  // instead of the one that VELOR.CFG names
    OutputForm form = OutputForm::Text;
    double timeLimit = 0;  // s
    std::variant<SubstanceListRequest, SubstanceRequest, PropertyRequest, TourRequest, PropertyListRequest,
                 MixturePropertyRequest, MixtureRequest, MixtureDialogRequest, OverviewRequest, EquilibriumRequest,
                 GraphRequest, FlashRequest, AskingFlashRequest>
        question;
};

// A text that answers at once: help, version, manual page or completions.
using ReadyAnswer = std::string;

// Failure(WrongUse) says what is wrong with the command line.
std::variant<Request, ReadyAnswer> parseArguments(int argc, const char* const* argv);

}  // namespace velor::app
