// A temperature that the correlations of several components are evaluated at.
#pragma once

#include "runtime/checked.h"

namespace velor {

// Its logarithm is computed when it is first asked for and then shared: most equations need it, and for a mixture they
// need it once a component.
class Temperature {
  public:
    Temperature(double kelvin) : kelvin_(kelvin) {}
    operator double() const { return kelvin_; }

    // Error 5: not above 0 K.
    double logarithm() const {
        if (!known_) {
            logarithm_ = checked::naturalLogarithm(kelvin_);
            known_ = true;
        }
        return logarithm_;
    }

  private:
    double kelvin_;
    mutable double logarithm_ = 0.0;
    mutable bool known_ = false;
};

}  // namespace velor
