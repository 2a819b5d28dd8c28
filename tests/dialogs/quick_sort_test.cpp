#include "dialogs/quick_sort.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <set>
#include <vector>

#include "support/sample_mixture.h"

namespace velor {
namespace {

using test::errorNumber;

// The sequence that every program on the classic runtime sees when it does not seed the generator.
TEST(Random, isTheClassicGenerator) {
    std::uint32_t state = 0x50000;
    for (const double expected : {0.7055475, 0.5334240, 0.5795186, 0.2895625, 0.3019480, 0.7747401, 0.01401764,
                                  0.7607236, 0.8144900, 0.7090379})
        EXPECT_NEAR(nextRandom(state), expected, 1e-7);
}

TEST(Random, randIntStaysBetweenItsBounds) {
    RecordingUserInterface boxes;
    Smes smes(boxes);
    std::vector<int> dice;
    for (int i = 0; i < 10; ++i) dice.push_back(smes.RandInt(1, 6));
    EXPECT_EQ(dice, (std::vector{5, 4, 4, 2, 2, 5, 1, 5, 5, 5}));
    std::set<int> drawn;
    for (int i = 0; i < 1000; ++i) drawn.insert(smes.RandInt(-3, 3));
    EXPECT_EQ(drawn, (std::set{-3, -2, -1, 0, 1, 2, 3}));
    EXPECT_EQ(smes.RandInt(7, 7), 7);
    EXPECT_NO_THROW(smes.RandInt(-32768, 32767));
    EXPECT_EQ(errorNumber([&] { smes.RandInt(0, 32768); }), 6);
    EXPECT_EQ(errorNumber([&] { smes.RandInt(-32769, 0); }), 6);
}

struct Counted {
    int value;
    int* comparisons;

    auto operator<=>(const Counted& other) const {
        ++*comparisons;
        return value <=> other.value;
    }
};

TEST(QuickSort, takesNLogNComparisons) {
    constexpr int kCount = 900;
    std::vector<int> sorted(kCount);
    std::iota(sorted.begin(), sorted.end(), 0);
    const std::vector<int> reversed(sorted.rbegin(), sorted.rend());
    std::vector<int> shuffled;
    for (int i = 0; i < kCount; ++i) shuffled.push_back(i * 467 % kCount);
    for (const std::vector<int>& values : {sorted, reversed, shuffled}) {
        int comparisons = 0;
        std::vector<Counted> elements;
        for (const int value : values) elements.push_back({value, &comparisons});
        std::uint32_t state = 0x50000;
        quickSort(state, std::span(elements));
        EXPECT_LT(comparisons, 2.5 * kCount * 9.81);  // log2 900 = 9.81; 1.4 n log2 n is the mean
        for (int i = 0; i < kCount; ++i) EXPECT_EQ(elements[static_cast<std::size_t>(i)].value, i);
    }
}

Variant texts(const std::vector<std::string>& lines) {
    std::vector<Variant> elements(lines.begin(), lines.end());
    return Variant::array(1, elements);
}

TEST(QuickSort, sortsTextsByTheirFirst17Characters) {
    struct Case {
        std::vector<std::string> lines, expected;
        int first, last;
    };
    const std::string same = "ěščřžýáíéůúťďňóĚŠ";  // 17 characters of two bytes
    const std::string shorter = "ěščřžýáíéůúťďňóĚ";
    const Case cases[] = {
        {{"b", "a"}, {"a", "b"}, 1, 2},
        {{"a", "b"}, {"a", "b"}, 1, 2},
        {{"d", "c", "b", "a"}, {"d", "b", "c", "a"}, 2, 3},
        {{"b", "a"}, {"b", "a"}, 2, 1},
        {{"b", "a"}, {"b", "a"}, 2, 2},
        {{"e", "", "ž", "Z", "é", "E"}, {"", "E", "Z", "e", "é", "ž"}, 1, 6},  // by code, not by the alphabet
        {{same + "2", same + "1", shorter + "A3", shorter}, {shorter, shorter + "A3", same + "2", same + "1"}, 1, 4},
    };
    RecordingUserInterface boxes;
    Smes smes(boxes);
    for (const Case& c : cases) {
        Variant lines = texts(c.lines);
        smes.QuickSort(lines, c.first, c.last);
        EXPECT_EQ(lines, texts(c.expected));
    }
}

TEST(QuickSort, copesWithEqualKeys) {
    RecordingUserInterface boxes;
    Smes smes(boxes);
    for (const int kinds : {1, 2, 3}) {
        std::vector<std::string> lines;
        for (int i = 0; i < 4000; ++i) lines.push_back(std::string(17, static_cast<char>('a' + i % kinds)));
        Variant sorted = texts(lines);
        smes.QuickSort(sorted, 1, 4000);
        std::sort(lines.begin(), lines.end());
        EXPECT_EQ(sorted, texts(lines));
    }
}

TEST(QuickSort, raisesTheClassicErrors) {
    RecordingUserInterface boxes;
    Smes smes(boxes);
    Variant lines = texts({"b", "a"}), number = 5;
    const std::pair<int, std::function<void()>> cases[] = {
        {9, [&] { smes.QuickSort(lines, 0, 2); }},     {9, [&] { smes.QuickSort(lines, 1, 3); }},
        {6, [&] { smes.QuickSort(lines, 1, 32768); }}, {6, [&] { smes.QuickSort(lines, -32769, 0); }},
        {13, [&] { smes.QuickSort(number, 1, 2); }},   {0, [&] { smes.QuickSort(number, 2, 1); }},
        {9, [&] { Smes::SWAP(lines, 0, 1); }},         {9, [&] { Smes::SWAP(lines, 1, 3); }},
        {13, [&] { Smes::SWAP(number, 1, 1); }},
    };
    for (const auto& [expected, body] : cases) EXPECT_EQ(errorNumber(body), expected);
    EXPECT_EQ(lines, texts({"b", "a"}));
    Smes::SWAP(lines, 1, 2);
    Smes::SWAP(lines, 2, 2);
    EXPECT_EQ(lines, texts({"a", "b"}));
}

}  // namespace
}  // namespace velor
