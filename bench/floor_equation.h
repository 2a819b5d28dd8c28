// The correlation equations as short as they get: what depends on the coefficients alone is prepared, every power is
// an exponential, and ln T comes from the caller, who shares it between components. No argument is checked.
#pragma once

#include <array>
#include <cmath>

#include "velor/record.h"

namespace velor::bench {

class FloorEquation {
  public:
    FloorEquation() = default;
    explicit FloorEquation(const TKorelace& block);

    double operator()(double T, double lnT) const;
    double operator()(double T) const { return (*this)(T, usesLogarithm_ ? std::log(T) : 0.0); }

  private:
    int type_ = 0;
    bool usesLogarithm_ = false;
    std::array<double, 6> c_{};
};

}  // namespace velor::bench
