// What the last flash of a mixture found, as numbers, and how its bubble and dew points came out.
#pragma once

#include <vector>

namespace velor {

enum class SaturationOutcome {
    None,       // no such point was computed yet
    Converged,  //
    Diverged,   // given up after the last step
    Failed,     // ended with an error
};

enum class FlashKind { Isothermal, Adiabatic };

enum class FlashOutcome {
    None,          // no flash yet, or one that ended with an error
    AllVapour,     // the temperature lies above the dew point: nothing was iterated
    AllLiquid,     // the temperature lies below the bubble point: nothing was iterated
    Converged,     //
    NotConverged,  // stopped after the last pass; the values are those of that pass
};

struct FlashRecord {
    FlashKind kind = FlashKind::Isothermal;
    FlashOutcome outcome = FlashOutcome::None;
    int passes = 0;             // iterations done
    double vapourFraction = 0;  // moles of vapour per mole of feed
    double temperature = 0;     // K
    double bubblePoint = 0;     // K, 0 where TBV gave none
    double dewPoint = 0;        // K, 0 where TRB gave none; the last estimate where it diverged
    SaturationOutcome bubbleOutcome = SaturationOutcome::None;
    SaturationOutcome dewOutcome = SaturationOutcome::None;
    double materialResidual = 0;  // sum(x (1 - K)) as the last pass found it
    double energyResidual = 0;    // enthalpy of the products less that of the feed, J/mol, as the last pass found it
    std::vector<double> feed;     // normalised mole fractions, one element a component
    std::vector<double> liquid;   //
    std::vector<double> vapour;   //
    std::vector<double> equilibrium;  // K-values; empty where nothing was iterated
};

}  // namespace velor
