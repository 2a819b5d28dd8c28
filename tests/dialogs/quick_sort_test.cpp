#include "dialogs/quick_sort.h"

#include <set>

#include "support/sample_mixture.h"

namespace velor::test {
namespace {

struct QuickSort : ::testing::Test {
    RecordingUserInterface boxes;
    Smes smes{boxes};
};

// The sequence that every program on the classic runtime sees when it does not seed the generator.
TEST_F(QuickSort, hasTheClassicGenerator) {
    std::uint32_t state = 0x50000;
    for (const double expected : {0.7055475, 0.5334240, 0.5795186, 0.2895625, 0.3019480, 0.7747401, 0.01401764})
        EXPECT_NEAR(nextRandom(state), expected, 1e-7);
    for (const int expected : {5, 4, 4, 2, 2, 5, 1, 5, 5, 5}) EXPECT_EQ(smes.RandInt(1, 6), expected);
    std::set<int> drawn;
    for (int i = 0; i < 1000; ++i) drawn.insert(smes.RandInt(-3, 3));
    EXPECT_EQ(drawn, (std::set{-3, -2, -1, 0, 1, 2, 3}));
    EXPECT_EQ(errorNumber([&] { smes.RandInt(0, 32768); }), 6);
}

struct Counted {
    int value;
    int* comparisons;
    auto operator<=>(const Counted& other) const {
        ++*comparisons;
        return value <=> other.value;
    }
};

TEST_F(QuickSort, takesNLogNComparisons) {
    for (const int step : {1, 899, 467}) {  // sorted, reversed, shuffled
        int comparisons = 0;
        std::vector<Counted> elements;
        for (int i = 0; i < 900; ++i) elements.push_back({(i + 1) * step % 900, &comparisons});
        std::uint32_t state = 0x50000;
        quickSort(state, std::span(elements));
        EXPECT_LT(comparisons, 2.5 * 900 * 9.81);  // log2 900 = 9.81; 1.4 n log2 n is the mean
        for (int i = 0; i < 900; ++i) EXPECT_EQ(elements[static_cast<std::size_t>(i)].value, i);
    }
}

Variant texts(const std::vector<std::string>& lines) {
    return Variant::array(1, std::vector<Variant>(lines.begin(), lines.end()));
}

TEST_F(QuickSort, sortsTextsByTheirFirst17Characters) {
    const std::string same = "ěščřžýáíéůúťďňóĚŠ";  // 17 characters of two bytes
    const std::string shorter = "ěščřžýáíéůúťďňóĚ";
    const std::tuple<std::vector<std::string>, std::vector<std::string>, int, int> cases[] = {
        {{"d", "c", "b", "a"}, {"d", "b", "c", "a"}, 2, 3},
        {{"b", "a"}, {"b", "a"}, 2, 1},
        {{"e", "", "ž", "Z", "é", "E"}, {"", "E", "Z", "e", "é", "ž"}, 1, 6},  // by code, not by the alphabet
        {{same + "2", same + "1", shorter + "A3", shorter}, {shorter, shorter + "A3", same + "2", same + "1"}, 1, 4},
    };
    for (const auto& [lines, expected, first, last] : cases) {
        Variant sorted = texts(lines);
        smes.QuickSort(sorted, first, last);
        EXPECT_EQ(sorted, texts(expected));
    }
    Variant equal = texts(std::vector<std::string>(4000, "a"));  // must not recurse once an element
    smes.QuickSort(equal, 1, 4000);
    EXPECT_EQ(equal, texts(std::vector<std::string>(4000, "a")));
}

}  // namespace
}  // namespace velor::test
