// The correlations of the components, each prepared for many temperatures.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

#include "object/state.h"
#include "properties/pure_value.h"
#include "rules/equations.h"
#include "velor/verdict.h"

namespace velor {

// Property k of one substance.
class PreparedCorrelation {
  public:
    PreparedCorrelation() = default;
    // number: the substance's in the database. Error 9: k is not 1..11.
    PreparedCorrelation(const TLatka& record, int number, int k);

    bool isGiven() const { return isGiven_; }
    bool hasEquation() const { return hasEquation_; }
    // Whether its value comes without a message.
    bool isSilent() const { return isSilent_; }

    // At T kelvin, of a correlation that has an equation; isClamped: outside its range the value at the range's end.
    // Errors: those of the equation.
    double value(const Temperature& T, bool isClamped) const {
        const double Tx = workingTemperature(T, isClamped);
        // A T that was not moved brings the logarithm that the components share.
        return Tx == T && !isWaterDensity_ ? equation_(T) : valueAt(Tx);
    }

    // Of several points; those without a value are not finite. isInRange: that is known of all.
    template <class Number>
    Number value(const BasicTemperature<Number>& T, bool isClamped, bool isInRange) const {
        return isInRange || !isMoved(T.kelvin(), isClamped)
                   ? valuesAt(T)
                   : valuesAt<Number>(workingTemperatures(T.kelvin(), isClamped));
    }

    // See standingAt.
    Standing standing(double T, bool isClamped) const { return standingAt(T, Tmin_, Tmax_, isClamped, T > highest_); }
    // Where it is InRange.
    template <class Number>
    auto isInRange(const Number& T) const {
        return (T >= Tmin_) & (T <= std::min(Tmax_, highest_));
    }

  private:
    template <class Number>
    bool isMoved(const Number& T, bool isClamped) const {
        return isAny(T > highest_) || (isClamped && isAny((T < Tmin_) | (T > Tmax_)));
    }

    template <class Number>
    Number workingTemperatures(const Number& T, bool isClamped) const {
        double each[Number::kCount];
        T.store(each);
        for (double& one : each) one = workingTemperature(one, isClamped);
        return Number::load(each);
    }

    template <class Number>
    Number valuesAt(const BasicTemperature<Number>& T) const {
        return isWaterDensity_ ? waterDensity(T.kelvin()) : equation_(T);
    }

    double workingTemperature(double T, bool isClamped) const {
        double Tx = T;
        // Above the critical point the liquid's correlations are evaluated just below it, on purpose.
        if (T > highest_) Tx = belowCritical_;
        if (isClamped) {  // the caller's T is compared, not the one just set
            if (T < Tmin_) Tx = Tmin_;
            if (T > Tmax_) Tx = Tmax_;
        }
        return Tx;
    }

    double valueAt(double Tx) const;

    PreparedEquation equation_;
    double highest_ = std::numeric_limits<double>::infinity(), belowCritical_ = 0.0;  // K
    double Tmin_ = 0.0, Tmax_ = 0.0;                                                  // K
    bool isGiven_ = false, hasEquation_ = false, isSilent_ = false, isWaterDensity_ = false;
};

// Those of all slots, each prepared when it is first asked for and again after a change.
struct PreparedCorrelations {
    struct Kept {
        std::uint64_t revision = 0;
        PreparedCorrelation correlation;
    };
    std::array<std::array<Kept, TLatka::kCorrelations>, ComponentSlots::kCount> kept{};
};

// Property k of component i. The reference is not to be kept over a message, in which the host may change the
// component. Error 9: i is not 1..20, k not 1..11.
const PreparedCorrelation& preparedCorrelation(State& state, int i, int k);

// The same where it is silent and kept from an earlier call, else null; i and k are positive.
inline const PreparedCorrelation* keptCorrelation(const State& state, int i, int k) {
    const PreparedCorrelations* all = state.prepared.correlations.get();
    if (!all || i > ComponentSlots::kCount || k > TLatka::kCorrelations) return nullptr;
    const auto& kept = all->kept[static_cast<std::size_t>(i - 1)][static_cast<std::size_t>(k - 1)];
    const bool isCurrent = kept.revision == state.definition.slots.revision();
    return isCurrent && kept.correlation.isSilent() ? &kept.correlation : nullptr;
}

}  // namespace velor
