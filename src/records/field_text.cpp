#include "records/field_text.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cmath>
#include <optional>
#include <system_error>

#include "runtime/text.h"
#include "runtime/windows_1250.h"

namespace velor {

namespace {

constexpr char kBitsMark = '#';
constexpr char kEscape = '\\';
constexpr std::size_t kSingleDigits = 8;  // hexadecimal
constexpr std::size_t kByteDigits = 2;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::optional<std::uint32_t> hexadecimal(std::string_view digits) {
    std::uint32_t value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
    if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
    return value;
}

std::string hexadecimalText(std::uint32_t value, std::size_t digits) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    std::string text(digits, '0');
    for (auto digit = text.rbegin(); digit != text.rend(); ++digit, value >>= 4U) *digit = kDigits[value & 0xFU];
    return text;
}

Parsed<float> readBits(std::string_view digits) {
    const std::optional<std::uint32_t> bits =
        digits.size() == kSingleDigits ? hexadecimal(digits) : std::optional<std::uint32_t>();
    if (!bits || std::isfinite(std::bit_cast<float>(*bits)))
        return Fault{"za # má být osm šestnáctkových číslic hodnoty, která není konečné číslo"};
    return std::bit_cast<float>(*bits);
}

bool isZeroOnPaper(std::string_view number) {
    return number.substr(0, number.find_first_of("eE")).find_first_of("123456789") == std::string_view::npos;
}

template <typename Integer>
Parsed<Integer> readWholeNumber(std::string_view text) {
    Integer number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc::invalid_argument || end != text.data() + text.size())
        return Fault{quoted(text) + " není celé číslo"};
    if (error == std::errc::result_out_of_range)
        return Fault{quoted(text) + " se nevejde do " + std::to_string(8 * sizeof(Integer)) + " bitů"};
    return number;
}

// Takes one character or escape off the text; empty where it stands for no byte.
std::optional<char> takeByte(std::string_view& text) {
    const std::string_view before = text;
    const char32_t codePoint = takeCodePoint(text);
    if (codePoint != static_cast<char32_t>(kEscape)) {
        const auto byte = encodeWindows1250(before.substr(0, before.size() - text.size()));
        return byte ? std::optional<char>(byte->front()) : std::nullopt;
    }
    if (text.starts_with(kEscape)) {
        text.remove_prefix(1);
        return kEscape;
    }
    if (!text.starts_with('x') || text.size() < 1 + kByteDigits) return std::nullopt;
    const auto byte = hexadecimal(text.substr(1, kByteDigits));
    text.remove_prefix(1 + kByteDigits);
    if (!byte) return std::nullopt;
    return static_cast<char>(static_cast<unsigned char>(*byte));
}

}  // namespace

Parsed<float> readSingle(std::string_view text) {
    if (text.starts_with(kBitsMark)) return readBits(text.substr(1));
    float number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc::invalid_argument || end != text.data() + text.size()) {
        const bool hasComma = text.find(',') != std::string_view::npos;
        return Fault{quoted(text) + (hasComma ? " není číslo (desetinná místa odděluje tečka)" : " není číslo")};
    }
    if (error == std::errc::result_out_of_range || (number == 0 && !isZeroOnPaper(text)))
        return Fault{quoted(text) + " se nevejde do jednoduché přesnosti"};
    if (!std::isfinite(number)) return Fault{quoted(text) + " není konečné číslo"};
    return number;
}

std::string singleText(const float& value) {
    if (!std::isfinite(value)) return kBitsMark + hexadecimalText(std::bit_cast<std::uint32_t>(value), kSingleDigits);
    char buffer[32];
    return {buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr};
}

Parsed<std::int16_t> readInteger(std::string_view text) { return readWholeNumber<std::int16_t>(text); }

bool hasCasForm(std::string_view text) {
    constexpr std::size_t kTail = 5;  // "-18-5"
    if (text.size() < 2 + kTail || text.size() > 7 + kTail || text.front() == '0') return false;
    const std::size_t hyphen = text.size() - kTail;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool fits = i == hyphen || i == hyphen + 3 ? text[i] == '-' : isDigit(text[i]);
        if (!fits) return false;
    }
    return true;
}

bool hasCasCheckDigit(std::string_view cas) {
    int sum = 0;
    int weight = 0;
    for (auto c = cas.rbegin(); c != cas.rend(); ++c)
        if (isDigit(*c)) sum += weight++ * (*c - '0');
    return sum % 10 == cas.back() - '0';
}

Parsed<std::int32_t> readCas(std::string_view text) {
    std::string digits(text);
    if (hasCasForm(text)) {
        std::erase(digits, '-');
        return readWholeNumber<std::int32_t>(digits);
    }
    Parsed<std::int32_t> number = readWholeNumber<std::int32_t>(digits);
    if (std::holds_alternative<Fault>(number)) return Fault{quoted(text) + " nemá tvar 7732-18-5"};
    return number;
}

std::string registryText(std::int32_t value) {
    constexpr std::int32_t kLeast = 10000;  // five digits, as in 50-00-0
    const std::string digits = std::to_string(value);
    return value >= kLeast ? casText(digits) : digits;
}

Parsed<std::string> readBytes(std::string_view text, std::size_t width) {
    std::string encoded;
    while (!text.empty()) {
        const std::string_view before = text;
        const std::optional<char> byte = takeByte(text);
        if (!byte && before.starts_with(kEscape))
            return Fault{quoted(before) + ": zpětné lomítko se píše \\\\ a bajt \\xNN"};
        if (!byte) {
            const std::string character = quoted(before.substr(0, before.size() - text.size()));
            return Fault{"znak " + character + " není v kódování Windows-1250"};
        }
        encoded += *byte;
    }
    if (encoded.size() > width) {
        return Fault{"text má " + std::to_string(encoded.size()) + " znaků, vejde se jich " + std::to_string(width)};
    }
    encoded.resize(width, ' ');
    return encoded;
}

bool isControlByte(char byte) {
    const std::string text = decodeWindows1250({&byte, 1});
    std::string_view rest = text;
    return isControl(takeCodePoint(rest));
}

std::string bytesText(std::string_view bytes) {
    std::string text;
    for (const char byte : bytes.substr(0, bytes.find_last_not_of(' ') + 1)) {
        if (byte == kEscape) {
            text += "\\\\";
        } else if (isControlByte(byte)) {
            text += "\\x" + hexadecimalText(static_cast<unsigned char>(byte), kByteDigits);
        } else {
            text += decodeWindows1250({&byte, 1});
        }
    }
    return text;
}

std::string quoted(std::string_view cell) {
    constexpr std::size_t kLongest = 40;
    std::string text = "„";
    for (std::size_t count = 0; !cell.empty(); ++count) {
        if (count == kLongest) {
            text += "…";
            break;
        }
        const char32_t codePoint = takeCodePoint(cell);
        appendCodePoint(text, isControl(codePoint) ? U'?' : codePoint);
    }
    return text + "“";
}

}  // namespace velor
