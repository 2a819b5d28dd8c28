// One property of a mixture at one point, over plain numbers: what the table computes where the object has its methods.
// Gathers the pure values of the components that are there, keeps their worst verdict and mixes by the same rules.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "properties/prepared_component.h"
#include "rules/gas.h"
#include "rules/pseudocritical.h"
#include "rules/temperature.h"
#include "velor/properties.h"
#include "velor/verdict.h"

namespace velor {

inline constexpr std::size_t kMostComponents = 20;

struct PreparedComponents {
    ComponentSettings settings;
    std::vector<PreparedComponent> components;
    std::vector<PairFactor> pairs;  // of the gas's conductivity, by rows; none where a molar mass is missing
};

class PropertyPoint {
  public:
    // Mole fractions, one a component; only components whose fraction is positive take part.
    PropertyPoint(const PreparedComponents& mixture, std::span<const double> fractions);

    // The property with its verdict at T kelvin and P pascals. The value is NaN where there is none. Whether a gas
    // would condense takes as long as the value of many a property: it is looked at where somebody reads the verdict.
    PropertyValue value(const MixtureProperty& property, double T, double P, bool isVerdictRead = true);

    // The state of the properties below that are mixed of records alone: HL, SL and the real gas without Cp and Cv.
    PropertyPoint& at(double T, double P);

    // ---- The properties, by the names of the object's methods; errors as there ----------------------------------
    double VSM();
    double ROLW();
    double CPL();
    double CPLW();
    double ETAL();
    double ALAL();
    double DHV();
    double DHVW();
    double SIGMA();
    double TENS();
    double HL();
    double HLW();
    double SL();
    double SLW();
    double ObjRozL();
    double PrL();
    double ETAG();
    double RETAG();
    double CPG();
    double CPGW();
    double RCPG();
    double RCPGW();
    double ALAG();
    double RALAG();
    double ROGW();
    double RROGW();
    double RUG();
    double RUGW();
    double RHG();
    double RHGW();
    double RSG();
    double RSGW();
    double RCVG();
    double RCVGW();
    double Kapa();
    double LnFug();
    double JTkoef();

  private:
    using Values = std::array<double, kMostComponents>;

    // The real gas without its ideal part.
    struct DenseGas {
        double p = 0;  // MPa
        double V = 0;  // cm3/mol
        CubicParameters parameters;
    };

    const PreparedComponent& component(std::size_t i) const { return *present_[i]; }
    std::span<const double> x() const { return std::span(x_).first(count_); }
    std::span<const double> of(const Values& values) const { return std::span(values).first(count_); }

    void take(Standing standing);
    void gather(const MixtureProperty& property);
    void gatherPure(Property k);
    void gatherReducedDensities();
    void gatherHeatOfVaporisation();
    double reducedTemperature(double T) const;
    bool isMetastableGas() const;

    double densityOf(const Values& pureDensities);
    double perMass(double molar);
    DenseGas denseGas() const;
    CubicState residual(const DenseGas& gas) const;
    double referenced(double GasReference::*constant,
                      double (*integral)(const HeatCapacityIntegral&, const Temperature&)) const;
    double enthalpy(const DenseGas& gas) const;
    double heatCapacityV(const CubicState& residual);
    double heatCapacityP(const CubicState& residual);
    Pseudocritical pseudocritical() const;
    double excess(double (*rule)(const Pseudocritical&, double));

    PropertyValue bubblePoint();
    PropertyValue dewPoint();
    PropertyValue saturationPoint(double T);
    std::optional<Standing> missingVapourPressure() const;
    bool hasVapourPressuresInRange(double T) const;
    double boilingExcess(double T) const;
    double condensingExcess(double T) const;

    const PreparedComponents& mixture_;
    std::array<const PreparedComponent*, kMostComponents> present_{};
    std::array<std::size_t, kMostComponents> index_{};  // of each in the whole mixture
    Values x_{};
    std::size_t count_ = 0;
    Temperature T_{0};
    double P_ = 0;
    Standing worst_ = Standing::InRange;
    std::array<Values, kSIGMA + 1> values_;  // of each property gathered, by its number
};

}  // namespace velor
