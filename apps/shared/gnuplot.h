// Pictures are drawn by gnuplot.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace velor::app {

// Why there is no picture, in Czech.
class GnuplotFailure : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Runs a script that draws to the standard output, in a process of its own, and returns the picture's bytes.
std::string runGnuplot(std::string_view script);

// A text of gnuplot's that nothing is interpreted in: what is no letter or blank stands by its octal code,
// digits as well, because gnuplot would read them as part of a code before them.
std::string gnuplotText(std::string_view text);

}  // namespace velor::app
