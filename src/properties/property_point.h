// One property of a mixture at one point or at several side by side, over plain numbers: what the table computes where
// the object has its methods. Gathers the pure values of the components that are there, keeps their worst verdict and
// mixes by the same rules.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

#include "properties/prepared_component.h"
#include "properties/stability.h"
#include "properties/standings.h"
#include "rules/gas.h"
#include "rules/pseudocritical.h"
#include "rules/temperature.h"
#include "velor/properties.h"
#include "velor/supplement.h"
#include "velor/verdict.h"

namespace velor {

inline constexpr std::size_t kMostComponents = 20;

struct PreparedComponents {
    ComponentSettings settings;
    std::vector<PreparedComponent> components;
    std::vector<EstimatedProperties> estimated = {};  // of each component; none where nothing is told of them
    std::vector<PairFactor> pairs;  // of the gas's conductivity, by rows; none where a molar mass is missing
};

// Number is a double or Lanes: several points of one composition, none of which depends on the others. What a rule of
// theirs refuses or does another way has no value among them, but may have one alone.
template <class Number>
class BasicPropertyPoint {
  public:
    // Mole fractions, one a component; only components whose fraction is positive take part.
    BasicPropertyPoint(const PreparedComponents& mixture, std::span<const double> fractions);

    bool isEmpty() const { return count_ == 0; }

    // The state of the properties below: T kelvin and P pascals.
    BasicPropertyPoint& at(const Number& T, const Number& P);

    // One of them with what it is mixed of; NaN where it has no value, see the standings. Errors as below.
    Number value(const MixtureProperty& property, Number (BasicPropertyPoint::*evaluate)());

    // How what was gathered stands to its correlations.
    const Standings<Number>& standings() const { return standings_; }

    // sum(y P / Ps) of what can condense, see Raoult; NaN where a vapour pressure is missing.
    Number condensing() const;

    // ---- The properties, by the names of the object's methods; errors as there ----------------------------------
    Number VSM();
    Number TBV();
    Number TRB();
    Number ROLW();
    Number CPL();
    Number CPLW();
    Number ETAL();
    Number ALAL();
    Number DHV();
    Number DHVW();
    Number SIGMA();
    Number TENS();
    Number HL();
    Number HLW();
    Number SL();
    Number SLW();
    Number ObjRozL();
    Number PrL();
    Number ETAG();
    Number RETAG();
    Number CPG();
    Number CPGW();
    Number RCPG();
    Number RCPGW();
    Number ALAG();
    Number RALAG();
    Number ROGW();
    Number RROGW();
    Number RUG();
    Number RUGW();
    Number RHG();
    Number RHGW();
    Number RSG();
    Number RSGW();
    Number RCVG();
    Number RCVGW();
    Number Kapa();
    Number LnFug();
    Number JTkoef();

  private:
    using At = BasicTemperature<Number>;
    using Values = std::array<Number, kMostComponents>;
    using Constants = std::array<double, kMostComponents>;

    // The real gas without its ideal part.
    struct DenseGas {
        Number p;  // MPa
        Number V;  // cm3/mol
        BasicCubicParameters<Number> parameters;
    };

    const PreparedComponent& component(std::size_t i) const { return *present_[i]; }
    std::span<const double> x() const { return std::span(x_).first(count_); }
    std::span<const Number> of(const Values& values) const { return std::span(values).first(count_); }

    template <class Constant>
    Constants constants(Constant TLatka::*constant) const {
        Constants values;
        for (std::size_t i = 0; i < count_; ++i) values[i] = component(i).record().*constant;
        return values;
    }
    std::span<const double> first(const Constants& values) const { return std::span(values).first(count_); }

    Number pure(std::size_t i, Property k, const At& T, Standings<Number>& standings) const;
    Number pure(std::size_t i, Property k, const At& T) const;  // its standing is nobody's concern
    void gather(const MixtureProperty& property);
    void keep(Property k, std::size_t i, const Number& value);
    void gatherPure(Property k);
    void gatherReducedDensities();
    void gatherHeatOfVaporisation();
    Number reducedTemperature(const Number& T) const;

    double molarMass() const;
    Number densityOf(const Values& pureDensities);
    Number perMass(const Number& molar);
    DenseGas denseGas() const;
    BasicCubicState<Number> residual(const DenseGas& gas) const;
    template <class Integral>
    Number referenced(double GasReference::*constant, const Integral& integral) const;
    Number enthalpy(const DenseGas& gas) const;
    Number heatCapacityV(const BasicCubicState<Number>& residual);
    Number heatCapacityP(const BasicCubicState<Number>& residual);
    Pseudocritical pseudocritical() const;
    Number reducedDensity(const Pseudocritical& mixture);

    Number saturationPoint(const Number& T);
    bool hasVapourPressures();
    auto isCertain(const Number& T) const;
    Number boilingExcess(const Number& T) const;
    Number condensingExcess(const Number& T) const;

    const PreparedComponents& mixture_;
    std::array<const PreparedComponent*, kMostComponents> present_{};
    std::array<std::size_t, kMostComponents> index_{};  // of each in the whole mixture
    Constants x_{};
    std::size_t count_ = 0;
    At T_{0.0};
    Number P_ = 0.0;
    Standings<Number> standings_;
    Number absence_;                         // 0, or NaN where something gathered has no value
    std::array<Values, kSIGMA + 1> values_;  // of each property gathered, by its number
};

template <class Number>
using Evaluation = Number (BasicPropertyPoint<Number>::*)();

extern template class BasicPropertyPoint<double>;
using PropertyPoint = BasicPropertyPoint<double>;

// A row of the catalogue, and which of a point's properties it is.
struct PointProperty {
    const MixtureProperty& row;
    std::size_t evaluation;

    explicit PointProperty(const MixtureProperty& property);
};

// That property with its verdict at T kelvin and P pascals. The value is NaN where there is none. Whether a gas would
// condense takes as long as the value of many a property: it is looked at where somebody reads the verdict.
PropertyValue valueAt(PropertyPoint& point, const PointProperty& property, double T, double P, bool isVerdictRead);

// The verdict on a value of such components.
Standing concluded(const MixtureProperty& property, Standing worst, bool isMetastable);

inline bool isOfGasAtPressure(const MixtureProperty& property) {
    return property.phase == Phase::Gas && property.needsPressure;
}

}  // namespace velor
