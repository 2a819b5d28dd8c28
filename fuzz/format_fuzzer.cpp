// Format against a second rounding of the same fifteen decimal digits, done with whole numbers.
#include <cstdio>
#include <regex>

#include "runtime/numbers.h"
#include "target.h"

namespace {

using namespace velor;

// digits x 10^exponent
struct WholeDecimal {
    std::uint64_t digits = 0;
    int exponent = 0;
};

WholeDecimal fifteenDigits(double magnitude) {
    char text[40];
    std::snprintf(text, sizeof text, "%.14e", magnitude);
    std::string digits(1, text[0]);
    digits.append(text + 2, 14);
    return {std::stoull(digits), std::stoi(text + 17) - 14};
}

// The nearest multiple of 10^exponent, halves upwards.
WholeDecimal roundedTo(WholeDecimal number, int exponent) {
    if (exponent <= number.exponent) return number;
    const int dropped = exponent - number.exponent;
    if (dropped > 16) return {0, exponent};
    std::uint64_t unit = 1;
    for (int i = 0; i < dropped; ++i) unit *= 10;
    return {(number.digits + unit / 2) / unit, exponent};
}

// The digit that weighs 10^position.
char digitAt(WholeDecimal number, int position) {
    int index = position - number.exponent;
    if (index < 0 || index > 19) return '0';
    for (; index > 0; --index) number.digits /= 10;
    return static_cast<char>('0' + number.digits % 10);
}

int integerDigits(WholeDecimal number) {
    int count = number.digits == 0 ? 0 : number.exponent;
    for (; number.digits > 0; number.digits /= 10) ++count;
    return count;
}

struct Fields {
    std::string integer, point, decimals, sign, exponent;

    int places() const { return static_cast<int>(integer.size() + decimals.size()); }
};

std::string fixed(WholeDecimal number, const Fields& fields) {
    std::string text;
    const int zeros =
        static_cast<int>(fields.integer.size() - std::min(fields.integer.find('0'), fields.integer.size()));
    for (int i = std::max(integerDigits(number), zeros) - 1; i >= 0; --i) text += digitAt(number, i);
    std::string decimals;
    for (int i = 1; i <= static_cast<int>(fields.decimals.size()); ++i) decimals += digitAt(number, -i);
    const std::size_t least = fields.decimals.rfind('0') + 1;  // 0 where there is none
    while (decimals.size() > least && decimals.back() == '0') decimals.pop_back();
    return text + fields.point + decimals;
}

std::string expected(double value, const Fields& fields) {
    WholeDecimal number = fifteenDigits(std::abs(value));
    std::string tail;
    if (fields.exponent.empty()) {
        number = roundedTo(number, -static_cast<int>(fields.decimals.size()));
    } else {
        number = roundedTo(number, integerDigits(number) - fields.places());
        const int shift = number.digits == 0 ? 0 : integerDigits(number) - static_cast<int>(fields.integer.size());
        number.exponent -= shift;
        char text[128];
        std::snprintf(text, sizeof text, "%0*d", static_cast<int>(fields.exponent.size()), std::abs(shift));
        tail = std::string("E") + (shift < 0 ? "-" : fields.sign == "+" ? "+" : "") + text;
    }
    return (value < 0 && number.digits > 0 ? "-" : "") + fixed(number, fields) + tail;
}

std::optional<Fields> fieldsOf(const std::string& pattern) {
    static const std::regex form(R"(([#0]*)([.]?)([#0]*)(E([+-])(0+))?)");
    std::smatch match;
    if (!std::regex_match(pattern, match, form)) return std::nullopt;
    const Fields fields{match[1], match[2], match[3], match[5], match[6]};
    if (fields.places() == 0 || fields.places() > 100 || fields.exponent.size() > 100) return std::nullopt;
    return fields;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Bytes bytes(data, std::min<std::size_t>(size, 300));
    const auto value = bytes.take<double>();
    const std::string pattern(bytes.takeRest());
    const auto fields = fieldsOf(pattern);
    try {
        const std::string text = Format(value, pattern);
        fuzz::require(fields && std::isfinite(value), "formatted what it should refuse");
        fuzz::require(text == expected(value, *fields), text + " instead of " + expected(value, *fields));
    } catch (const RunTimeError& error) {
        const int number = fields ? RunTimeError::kOverflow : RunTimeError::kInvalidCall;
        fuzz::require(!(fields && std::isfinite(value)) && error.number() == number, "wrong refusal");
    }
    return 0;
}
