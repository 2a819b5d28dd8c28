#include "runtime/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>
#include <utility>

#include "runtime/checked.h"
#include "runtime/text.h"

namespace velor {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t skipDigits(std::string_view text, std::size_t from) {
    while (from < text.size() && isDigit(text[from])) ++from;
    return from;
}

// Length of the number that text begins with, 0 when it begins with none.
std::size_t numberLength(std::string_view text) {
    const std::size_t sign = !text.empty() && (text[0] == '+' || text[0] == '-') ? 1 : 0;
    std::size_t end = skipDigits(text, sign);
    std::size_t digits = end - sign;
    if (end < text.size() && text[end] == '.') {
        const std::size_t fractionEnd = skipDigits(text, end + 1);
        digits += fractionEnd - end - 1;
        end = fractionEnd;
    }
    if (digits == 0) return 0;
    if (end < text.size() && (text[end] == 'e' || text[end] == 'E')) {
        std::size_t exponent = end + 1;
        if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
        const std::size_t exponentEnd = skipDigits(text, exponent);
        if (exponentEnd > exponent) end = exponentEnd;
    }
    return end;
}

// Whether an unsigned number's magnitude is below one, however long it is written.
bool isBelowOne(std::string_view number) {
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    const std::string_view mantissa = number.substr(0, mark);
    const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
    const auto firstDigit = static_cast<std::int64_t>(mantissa.find_first_of("123456789"));
    const std::int64_t order = firstDigit < point ? point - firstDigit : point - firstDigit + 1;
    const bool negative = mark + 1 < number.size() && number[mark + 1] == '-';
    std::int64_t exponent = 0;
    for (const char c : number.substr(mark))
        if (isDigit(c)) exponent = std::min<std::int64_t>(exponent * 10 + (c - '0'), 1'000'000'000);
    return order + (negative ? -exponent : exponent) <= 0;
}

double valueOf(std::string_view number) {
    const bool negative = number.front() == '-';
    if (negative || number.front() == '+') number.remove_prefix(1);
    double value = 0.0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error == std::errc::result_out_of_range) {
        if (!isBelowOne(number)) checked::raise(RunTimeError::kOverflow);
        value = 0.0;  // too small for double precision
    }
    return negative ? -value : value;
}

template <class... Form>
std::string digits(auto value, Form... form) {
    char buffer[40];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, form...);
    return {buffer, end.ptr};
}

}  // namespace

std::int16_t roundToInt16(double value) {
    const double rounded = std::nearbyint(checked::finite(value));
    if (rounded < std::numeric_limits<std::int16_t>::min() || rounded > std::numeric_limits<std::int16_t>::max())
        checked::raise(RunTimeError::kOverflow);
    return static_cast<std::int16_t>(rounded);
}

double parseLeadingNumber(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const std::size_t length = numberLength(text);
    return length == 0 ? 0.0 : valueOf(text.substr(0, length));
}

std::optional<double> parseWholeNumber(std::string_view text) {
    std::string number(trimBlanks(text));
    if (const std::size_t comma = number.find(','); comma != std::string::npos) number[comma] = '.';
    const std::size_t length = numberLength(number);
    if (length == 0 || length != number.size()) return std::nullopt;
    return valueOf(number);
}

std::string Str(std::int32_t n) { return (n < 0 ? "" : " ") + std::to_string(n); }

std::string exactText(double value) { return digits(value); }
std::string exactText(float value) { return digits(value); }

std::string roundedText(double value) { return digits(value, std::chars_format::general, 6); }

std::string shortestText(double value) {
    std::string text = digits(checked::finite(value), std::chars_format::general, 15);
    for (char& c : text)
        if (c == 'e') c = 'E';
    return text;
}

}  // namespace velor
