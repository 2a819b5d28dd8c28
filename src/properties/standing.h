// A computed property, and how it stands to the correlations that it comes from.
#pragma once

#include <cstddef>
#include <string_view>

namespace velor {

// How a value stands to the correlations it comes from, or why there is none. Those that come later weigh more.
enum class Standing { InRange, Extrapolated, AtBound, BelowCritical, NotGiven, BeyondReference, Diverged, Failed };
inline constexpr std::size_t kStandings = 8;

struct PropertyValue {
    Standing standing;
    double value = 0;

    bool isComputed() const { return standing <= Standing::BelowCritical; }
};

// One word for machines.
std::string_view standingWord(Standing standing);
// The sign behind a value that is to be read with care or is missing; empty where there is nothing to say.
std::string_view standingMark(Standing standing);
// What the sign means, or why there is no value; a Czech sentence.
std::string_view standingNote(Standing standing);

}  // namespace velor
