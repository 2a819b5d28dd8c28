// Quick sort with random pivots, and the classic generator that chooses them.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

namespace velor {

// A uniform number of the classic generator in [0, 1); the state is the object's own and is never seeded.
inline double nextRandom(std::uint32_t& randomState) {
    constexpr std::uint32_t kModulus = 1U << 24U;
    randomState = (randomState * 1140671485U + 12820163U) % kModulus;
    return static_cast<double>(randomState) / kModulus;
}

// A whole number from lower to upper, both included.
inline int randomBetween(std::uint32_t& randomState, int lower, int upper) {
    return static_cast<int>(std::floor((upper - lower + 1) * nextRandom(randomState))) + lower;
}

// Sorts ascending, in n log n comparisons as long as the elements differ; many equal ones take quadratic time. Only the
// smaller part is recursed into, so the depth stays below log2 n whatever the pivots.
template <class Element>
void quickSort(std::uint32_t& randomState, std::span<Element> elements) {
    while (elements.size() > 2) {
        const std::size_t last = elements.size() - 1;
        const int chosen = randomBetween(randomState, 0, static_cast<int>(last));
        std::swap(elements[last], elements[static_cast<std::size_t>(chosen)]);
        const Element pivot = elements[last];
        std::size_t i = 0, j = last;
        for (;;) {
            while (i < j && elements[i] <= pivot) ++i;
            while (j > i && elements[j] >= pivot) --j;
            if (i == j) break;
            std::swap(elements[i], elements[j]);
        }
        std::swap(elements[i], elements[last]);
        std::span<Element> smaller = elements.first(i), larger = elements.subspan(i + 1);
        if (smaller.size() >= larger.size()) std::swap(smaller, larger);
        quickSort(randomState, smaller);
        elements = larger;
    }
    if (elements.size() == 2 && elements[0] > elements[1]) std::swap(elements[0], elements[1]);
}

}  // namespace velor
