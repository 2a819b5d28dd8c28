// The subcommands on the command line: what they take and the question that they make of it.
#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>
#include <vector>

#include "completion.h"
#include "requests.h"
#include "value_names.h"

namespace velor::app {

// What stands on the command line.
struct Arguments {
    std::vector<std::string> substance;
    std::string order = kOrderByName;
    std::string property;
    bool list = false;
    std::string substances;
    std::optional<std::string> fractions;
    bool byMass = false;
    bool normalise = false;
    std::optional<std::string> temperature;
    std::optional<std::string> pressure;
    bool clamp = false;
    std::string points = "21";
    std::optional<std::string> picture;
    bool dialog = false;
    bool adiabatic = false;
    bool asking = false;
    std::string database;
    std::string timeLimit = "60";
    bool csv = false;
    bool json = false;
    CompletionRequest completion;
    decltype(Request::question) question;  // of the command given
};

inline constexpr const char* kOptions = "Přepínače";
inline constexpr const char* kCommands = "Příkazy";

// On the program and on each command, so that they may stand before it and behind it.
void addCommonOptions(CLI::App* app, Arguments& arguments);

void addSubstanceListCommand(CLI::App& program, Arguments& arguments);
void addSubstanceCommand(CLI::App& program, Arguments& arguments);
void addTourCommand(CLI::App& program, Arguments& arguments);
void addPropertyCommand(CLI::App& program, Arguments& arguments);
void addMixtureCommand(CLI::App& program, Arguments& arguments);
void addOverviewCommand(CLI::App& program, Arguments& arguments);
void addEquilibriumCommand(CLI::App& program, Arguments& arguments);
void addFlashCommand(CLI::App& program, Arguments& arguments);
void addGraphCommand(CLI::App& program, Arguments& arguments);

}  // namespace velor::app
