// The ten properties of a pure substance: what they are called and how one is computed.
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "velor/smes.h"

namespace velor::app {

// Items of Smes::VLRConst behind the six coefficients.
inline constexpr int kTyp = 7, kPriznak = 8, kTmin = 9, kTmax = 10;

inline constexpr int kWater = 1;  // substance 1 of the database is water, by rule

struct PureProperty {
    int number;  // as Smes::FFce knows it
    std::string_view code;
    std::string_view caption;
    std::string_view unit;
};

std::span<const PureProperty> pureProperties();

// By its code in any letter case. Failure(WrongUse) lists the codes.
const PureProperty& findPureProperty(std::string_view code);

// How a value stands to the correlation it comes from, or why there is none.
enum class Standing { InRange, Extrapolated, AtBound, BelowCritical, NotGiven, BeyondReference, Failed };
inline constexpr std::size_t kStandings = 7;

struct PureValue {
    Standing standing;
    double value = 0;

    bool isComputed() const { return standing <= Standing::BelowCritical; }
};

// Of the component in the slot, at T kelvin.
PureValue pureValue(Smes& smes, double T, int slot, const PureProperty& property);

bool isGiven(const Smes& smes, int slot, int property);

// One word for machines.
std::string_view standingWord(Standing standing);
// The sign behind a value that is to be read with care or is missing; empty where there is nothing to say.
std::string_view standingMark(Standing standing);
// What the sign means, or why there is no value; a Czech sentence.
std::string_view standingNote(Standing standing);

}  // namespace velor::app
