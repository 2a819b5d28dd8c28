// The manual page of the command, made of its description.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

namespace velor::app {

// In the language of the man macros, UTF-8.
std::string manualPage(const CLI::App& program, const std::string& version);

}  // namespace velor::app
