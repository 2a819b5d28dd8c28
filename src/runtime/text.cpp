#include "runtime/text.h"

#include "runtime/checked.h"

namespace velor {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

char32_t upperCase(char32_t c) {                             // beyond ASCII
    if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return c - 32;  // Latin-1, but the division sign
    if (c == 0xFF) return 0x178;                             // y with diaeresis
    const bool oddIsLower = (c >= 0x100 && c <= 0x137 && c != 0x131) || (c >= 0x14A && c <= 0x177);
    const bool evenIsLower = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
    if (oddIsLower && c % 2 == 1) return c - 1;
    if (evenIsLower && c % 2 == 0) return c - 1;
    return c;
}

}  // namespace

std::string_view trimBlanks(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string_view beforeNull(std::string_view text) { return text.substr(0, text.find('\0')); }

char32_t takeCodePoint(std::string_view& text) {
    const auto lead = static_cast<unsigned char>(text.front());
    std::size_t length = lead < 0x80 ? 1 : lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
    char32_t codePoint = length == 1 ? lead : length == 2 ? lead & 0x1FU : length == 3 ? lead & 0x0FU : lead & 0x07U;
    for (std::size_t i = 1; i < length; ++i) {
        if (i >= text.size() || !isContinuation(text[i])) {
            length = 0;
            break;
        }
        codePoint = (codePoint << 6U) | (static_cast<unsigned char>(text[i]) & 0x3FU);
    }
    const bool overlong = (length == 3 && codePoint < 0x800) || (length == 4 && codePoint < 0x10000);
    const bool illegal = codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint <= 0xDFFF);
    if (length == 0 || overlong || illegal) {
        text.remove_prefix(1);
        return kReplacement;
    }
    text.remove_prefix(length);
    return codePoint;
}

void appendCodePoint(std::string& text, char32_t codePoint) {
    const auto byte = [&](char32_t bits) { text += static_cast<char>(static_cast<unsigned char>(bits)); };
    if (codePoint < 0x80) {
        byte(codePoint);
    } else if (codePoint < 0x800) {
        byte(0xC0U | (codePoint >> 6U));
        byte(0x80U | (codePoint & 0x3FU));
    } else if (codePoint < 0x10000) {
        byte(0xE0U | (codePoint >> 12U));
        byte(0x80U | ((codePoint >> 6U) & 0x3FU));
        byte(0x80U | (codePoint & 0x3FU));
    } else {
        byte(0xF0U | (codePoint >> 18U));
        byte(0x80U | ((codePoint >> 12U) & 0x3FU));
        byte(0x80U | ((codePoint >> 6U) & 0x3FU));
        byte(0x80U | (codePoint & 0x3FU));
    }
}

bool isControl(char32_t codePoint) { return codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0); }

std::string printable(std::string_view text) {
    std::string safe;
    safe.reserve(text.size());
    while (!text.empty()) {
        const std::string_view before = text;
        const char32_t codePoint = takeCodePoint(text);
        const bool isKept = codePoint == U'\n' || codePoint == U'\t' || !isControl(codePoint);
        safe += isKept ? before.substr(0, before.size() - text.size()) : std::string_view("?");
    }
    return safe;
}

std::size_t characterCount(std::string_view text) {
    std::size_t count = 0;
    for (; !text.empty(); ++count) takeCodePoint(text);
    return count;
}

std::string upperCase(std::string_view text) {
    std::string upper;
    upper.reserve(text.size());
    while (!text.empty()) {
        if (const char c = text.front(); static_cast<unsigned char>(c) < 0x80) {
            upper += c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
            text.remove_prefix(1);
        } else {
            appendCodePoint(upper, upperCase(takeCodePoint(text)));
        }
    }
    return upper;
}

bool equalIgnoringCase(std::string_view one, std::string_view other) { return upperCase(one) == upperCase(other); }

std::vector<std::string> splitItems(std::string_view text) {
    const char separator = text.find(';') == std::string_view::npos ? ',' : ';';
    std::vector<std::string> items;
    for (;;) {
        const std::size_t end = text.find(separator);
        items.emplace_back(trimBlanks(text.substr(0, end)));
        if (end == std::string_view::npos) return items;
        text.remove_prefix(end + 1);
    }
}

std::string casText(std::string_view digits) {
    if (digits.size() < 3) checked::raise(RunTimeError::kInvalidCall);  // a negative length
    const std::size_t front = digits.size() - 3;
    std::string text(digits.substr(0, front));
    return text.append("-").append(digits, front, 2).append("-").append(1, digits.back());
}

std::string withoutSeparators(std::string_view text) {
    std::string kept(text);
    std::erase_if(kept, [](char c) { return c == '-' || c == ',' || c == ' '; });
    return kept;
}

bool matchesPattern(std::string_view text, std::string_view pattern) {
    // After a "*" the match is tried from ever later characters; only the last "*" has to be remembered.
    std::string_view retryText, retryPattern;
    bool star = false;
    while (!text.empty()) {
        if (!pattern.empty() && pattern.front() == '*') {
            pattern.remove_prefix(1);
            star = true;
            retryText = text;
            retryPattern = pattern;
            continue;
        }
        std::string_view restOfText = text;
        const char32_t character = takeCodePoint(restOfText);
        std::string_view restOfPattern = pattern;
        if (!pattern.empty() && (pattern.front() == '?' || takeCodePoint(restOfPattern) == character)) {
            if (pattern.front() == '?') restOfPattern = pattern.substr(1);
            text = restOfText;
            pattern = restOfPattern;
        } else if (star) {
            takeCodePoint(retryText);
            text = retryText;
            pattern = retryPattern;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*') == std::string_view::npos;
}

}  // namespace velor
