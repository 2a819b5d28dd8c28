// A temperature that the correlations of several components are evaluated at.
#pragma once

#include "runtime/checked.h"

namespace velor {

// Its logarithm is computed when it is first asked for and then shared: most equations need it, and for a mixture they
// need it once a component. Number is a double or the Lanes of several points.
template <class Number>
class BasicTemperature {
  public:
    BasicTemperature(const Number& kelvin) : kelvin_(kelvin) {}
    operator const Number&() const { return kelvin_; }
    const Number& kelvin() const { return kelvin_; }

    // Error 5: not above 0 K.
    const Number& logarithm() const {
        if (!known_) {
            using checked::naturalLogarithm;
            logarithm_ = naturalLogarithm(kelvin_);
            known_ = true;
        }
        return logarithm_;
    }

  private:
    Number kelvin_;
    mutable Number logarithm_;
    mutable bool known_ = false;
};

using Temperature = BasicTemperature<double>;

}  // namespace velor
