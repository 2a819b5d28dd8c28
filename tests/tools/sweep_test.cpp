// Every correlation of the database over its whole range.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <vector>

#include "correlations/equations.h"
#include "correlations/pure_value.h"
#include "real_data.h"

namespace velor {
namespace {

enum class Trend { Any, Rises, Falls };

// What a property can be between the lightest and the heaviest substance, and how it goes with the temperature.
struct PropertyLaw {
    Property property;
    double least;
    double most;
    Trend trend;
};

constexpr std::array<PropertyLaw, 10> kLaws{{
    {kETAG, 5e-7, 1.5e-4, Trend::Rises},  // Pa s
    {kCPG, 20.7, 2500.0, Trend::Any},     // J/(mol K); 2.5 R and above
    {kALAG, 5e-4, 1.0, Trend::Rises},     // W/(m K)
    {kROLW, 30.0, 3500.0, Trend::Falls},  // kg/m3
    {kETAL, 2e-6, 1000.0, Trend::Falls},  // Pa s
    {kALAL, 0.015, 1.0, Trend::Any},      // W/(m K)
    {kCPL, 19.0, 2000.0, Trend::Any},     // J/(mol K)
    {kDHV, 40.0, 1.5e5, Trend::Falls},    // J/mol
    {kTENS, 1e-16, 2.3e7, Trend::Rises},  // Pa
    {kSIGMA, 1e-5, 0.1, Trend::Falls},    // N/m
}};

enum class Broken { Bounds, Trend };

struct KnownBreach {
    int number;
    Property property;
    Broken law;
    std::string_view reason;
};

constexpr std::array kKnownBreaches{
    KnownBreach{18, kALAG, Broken::Trend, "nitrogen dioxide: conductivity of the reacting mixture passes a maximum"},
    KnownBreach{19, kALAG, Broken::Trend, "its dimer: the same"},
    KnownBreach{28, kDHV, Broken::Trend, "hydrogen fluoride: chains in the vapour, maximum"},
    KnownBreach{260, kETAL, Broken::Bounds, "tetraethylene glycol: falls too far in the last kelvins of the range"},
    KnownBreach{266, kDHV, Broken::Trend, "cumene hydroperoxide: estimated data"},
    KnownBreach{308, kDHV, Broken::Trend, "3-methylbutan-2-one: the fit passes a flat maximum"},
    KnownBreach{320, kDHV, Broken::Trend, "formic acid: dimers in the vapour, maximum"},
    KnownBreach{321, kDHV, Broken::Trend, "acetic acid: dimers in the vapour, maximum"},
    KnownBreach{322, kDHV, Broken::Trend, "propionic acid: dimers in the vapour, maximum"},
    KnownBreach{325, kDHV, Broken::Trend, "acrylic acid: dimers in the vapour, maximum"},
    KnownBreach{360, kETAL, Broken::Bounds, "propylene carbonate: falls to nothing at the upper end of the range"},
};

bool isKnown(int number, Property property, Broken law) {
    return std::any_of(kKnownBreaches.begin(), kKnownBreaches.end(), [&](const KnownBreach& breach) {
        return breach.number == number && breach.property == property && breach.law == law;
    });
}

std::vector<double> valuesOver(const TKorelace& block) {
    std::vector<double> values;
    for (int T = block.Tmin; T <= block.Tmax; ++T) values.push_back(evaluateEquation(block.Typ, block.A, T));
    return values;
}

bool follows(const std::vector<double>& values, Trend trend) {
    if (trend == Trend::Any) return true;
    return std::adjacent_find(values.begin(), values.end(), [&](double one, double next) {
               return trend == Trend::Rises ? next <= one : next >= one;
           }) == values.end();
}

bool isWithin(const std::vector<double>& values, const PropertyLaw& law) {
    return std::all_of(values.begin(), values.end(), [&](double y) { return y >= law.least && y <= law.most; });
}

bool isPositive(const std::vector<double>& values) {
    return std::all_of(values.begin(), values.end(),
                       [](double y) { return std::isfinite(y) && y > 0 && y != kNoValue; });
}

TEST(Sweep, everyCorrelationIsSoundOverItsRange) {
    int correlations = 0;
    for (const auto& [number, record] : test::realRecords()) {
        for (const PropertyLaw& law : kLaws) {
            const TKorelace& block = record.Korelace[static_cast<std::size_t>(law.property - 1)];
            if (block.Priznak == 0) continue;
            SCOPED_TRACE(test::label(record) + " " + std::string(propertyName(law.property)));
            ++correlations;
            ASSERT_LT(block.Tmin, block.Tmax);
            const std::vector<double> values = valuesOver(block);
            EXPECT_TRUE(isPositive(values));
            // A breach that is no longer there has to leave the table.
            EXPECT_EQ(isWithin(values, law), !isKnown(number, law.property, Broken::Bounds))
                << values.front() << " to " << values.back();
            EXPECT_EQ(follows(values, law.trend), !isKnown(number, law.property, Broken::Trend));
        }
    }
    EXPECT_GE(correlations, 4791);
}

// Liquid heat capacities are polynomials: the enthalpy needs them so.
TEST(Sweep, liquidHeatCapacitiesArePolynomials) {
    for (const auto& [number, record] : test::realRecords()) {
        const TKorelace& block = record.Korelace[kCPL - 1];
        EXPECT_TRUE(block.Priznak == 0 || block.Typ <= 5) << test::label(record);
    }
}

}  // namespace
}  // namespace velor
