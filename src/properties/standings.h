// The worst verdict so far, on a value at one point or at each of several.
#pragma once

#include <cstddef>

#include "rules/lanes.h"
#include "velor/verdict.h"

namespace velor {

template <class Number>
class Standings;

template <>
class Standings<double> {
  public:
    void take(Standing standing) {
        if (worst_ < standing) worst_ = standing;
    }
    void takeWhere(bool condition, Standing standing) {
        if (condition) take(standing);
    }
    Standing worst() const { return worst_; }
    bool isComputed() const { return PropertyValue{worst_}.isComputed(); }

  private:
    Standing worst_ = Standing::InRange;
};

template <class Instructions>
class Standings<Lanes<Instructions>> {
  public:
    void take(Standing standing) {
        if (ofAll_ < standing) ofAll_ = standing;
    }
    void take(std::size_t lane, Standing standing) {
        if (!differ_)
            for (Standing& each : each_) each = Standing::InRange;
        differ_ = true;
        if (each_[lane] < standing) each_[lane] = standing;
    }
    void takeWhere(const typename Lanes<Instructions>::Mask& condition, Standing standing) {
        if (!isAny(condition)) return;
        double chosen[Lanes<Instructions>::kCount];
        select(condition, Lanes<Instructions>(1.0), Lanes<Instructions>(0.0)).store(chosen);
        for (std::size_t lane = 0; lane < Lanes<Instructions>::kCount; ++lane)
            if (chosen[lane] != 0.0) take(lane, standing);
    }
    Standing worst(std::size_t lane) const { return differ_ && ofAll_ < each_[lane] ? each_[lane] : ofAll_; }
    bool isComputed() const { return PropertyValue{ofAll_}.isComputed(); }  // some of them at least

  private:
    Standing ofAll_ = Standing::InRange;
    bool differ_ = false;
    Standing each_[Lanes<Instructions>::kCount];  // where they differ
};

}  // namespace velor
