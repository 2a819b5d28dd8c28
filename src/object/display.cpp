// Numbers typed by the user and shown to the user.
#include <algorithm>
#include <cmath>
#include <string>

#include "runtime/numbers.h"
#include "velor/constants.h"
#include "velor/smes.h"

namespace velor {

namespace {

constexpr int kFieldWidth = 12;

const char* displayPattern(double magnitude) {
    if (magnitude < 1E-6) return "0.0000";
    if (magnitude < 1E-4) return "0.0000E+00";
    if (magnitude < 0.0099) return "0.000000";
    if (magnitude < 1) return "0.0000";
    if (magnitude < 60) return "#0.000";
    if (magnitude < 100) return "#0.00";
    if (magnitude < 1000) return "#0.0";
    if (magnitude < 999999) return "#0";
    return "0.0000E+00";
}

// Both halves of an odd padding are rounded to even, so the field comes out 11 or 13 wide, on purpose.
std::string centred(const std::string& text) {
    const double padding = kFieldWidth - static_cast<double>(text.size());
    const auto blanks = [](double count) {
        return std::string(static_cast<std::size_t>(std::max<int>(0, roundToInt16(count))), ' ');
    };
    return blanks(padding / 2) + text + blanks(padding - padding / 2);
}

}  // namespace

std::string Smes::GFormat(const Variant& x) {
    const double number = x.toDouble();
    if (std::abs(number - kNoConstant) < 1E-5) return centred(" neobsazeno ");
    return centred(Format(number, displayPattern(std::abs(number))));
}

Variant Smes::Hodnota(const std::string& text) {
    std::string number = text;
    std::replace(number.begin(), number.end(), ',', '.');
    return parseLeadingNumber(number);
}

}  // namespace velor
