// A component with everything prepared that depends on its record and the settings only.
#pragma once

#include <array>
#include <optional>

#include "properties/prepared_correlation.h"
#include "properties/standings.h"
#include "rules/equation_of_state.h"
#include "rules/equations.h"
#include "rules/ideal_gas.h"
#include "velor/properties.h"
#include "velor/record.h"
#include "velor/verdict.h"

namespace velor {

struct ComponentSettings {
    Attraction attraction = Attraction::RedlichKwong;
    bool isClamped = false;
};

// Enthalpy and entropy of the ideal gas from the liquid at the normal boiling point.
struct GasReference {
    double enthalpy = 0;  // J/mol
    double entropy = 0;   // J/(mol K)
    HeatCapacityIntegral idealGas;
};

class PreparedComponent {
  public:
    PreparedComponent(const TLatka& record, const ComponentSettings& settings);

    const TLatka& record() const { return record_; }

    // Property k (1..10) at T with its verdict; see pureValue of verdict.h.
    PropertyValue pure(int k, const Temperature& T) const;
    // The same of several points: not finite where there is no value, the standings only where there is one.
    template <class Number>
    Number pure(int k, const BasicTemperature<Number>& T, Standings<Number>& standings) const {
        const PreparedCorrelation& prepared = correlation(k);
        if (!prepared.isSilent()) return numbers::kNan;
        const bool isInRange = isAll(prepared.isInRange(T.kelvin()));
        if (!isInRange) judgeEach(prepared, T.kelvin(), standings);
        const Number y = prepared.value(T, isClamped_, isInRange);
        return select(y < 0.0, numbers::kNan, y);  // far outside its range: none of the ten is negative
    }
    // Whether the vapour pressure is neither extrapolated nor moved at T.
    template <class Number>
    auto isVapourPressureInRange(const Number& T) const {
        return correlation(kTENS).isInRange(T);
    }

    // The number that the object goes on with: 1E-8 where there is no value, a negative one as it is.
    double valueAsBuilt(int k, const Temperature& T) const;

    // What the real gas needs; none where it cannot be prepared.
    const std::optional<CubicComponent>& cubic() const { return cubic_; }
    const std::optional<GasReference>& gasReference() const { return gasReference_; }

  private:
    static constexpr int kProperties = 10;

    const PreparedCorrelation& correlation(int k) const { return correlations_[static_cast<std::size_t>(k - 1)]; }
    template <class Number>
    void judgeEach(const PreparedCorrelation& prepared, const Number& T, Standings<Number>& standings) const {
        double each[Number::kCount];
        T.store(each);
        for (std::size_t lane = 0; lane < Number::kCount; ++lane)
            standings.take(lane, prepared.standing(each[lane], isClamped_));
    }
    void prepareGas(Attraction attraction);

    TLatka record_;
    bool isClamped_;
    std::array<PreparedCorrelation, kProperties> correlations_;
    std::optional<CubicComponent> cubic_;
    std::optional<GasReference> gasReference_;
};

}  // namespace velor
