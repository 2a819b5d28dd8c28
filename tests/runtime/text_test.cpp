#include "runtime/text.h"

#include <gtest/gtest.h>

#include "runtime/windows_1250.h"

namespace velor {
namespace {

TEST(Windows1250, keepsEveryByte) {
    std::string bytes;
    for (int code = 0; code < 256; ++code) bytes += static_cast<char>(code);
    const std::string text = decodeWindows1250(bytes);
    EXPECT_EQ(characterCount(text), 256U);
    EXPECT_EQ(encodeWindows1250(text), bytes);
}

TEST(Windows1250, holdsCzechAndRefusesTheRest) {
    EXPECT_EQ(encodeWindows1250("Žluťoučký kůň"), "\x8Elu\x9Dou\xE8k\xFD k\xF9\xF2");
    EXPECT_EQ(decodeWindows1250("l\xE1tka \x80"), "látka €");
    for (const char* text : {"α", "…\xFF", "\xC3", "\xED\xA0\x80", "\xF0\x9F\x98\x80", "\xC0\x80"})
        EXPECT_FALSE(encodeWindows1250(text)) << text;
    EXPECT_EQ(encodeWindows1250OrQuestionMarks("α-pinen\xFF"), "?-pinen?");
}

TEST(Text, matchesPatterns) {
    // clang-format off
    const std::tuple<const char*, const char*, bool> cases[] = {
        {"VELOR.DRC", "*", true}, {"", "*", true}, {"", "", true}, {"a", "", false}, {"VELOR.DRC", "*.DRC", true},
        {"VELOR.DR", "*.DRC", false}, {"aXbXc", "a*X?", true}, {"aab", "*ab", true}, {"abcabd", "a*abd", true},
        {"ř", "?", true}, {"řř", "?", false}, {"a*b", "a*b", true}, {"mississippi", "*is*ip*", true},
        {"ab", "a?c", false}, {"abc", "abc*?", false}, {"abcd", "*?d", true},
    };
    // clang-format on
    for (const auto& [text, pattern, matches] : cases)
        EXPECT_EQ(matchesPattern(text, pattern), matches) << text << ' ' << pattern;
    // Many stars over a long text must not take exponential time.
    EXPECT_FALSE(matchesPattern(std::string(2000, 'a'), "*a*a*a*a*a*a*a*a*a*a*b"));
}

}  // namespace
}  // namespace velor
