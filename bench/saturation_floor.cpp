#include "saturation_floor.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "properties/pure_value.h"

namespace velor::bench {

SaturationFloor::SaturationFloor(const std::vector<TLatka>& records)
    : lowestCritical_(std::numeric_limits<double>::max()) {
    for (const TLatka& record : records) {
        vapourPressures_.emplace_back(record.Korelace[kTENS - 1]);
        lowestCritical_ = std::min(lowestCritical_, double{record.Tkr});
    }
}

template <bool dew>
double SaturationFloor::point(double P, const std::vector<double>& x) const {
    double T = 300.0;
    for (;;) {
        if (T >= lowestCritical_) T = 0.95 * lowestCritical_;
        const double lnT = std::log(T), lnNext = std::log(T + 1.0);
        double f = -1.0, g = 0.0;
        for (std::size_t i = 0; i < vapourPressures_.size(); ++i) {
            const double Ps = vapourPressures_[i](T, lnT), rise = vapourPressures_[i](T + 1.0, lnNext) - Ps;
            const double share = dew ? P * x[i] / Ps : x[i] * Ps / P;
            f += share;
            g += (dew ? -rise : rise) * share / Ps;
        }
        const double next = T - f / g;
        if (next < 0.5 * T) {
            T *= 0.5;
        } else if (next > 1.5 * T) {
            T *= 1.5;
        } else if (std::abs(T - next) > 0.02) {
            T = next;
        } else {
            return next;
        }
    }
}

template double SaturationFloor::point<false>(double, const std::vector<double>&) const;
template double SaturationFloor::point<true>(double, const std::vector<double>&) const;

}  // namespace velor::bench
