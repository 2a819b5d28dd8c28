#include <algorithm>
#include <numeric>
#include <vector>

#include "velor/text.h"

namespace velor {

namespace {

// Letters of central Europe and, below each, what is left of it.
constexpr std::u32string_view kAccented = U"ÁÀÂÃÄÅĂĄČĆÇĎĐÉÈĚËĘÍÌÎÏĹĽŁŇŃÓÒÔŐÖŘŔŠŚŞŤŢÚÙŮŰÜÝŸŽŹŻ";
constexpr std::u32string_view kPlain = U"AAAAAAAACCCDDEEEEEIIIILLLNNOOOOORRSSSTTUUUUUYYZZZ";
static_assert(kAccented.size() == kPlain.size());

constexpr bool isCombiningMark(char32_t c) { return c >= 0x300 && c <= 0x36F; }

char32_t withoutAccent(char32_t upper) {
    const std::size_t position = kAccented.find(upper);
    return position == std::u32string_view::npos ? upper : kPlain[position];
}

bool isBlank(char32_t c) { return c == U' ' || c == U'\t' || c == 0xA0; }

}  // namespace

std::string folded(std::string_view text) {
    const std::string upper = upperCase(text);
    std::string result;
    bool blankIsDue = false;
    for (std::string_view rest = upper; !rest.empty();) {
        const char32_t c = takeCodePoint(rest);
        if (isCombiningMark(c)) continue;
        if (isBlank(c)) {
            blankIsDue = !result.empty();
            continue;
        }
        if (blankIsDue) result += ' ';
        blankIsDue = false;
        appendCodePoint(result, withoutAccent(c));
    }
    return result;
}

std::size_t editDistance(std::string_view one, std::string_view other) {
    std::vector<std::size_t> row(other.size() + 1);  // distances of the prefix of one to every prefix of other
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < one.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < other.size(); ++j) {
            const std::size_t replaced = diagonal + (one[i] == other[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

}  // namespace velor
