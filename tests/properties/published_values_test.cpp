// The real gas of the database's substances against published figures, each within what is known of the equation.
// NIST: NIST Chemistry WebBook, SRD 69, fluid properties (saturated vapour unless the pressure says otherwise); CRC:
// CRC Handbook of Chemistry and Physics, 97th edition.
#include <gtest/gtest.h>

#include <cmath>

#include "support/real_mixture.h"

namespace velor::test {
namespace {

constexpr double R = 8.314;

constexpr std::int32_t kWater = 7732185, kMethane = 74828, kNitrogen = 7727379, kCarbonDioxide = 124389,
                       kAmmonia = 7664417, kEthylene = 74851, kPropane = 74986, kOxygen = 7782447, kArgon = 7440371;

struct Gas : RealMixture {
    Variant X;
    Gas(const std::vector<std::int32_t>& substances, const std::vector<double>& x)
        : RealMixture(substances), X(Fractions(x)) {}

    double density(double T, double P) { return smes.RROGW(T, P, X).toDouble(); }
    double compressibility(double T, double P) { return smes.TEVRP(0, T, P, X).toDouble(); }
    double enthalpy(double T, double P) {  // kJ/kg, relative to 10 kPa
        return (smes.RHGW(T, P, X).toDouble() - smes.RHGW(T, 1e4, X).toDouble()) / 1e3;
    }
    double viscosity(double T, double P) { return smes.RETAG(T, P, X).toDouble(); }
    double conductivity(double T, double P) { return smes.RALAG(T, P, X).toDouble(); }
    double heatCapacity(double T, double P) { return smes.RCPGW(T, P, X).toDouble(); }
    double prandtl(double T, double P) { return smes.PrG(T, P, X).toDouble(); }
};

void expectWithin(double percent, double value, double published, std::int32_t substance, double T) {
    EXPECT_NEAR(value, published, std::abs(published) * percent / 100)
        << substance << " at " << T << ": " << 100 * (value / published - 1) << " %";
}

// A known weakness, not an error of ours: without a parameter for polarity the equation gives ammonia and water only
// about 60 % of their residual enthalpy. Their bounds were set by what was found.
constexpr double kPolar = 45.0;

struct Row {
    std::int32_t substance;
    double T, P, value, redlichKwong, soave;  // the last two: per cent
};

// clang-format off
const std::pair<double (Gas::*)(double, double), std::vector<Row>> kPublished[] = {
    {&Gas::density, {  // NIST
        {kMethane, 111.67, 101325, 1.816, 1.5, 1.5},    {kMethane, 150.0, 1.0400e6, 16.33, 3, 2},
        {kNitrogen, 77.355, 101325, 4.612, 1.5, 1.5},   {kNitrogen, 100.0, 0.7783e6, 31.96, 3, 3},
        {kEthylene, 169.38, 101325, 2.09, 1.5, 1.5},    {kPropane, 231.04, 101325, 2.416, 2, 1.5},
        {kPropane, 293.15, 0.8365e6, 18.08, 5, 3},      {kCarbonDioxide, 250.0, 1.785e6, 46.64, 5, 3},
        {kCarbonDioxide, 273.15, 3.4851e6, 97.6, 8, 4}, {kAmmonia, 239.82, 101325, 0.890, 2, 2},
        {kAmmonia, 293.15, 0.8575e6, 6.703, 5, 4},      {kWater, 373.12, 101325, 0.5977, 1.5, 1.5},
        {kWater, 473.15, 1.5549e6, 7.861, 5, 4},        {kOxygen, 90.19, 101325, 4.467, 1.5, 1.5},
        {kArgon, 87.30, 101325, 5.774, 1.5, 1.5}}},
    {&Gas::compressibility, {  // NIST
        {kMethane, 300, 1e6, 0.983, 0.5, 0.5},    {kMethane, 300, 1e7, 0.846, 3, 3},
        {kNitrogen, 300, 1e6, 0.9985, 0.5, 0.5},  {kNitrogen, 300, 1e7, 1.004, 2, 2},
        {kCarbonDioxide, 300, 1e6, 0.9495, 1, 1}}},
    {&Gas::enthalpy, {  // IAPWS-IF97; steam is the equation's hardest gas
        {kWater, 573.15, 1e6, -25.5, kPolar, kPolar}, {kWater, 573.15, 5e6, -151.3, kPolar, kPolar},
        {kWater, 673.15, 1e7, -182.5, kPolar, kPolar}}},
    {&Gas::viscosity, {{kMethane, 300, 1e7, 13.9e-6, 6, 6}, {kNitrogen, 300, 1e7, 19.9e-6, 5, 5}}}};  // NIST
// clang-format on

TEST(PublishedValues, ofPureGasesAreMet) {
    for (const auto& [quantity, rows] : kPublished)
        for (const Row& r : rows) {
            Gas gas({r.substance}, {1});
            expectWithin(r.redlichKwong, (gas.*quantity)(r.T, r.P), r.value, r.substance, r.T);
            gas.smes.Redlich(1);
            expectWithin(r.soave, (gas.*quantity)(r.T, r.P), r.value, r.substance, r.T);
            EXPECT_TRUE(gas.boxes.messages.empty());
        }
}

// Lemmon and Jacobsen, Int. J. Thermophys. 25 (2004) 21: air at 300 K.
TEST(PublishedValues, transportOfAir) {
    Gas air({kNitrogen, kOxygen, kArgon}, {0.7812, 0.2096, 0.0092});
    expectWithin(2, air.viscosity(300, 1e5), 18.54e-6, 0, 300);
    expectWithin(5, air.viscosity(300, 1e7), 20.1e-6, 0, 300);
    expectWithin(3, air.conductivity(300, 1e5), 0.02638, 0, 300);
    expectWithin(1, air.heatCapacity(300, 1e5), 1007, 0, 300);
    expectWithin(3, air.prandtl(300, 1e5), 0.71, 0, 300);
}

}  // namespace
}  // namespace velor::test
