// Bubble and dew point by the bare arithmetic: Newton's method in T with a forward difference of 1 K, from 300 K to a
// step of 0.02 K, as the library does it.
#pragma once

#include <vector>

#include "floor_equation.h"

namespace velor::bench {

class SaturationFloor {
  public:
    explicit SaturationFloor(const std::vector<TLatka>& records);

    double bubblePoint(double P, const std::vector<double>& x) const { return point<false>(P, x); }
    double dewPoint(double P, const std::vector<double>& y) const { return point<true>(P, y); }

    const std::vector<FloorEquation>& vapourPressures() const { return vapourPressures_; }

  private:
    template <bool dew>
    double point(double P, const std::vector<double>& x) const;

    std::vector<FloorEquation> vapourPressures_;
    double lowestCritical_;
};

}  // namespace velor::bench
