// The command-line library's own words in Czech.
#pragma once

#include <CLI/CLI.hpp>
#include <memory>
#include <string>

namespace velor::app {

// A line of the help: a name and, in the column of descriptions, what it means.
std::string definition(const std::string& name, const std::string& description);

// Help with Czech headings, aligned by characters.
std::shared_ptr<CLI::Formatter> czechFormatter();

// What is wrong with the command line, as a Czech sentence.
std::string czechParseError(const CLI::ParseError& error);

}  // namespace velor::app
