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

}  // namespace

// The decimal number 0.d1 d2 ... x 10^scale; no digits stand for zero.
struct NumberPattern::Decimal {
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

NumberPattern::NumberPattern(std::string_view text) {
    std::size_t at = 0;
    const auto isPlace = [&] { return at < text.size() && (text[at] == '#' || text[at] == '0'); };
    for (; isPlace(); ++at) {
        ++integerPlaces_;
        if (text[at] == '0' || leastIntegerDigits_ > 0) ++leastIntegerDigits_;
    }
    if (at < text.size() && text[at] == '.') {
        point_ = true;
        for (++at; isPlace(); ++at) {
            ++mostDecimals_;
            if (text[at] == '0') leastDecimals_ = mostDecimals_;
        }
    }
    if (at + 1 < text.size() && text[at] == 'E' && (text[at + 1] == '+' || text[at + 1] == '-')) {
        exponentPlus_ = text[at + 1] == '+';
        for (at += 2; at < text.size() && text[at] == '0'; ++at) ++exponentDigits_;
        if (exponentDigits_ == 0) checked::raise(RunTimeError::kInvalidCall);
    }
    const int places = integerPlaces_ + mostDecimals_;
    if (at != text.size() || places == 0 || places > kMostPlaces || exponentDigits_ > kMostPlaces)
        checked::raise(RunTimeError::kInvalidCall);
}

void NumberPattern::append(std::string& out, double value) const {
    const double magnitude = std::abs(checked::finite(value));
    if (exponentDigits_ > 0) {
        appendScientific(out, value);
    } else if (const std::optional<std::int64_t> units = roundedUnits(magnitude, mostDecimals_)) {
        if (value < 0.0 && *units > 0) out += '-';
        appendUnits(out, *units);
    } else {
        Decimal number(magnitude);
        number.roundTo(number.scale + mostDecimals_);
        if (value < 0.0 && number.count > 0) out += '-';
        appendFixed(out, number);
    }
}

// So many units of the last decimal.
void NumberPattern::appendUnits(std::string& out, std::int64_t units) const {
    std::array<char, 20> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), units);
    const int count = units == 0 ? 0 : static_cast<int>(end.ptr - digits.data());
    const std::size_t start = out.size();
    out.append(static_cast<std::size_t>(std::max(0, leastIntegerDigits_ + mostDecimals_ - count)), '0');
    out.append(digits.data(), static_cast<std::size_t>(count));
    if (!point_) return;
    out.insert(std::max(start, out.size() - static_cast<std::size_t>(mostDecimals_)), 1, '.');
    for (int decimals = mostDecimals_; decimals > leastDecimals_ && out.back() == '0'; --decimals) out.pop_back();
}

void NumberPattern::appendFixed(std::string& out, const Decimal& number) const {
    const int integerDigits = std::max(number.count == 0 ? 0 : number.scale, leastIntegerDigits_);
    for (int position = integerDigits - 1; position >= 0; --position) out += number.at(position);
    if (!point_) return;
    int decimals = mostDecimals_;
    while (decimals > leastDecimals_ && number.at(-decimals) == '0') --decimals;
    out += '.';
    for (int position = -1; position >= -decimals; --position) out += number.at(position);
}

void NumberPattern::appendScientific(std::string& out, double value) const {
    Decimal number(std::abs(value));
    number.roundTo(integerPlaces_ + mostDecimals_);
    const int exponent = number.count > 0 ? number.scale - integerPlaces_ : 0;
    number.scale -= exponent;
    if (value < 0.0 && number.count > 0) out += '-';
    appendFixed(out, number);
    appendExponent(out, exponent);
}

void NumberPattern::appendExponent(std::string& out, int exponent) const {
    out += 'E';
    if (exponent < 0) {
        out += '-';
    } else if (exponentPlus_) {
        out += '+';
    }
    const std::string digits = std::to_string(std::abs(exponent));
    out.append(static_cast<std::size_t>(std::max(0, exponentDigits_ - static_cast<int>(digits.size()))), '0');
    out += digits;
}

std::string Format(double value, std::string_view pattern) {
    std::string out;
    NumberPattern(pattern).append(out, value);
    return out;
}

}  // namespace velor
