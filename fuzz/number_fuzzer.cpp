// A typed number against the C library's reading of the same digits, and a number's text read back.
#include <cstdlib>
#include <regex>

#include "runtime/numbers.h"
#include "target.h"
#include "velor/smes.h"

namespace {

using namespace velor;

constexpr std::size_t kLongest = 400;  // the regular expression's recursion grows with the text

// Empty where the number is beyond double precision.
std::optional<double> expected(std::string text) {
    static const std::regex form(R"( *([+-]?([0-9]+[.]?[0-9]*|[.][0-9]+)([eE][+-]?[0-9]+)?))");
    std::replace(text.begin(), text.end(), ',', '.');
    std::smatch match;
    if (!std::regex_search(text, match, form, std::regex_constants::match_continuous)) return 0.0;
    const double number = std::strtod(match[1].str().c_str(), nullptr);
    if (std::isinf(number)) return std::nullopt;
    return number;
}

void checkText(const std::string& text) {
    const std::optional<double> number = expected(text);
    try {
        const double read = Smes::Hodnota(text).toDouble();
        fuzz::require(number.has_value(), "read a number beyond double precision");
        // What cannot be told from zero any more may be read as zero.
        const bool tiny = std::abs(*number) < 2.3e-308 && read == 0.0;
        fuzz::require(read == *number || tiny, "read another number");
    } catch (const RunTimeError& error) {
        fuzz::require(!number && error.number() == RunTimeError::kOverflow, "refused a number");
    }
    fuzz::tryCall("whole number", [&] { return parseWholeNumber(text).value_or(0.0); });
}

void checkNumber(double number) {
    constexpr double kGreatest = 1.797693134862315e308;  // beyond it fifteen digits round to more than a double holds
    if (!(std::abs(number) <= kGreatest)) return;
    const double read = parseWholeNumber(shortestText(number)).value_or(-number);
    fuzz::require(std::abs(read - number) <= 1e-14 * std::abs(number), "its text says another number");
    fuzz::tryCall("GFormat", [&] { return Smes::GFormat(number); });
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Bytes bytes(data, std::min(size, kLongest));
    checkNumber(fuzz::Bytes(bytes).take<double>());
    checkText(std::string(bytes.takeRest()));
    return 0;
}
