// The database against published figures. CRC: CRC Handbook of Chemistry and Physics, 97th edition; NIST: NIST
// Chemistry WebBook, SRD 69 (fluid properties after the reference equations of state; for
// water the saturated liquid, which hardly differs from that at 101 325 Pa).
#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "support/real_mixture.h"
#include "velor/smes.h"

namespace velor::test {
namespace {

constexpr int kETAG = 1, kCPG = 2, kALAG = 3, kROLW = 4, kETAL = 5, kALAL = 6, kCPL = 7, kDHV = 8, kTENS = 9,
              kSIGMA = 10;

struct Pure : RealMixture {
    explicit Pure(std::int32_t registryNumber) : RealMixture({registryNumber}) {}
    double operator()(int property, double T) { return smes.FFce(T, 1, property).toDouble(); }
};

constexpr int kWater = 7732185, kEthanol = 64175, kBenzene = 71432, kMethane = 74828, kNitrogen = 7727379,
              kCarbonDioxide = 124389, kAmmonia = 7664417;

struct Published {
    std::int32_t substance;
    int property;
    double T, value, percent;
    const char* source;
};

TEST(ReferenceValues, areMetWithinTheirAccuracy) {
    // clang-format off
    const Published figures[] = {
        {kWater, kROLW, 298.15, 997.05, 0.1, "NIST"}, {kWater, kTENS, 373.15, 101325, 0.5, ""},
        {kWater, kTENS, 298.15, 3169, 1, "NIST"}, {kWater, kETAL, 298.15, 8.90e-4, 3, "NIST"},
        {kWater, kALAL, 298.15, 0.6065, 2, "NIST"}, {kWater, kCPL, 298.15, 75.3, 1.5, "NIST"},
        {kWater, kDHV, 373.15, 40650, 1, "NIST"}, {kWater, kSIGMA, 298.15, 0.0720, 1.5, ""},
        {kEthanol, kROLW, 298.15, 785.0, 0.7, "CRC"}, {kEthanol, kETAL, 298.15, 1.074e-3, 5, "CRC"},
        {kEthanol, kALAL, 298.15, 0.167, 4, "CRC"}, {kEthanol, kCPL, 298.15, 112.3, 3, "CRC"},
        {kEthanol, kDHV, 351.4, 38560, 2, "CRC"}, {kEthanol, kTENS, 298.15, 7870, 3, "CRC"},
        {kEthanol, kSIGMA, 298.15, 0.02197, 3, "CRC"}, {kEthanol, kCPG, 298.15, 65.6, 2, "CRC"},
        {kBenzene, kROLW, 298.15, 873.6, 0.7, "CRC"}, {kBenzene, kETAL, 298.15, 6.04e-4, 5, "CRC"},
        {kBenzene, kALAL, 298.15, 0.1411, 4, "CRC"}, {kBenzene, kCPL, 298.15, 136.0, 3, "CRC"},
        {kBenzene, kDHV, 353.24, 30720, 2, "CRC"}, {kBenzene, kTENS, 298.15, 12690, 2, "CRC"},
        {kBenzene, kSIGMA, 298.15, 0.02822, 3, "CRC"}, {kMethane, kETAG, 300, 1.112e-5, 3, "NIST"},
        {kMethane, kALAG, 300, 0.0343, 4, "NIST"}, {kMethane, kCPG, 298.15, 35.7, 1, "CRC"},
        {kMethane, kROLW, 111.67, 422.4, 1, "NIST"}, {kMethane, kDHV, 111.67, 8190, 2, "NIST"},
        {kNitrogen, kETAG, 300, 1.79e-5, 2, "NIST"}, {kNitrogen, kALAG, 300, 0.0259, 3, "NIST"},
        {kNitrogen, kCPG, 298.15, 29.12, 1, "NIST"}, {kNitrogen, kROLW, 77.36, 806.1, 1, "NIST"},
        {kNitrogen, kDHV, 77.36, 5577, 2, "NIST"}, {kNitrogen, kSIGMA, 77.36, 0.00887, 3, "NIST"},
        {kCarbonDioxide, kETAG, 300, 1.50e-5, 2, ""}, {kCarbonDioxide, kALAG, 300, 0.0168, 4, "NIST"},
        {kCarbonDioxide, kCPG, 298.15, 37.13, 1, "CRC"}, {kCarbonDioxide, kTENS, 273.15, 3.4851e6, 1, "NIST"},
        {kCarbonDioxide, kROLW, 273.15, 927.4, 1.5, "NIST"}, {kAmmonia, kETAG, 300, 1.02e-5, 4, "NIST"},
        {kAmmonia, kALAG, 300, 0.0251, 5, "NIST"}, {kAmmonia, kCPG, 298.15, 35.1, 2, "CRC"},
        {kAmmonia, kTENS, 298.15, 1.003e6, 2, "NIST"}, {kAmmonia, kROLW, 239.82, 682, 1, "NIST"},
        {kAmmonia, kDHV, 239.82, 23330, 2, "CRC"},
    };
    // clang-format on
    for (const Published& p : figures) {
        Pure substance(p.substance);
        EXPECT_NEAR(substance(p.property, p.T), p.value, p.value * p.percent / 100)
            << p.substance << ' ' << Smes::ChybRozv(p.property) << " at " << p.T;
        EXPECT_TRUE(substance.boxes.messages.empty());
    }
}

// Where the vapour pressure is an atmosphere there, as another test makes sure.
TEST(ReferenceValues, boilingPointsAreThePublishedOnes) {
    // clang-format off
    const std::pair<std::int32_t, double> boilingPoints[] = {
        // CRC, "Physical constants of organic (inorganic) compounds"
        {kWater, 373.12}, {67561, 337.8}, {kEthanol, 351.44}, {67641, 329.20}, {kBenzene, 353.23}, {108883, 383.78},
        {109660, 309.21}, {110543, 341.88}, {142825, 371.57}, {111659, 398.77}, {110827, 353.88}, {74986, 231.1},
        {106978, 272.7}, {kMethane, 111.67}, {kNitrogen, 77.36}, {7782447, 90.2}, {kAmmonia, 239.82}, {67663, 334.32},
        {60297, 307.7}, {100414, 409.33}, {71238, 370.4}, {67630, 355.4}, {64197, 391.1}, {62533, 457.3}};
    // clang-format on
    for (const auto& [substance, Tb] : boilingPoints)
        EXPECT_NEAR(Pure(substance).smes.Bod(1, 15), Tb, 0.6) << substance;
}

}  // namespace
}  // namespace velor::test
