// Options that several subcommands share, and what they say.
#pragma once

#include "subcommands.h"

namespace velor::app {

inline constexpr const char* kWaysToName =
    "číslo v bázi, český nebo jiný název (i jeho jedinečná část,\n"
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
