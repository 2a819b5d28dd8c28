// A temperature that the correlations of several components are evaluated at.
#pragma once

#include "runtime/checked.h"

namespace velor {

// Its logarithm and reciprocal are computed when they are first asked for and then shared: most equations need one of
// them, and for a mixture they need it once a component. Number is a double or the Lanes of several points.
template <class Number>
class BasicTemperature {
  public:
    BasicTemperature(const Number& kelvin) : kelvin_(kelvin) {}
    operator const Number&() const { return kelvin_; }
    const Number& kelvin() const { return kelvin_; }

    // Error 5: not above 0 K.
    const Number& logarithm() const {
        using checked::naturalLogarithm;
        if (!isLogarithmKnown_) logarithm_ = naturalLogarithm(kelvin_);
        isLogarithmKnown_ = true;
        return logarithm_;
    }

    // Error 11: 0 K.
    const Number& reciprocal() const {
        using checked::divide;
        if (!isReciprocalKnown_) reciprocal_ = divide(1.0, kelvin_);
        isReciprocalKnown_ = true;
        return reciprocal_;
    }

  private:
    Number kelvin_;
    mutable Number logarithm_, reciprocal_;
    mutable bool isLogarithmKnown_ = false, isReciprocalKnown_ = false;
};

using Temperature = BasicTemperature<double>;

}  // namespace velor
