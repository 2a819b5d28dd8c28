// Sorting of texts as hosts ask for it.
#include <gtest/gtest.h>

#include "support/sample_mixture.h"

namespace velor::test {
namespace {

Variant texts(const std::vector<std::string>& lines) {
    return Variant::array(1, std::vector<Variant>(lines.begin(), lines.end()));
}

TEST(QuickSort, sortsTextsByTheirFirst17Characters) {
    RecordingUserInterface boxes;
    Smes smes{boxes};
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
    Variant numbers = List({3, "2", 1.5});  // stay what they are
    smes.QuickSort(numbers, 0, 2);
    EXPECT_EQ(numbers, List({1.5, "2", 3}));
    Variant equal = texts(std::vector<std::string>(4000, "a"));  // must not recurse once an element
    smes.QuickSort(equal, 1, 4000);
    EXPECT_EQ(equal, texts(std::vector<std::string>(4000, "a")));
}

}  // namespace
}  // namespace velor::test
