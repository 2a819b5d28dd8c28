#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>

#include "runtime/checked.h"
#include "runtime/numbers.h"

namespace velor {

namespace {

constexpr int kSignificantDigits = 15;
constexpr int kMostPlaces = 100;  // more digits than any pattern of use asks for

struct Pattern {
    int integerPlaces = 0;       // "#" and "0" before the point
    int leastIntegerDigits = 0;  // "0" before the point
    bool point = false;
    int mostDecimals = 0;    // "#" and "0" behind the point
    int leastDecimals = 0;   // "0" behind the point
    int exponentDigits = 0;  // 0: no exponent
    bool exponentPlus = false;
};

Pattern parsePattern(std::string_view text) {
    Pattern pattern;
    std::size_t at = 0;
    const auto isPlace = [&] { return at < text.size() && (text[at] == '#' || text[at] == '0'); };
    for (; isPlace(); ++at) {
        ++pattern.integerPlaces;
        if (text[at] == '0' || pattern.leastIntegerDigits > 0) ++pattern.leastIntegerDigits;
    }
    if (at < text.size() && text[at] == '.') {
        pattern.point = true;
        for (++at; isPlace(); ++at) {
            ++pattern.mostDecimals;
            if (text[at] == '0') pattern.leastDecimals = pattern.mostDecimals;
        }
    }
    if (at + 1 < text.size() && text[at] == 'E' && (text[at + 1] == '+' || text[at + 1] == '-')) {
        pattern.exponentPlus = text[at + 1] == '+';
        for (at += 2; at < text.size() && text[at] == '0'; ++at) ++pattern.exponentDigits;
        if (pattern.exponentDigits == 0) checked::raise(RunTimeError::kInvalidCall);
    }
    const int places = pattern.integerPlaces + pattern.mostDecimals;
    if (at != text.size() || places == 0 || places > kMostPlaces || pattern.exponentDigits > kMostPlaces)
        checked::raise(RunTimeError::kInvalidCall);
    return pattern;
}

// The decimal number 0.d1 d2 ... x 10^scale; no digits stand for zero.
struct Decimal {
    std::array<char, kSignificantDigits> digits{};
    int count = 0;
    int scale = 0;

    explicit Decimal(double magnitude) {
        if (magnitude == 0.0) return;
        char text[32];  // "d.dddddddddddddde+XXX"
        const auto end =
            std::to_chars(text, text + sizeof text, magnitude, std::chars_format::scientific, kSignificantDigits - 1);
        digits[0] = text[0];
        std::copy(text + 2, text + 1 + kSignificantDigits, digits.begin() + 1);
        count = kSignificantDigits;
        const char* exponent = text + 2 + kSignificantDigits;  // behind the "e"
        std::from_chars(*exponent == '+' ? exponent + 1 : exponent, end.ptr, scale);
        ++scale;
    }

    // So many units of the last of some decimals.
    Decimal(std::int64_t units, int decimals) {
        if (units == 0) return;
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), units);
        count = static_cast<int>(end.ptr - digits.data());
        scale = count - decimals;
    }

    // Keeps the given number of leading digits, halves away from zero.
    void roundTo(int kept) {
        if (kept >= count) return;
        const bool up = kept >= 0 && digits[static_cast<std::size_t>(kept)] >= '5';
        count = std::max(kept, 0);
        if (!up) return;
        int at = count;
        while (at > 0 && digits[static_cast<std::size_t>(at) - 1] == '9') --at;
        count = at;
        if (at > 0) {
            ++digits[static_cast<std::size_t>(at) - 1];
        } else {
            digits[0] = '1';
            count = 1;
            ++scale;
        }
    }

    // The digit that weighs 10^position.
    char at(int position) const {
        const int index = scale - 1 - position;
        return index >= 0 && index < count ? digits[static_cast<std::size_t>(index)] : '0';
    }
};

// The magnitude rounded to a few decimals, in units of the last one, by plain arithmetic: empty where it lies so near a
// half that the 15 significant digits decide. Nearly every number of a report goes this way, at a third of the time.
std::optional<std::int64_t> roundedUnits(double magnitude, int decimals) {
    constexpr std::array<double, 7> kUnits{1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6};
    constexpr double kMostUnits = 1e12;
    constexpr double kDoubt = 0.02;  // rounding to 15 digits moves the most units by less
    if (decimals >= static_cast<int>(kUnits.size())) return std::nullopt;
    const double units = magnitude * kUnits[static_cast<std::size_t>(decimals)];
    if (!(units < kMostUnits)) return std::nullopt;
    const auto whole = static_cast<std::int64_t>(units);
    const double aboveHalf = units - static_cast<double>(whole) - 0.5;
    if (std::abs(aboveHalf) < kDoubt) return std::nullopt;
    return aboveHalf > 0.0 ? whole + 1 : whole;
}

Decimal fixedNumber(double magnitude, int decimals) {
    if (const std::optional<std::int64_t> units = roundedUnits(magnitude, decimals)) return Decimal(*units, decimals);
    Decimal number(magnitude);
    number.roundTo(number.scale + decimals);
    return number;
}

void appendFixed(std::string& out, const Decimal& number, const Pattern& pattern) {
    const int integerDigits = std::max(number.count == 0 ? 0 : number.scale, pattern.leastIntegerDigits);
    for (int position = integerDigits - 1; position >= 0; --position) out += number.at(position);
    if (!pattern.point) return;
    int decimals = pattern.mostDecimals;
    while (decimals > pattern.leastDecimals && number.at(-decimals) == '0') --decimals;
    out += '.';
    for (int position = -1; position >= -decimals; --position) out += number.at(position);
}

void appendExponent(std::string& out, int exponent, const Pattern& pattern) {
    out += 'E';
    if (exponent < 0) {
        out += '-';
    } else if (pattern.exponentPlus) {
        out += '+';
    }
    const std::string digits = std::to_string(std::abs(exponent));
    out.append(static_cast<std::size_t>(std::max(0, pattern.exponentDigits - static_cast<int>(digits.size()))), '0');
    out += digits;
}

}  // namespace

std::string Format(double value, std::string_view patternText) {
    const Pattern pattern = parsePattern(patternText);
    checked::finite(value);
    std::string out;
    if (pattern.exponentDigits == 0) {
        const Decimal number = fixedNumber(std::abs(value), pattern.mostDecimals);
        if (value < 0.0 && number.count > 0) out += '-';
        appendFixed(out, number, pattern);
        return out;
    }
    Decimal number(std::abs(value));
    number.roundTo(pattern.integerPlaces + pattern.mostDecimals);
    const int exponent = number.count > 0 ? number.scale - pattern.integerPlaces : 0;
    number.scale -= exponent;
    if (value < 0.0 && number.count > 0) out += '-';
    appendFixed(out, number, pattern);
    appendExponent(out, exponent, pattern);
    return out;
}

}  // namespace velor
