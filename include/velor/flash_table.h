// Many flashes at once: one feed or many at arrays of temperatures and pressures; see Smes::FLASH.
//
// Where the object (a fresh one, its messages on) has a result, from a bubble and a dew point that converged, the table
// has the same. The two points are solved in full here: at them, and in what an adiabatic flash begins with, there are
// the object's 0.02 K between both, and in what that flash ends with its own tolerance. A fault of one point leaves the
// others as they are. Nothing is shown or counted, every iteration has a limit.
#pragma once

#include <cstddef>
#include <span>

#include "velor/flash_record.h"
#include "velor/table.h"

namespace velor {

// Of each member one element a point, by the names of FlashRecord; any may be left empty. NaN stands for none.
struct FlashResults {
    std::span<FlashOutcome> outcomes = {};  // None: no flash, and the verdict says why
    std::span<Standing> verdicts = {};      // the worst of the vapour pressures and enthalpies; Diverged: not converged
    std::span<int> passes = {};             // 0 where nothing was iterated
    std::span<double> vapourFractions = {};    // moles of vapour per mole of feed
    std::span<double> temperatures = {};       // K
    std::span<double> bubblePoints = {};       // K
    std::span<double> dewPoints = {};          // K
    std::span<double> materialResiduals = {};  // sum(x (1 - K)) as the last pass found it, converged or not
    std::span<double> energyResiduals = {};    // J/mol, likewise; of an adiabatic flash
    // Of component i (from 0) at point p the element i * componentStride + p * pointStride of each. A phase that is not
    // there has fractions of 0; of the feed alone there are no K-values.
    std::span<double> liquids = {};       // mole fractions
    std::span<double> vapours = {};       // mole fractions
    std::span<double> equilibriums = {};  // K = y / x
    std::ptrdiff_t componentStride = 1;
    std::ptrdiff_t pointStride = 0;  // 0: one point right behind the other
};

// At T kelvin (of an adiabatic flash the liquid feed's own temperature) and P pascals, both positive, one number for
// all points or one each. feeds: of each point; isNormalised as in a table. A component that is above its critical
// temperature has the vapour pressure that the object computes, that at 0.98 of it; whether a feed with such a one is
// all vapour is seen from its K-values, because it has no dew point of its own. Error 9, before anything is computed: a
// length that does not fit, strides that lead out of the values or let two results meet.
void flash(const PreparedMixture& mixture, FlashKind kind, std::span<const double> T, std::span<const double> P,
           const Compositions& feeds, std::size_t points, const FlashResults& results, TableOptions options = {});

}  // namespace velor
