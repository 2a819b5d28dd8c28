// The subcommands on the command line: what they take, the options that several of them share, and the question that
// they make of it.
#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "command_line/command_line.h"
#include "completion/completion.h"

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
    bool safeCsv = false;
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

inline constexpr const char* kWaysToName =
    "číslo v bázi, český nebo jiný název (i jeho jednoznačný začátek,\n"
    "bez ohledu na velikost písmen a diakritiku), vzorec, číslo CAS";

CLI::Option* addSubstance(CLI::App* command, Arguments& arguments);
CLI::Option* addSubstances(CLI::App* command, Arguments& arguments);
// --slozeni, --hmotove, --normalizovat
void addComposition(CLI::App* command, Arguments& arguments);
void addTemperatures(CLI::App* command, Arguments& arguments);
void addTemperature(CLI::App* command, Arguments& arguments, const std::string& description);
void addPressure(CLI::App* command, Arguments& arguments, const std::string& description);
void addClamp(CLI::App* command, Arguments& arguments);

// The words of a text of several words, which needs no quotes.
std::string joinedSubstance(const Arguments& arguments);
// The value of an option that the command cannot do without. Failure(WrongUse) where it was left out.
const std::string& required(const std::optional<std::string>& value, const std::string& option);
// Failure(WrongUse): --hmotove or --normalizovat without fractions.
CompositionRequest compositionOf(const Arguments& arguments);
std::optional<double> pressureOf(const Arguments& arguments);
double pressureOrNormal(const Arguments& arguments);
double temperatureOrUsual(const Arguments& arguments);

// What is asked of a property, pure or of a mixture.
std::variant<PropertyRequest, MixturePropertyRequest> propertyRequest(const Arguments& arguments);

}  // namespace velor::app
