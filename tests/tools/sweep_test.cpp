// Every correlation of the database over its whole range.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <span>
#include <vector>

#include "properties/pure_value.h"
#include "real_data.h"
#include "rules/equations.h"

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
    {kETAL, 2e-5, 1000.0, Trend::Falls},  // Pa s
    {kALAL, 0.015, 1.0, Trend::Any},      // W/(m K)
    {kCPL, 19.0, 2000.0, Trend::Any},     // J/(mol K)
    {kDHV, 40.0, 1.5e5, Trend::Falls},    // J/mol
    {kTENS, 1e-16, 2.3e7, Trend::Rises},  // Pa
    {kSIGMA, 1e-5, 0.1, Trend::Falls},    // N/m
}};

// Substance and property, as number * 100 + property.
// clang-format off
const std::set<int> kBoundsBroken{
    700 + kETAL, 1100 + kETAL,  // helium and hydrogen: so thin are their liquids
};
const std::set<int> kTrendBroken{
    1800 + kALAG, 1900 + kALAG,  // nitrogen dioxide and its dimer: conductivity of the reacting mixture, maximum
    1100 + kDHV,  // hydrogen: a flat maximum above the triple point
    2800 + kDHV,  // hydrogen fluoride: chains in the vapour, maximum
    26600 + kDHV,  // cumene hydroperoxide: estimated data
    30800 + kDHV,  // 3-methylbutan-2-one: the fit passes a flat maximum
    32000 + kDHV, 32100 + kDHV, 32200 + kDHV, 32500 + kDHV,  // carboxylic acids: dimers in the vapour, maximum
};
// clang-format on

bool follows(const std::vector<double>& values, Trend trend) {
    if (trend == Trend::Any) return true;
    return std::adjacent_find(values.begin(), values.end(), [&](double one, double next) {
               return trend == Trend::Rises ? next <= one : next >= one;
           }) == values.end();
}

// Whether the slope of the values bends more sharply at some temperature than at those a few kelvins on either side.
bool hasKink(std::span<const double> values) {
    constexpr std::size_t kAside = 4;
    constexpr double kLeastBend = 1e-5;  // below, single precision shows
    const auto bend = [&](std::size_t i) {
        return std::abs(std::log(values[i - 1] * values[i + 1] / (values[i] * values[i])));
    };
    for (std::size_t i = kAside + 1; i + kAside + 1 < values.size(); ++i)
        if (bend(i) > 1.25 * std::max({bend(i - kAside), bend(i + kAside), kLeastBend})) return true;
    return false;
}

TEST(Sweep, everyCorrelationIsSoundOverItsRange) {
    for (const auto& [number, record] : test::realRecords()) {
        for (const PropertyLaw& law : kLaws) {
            const TKorelace& block = record.Korelace[static_cast<std::size_t>(law.property - 1)];
            if (block.Priznak == 0) continue;
            SCOPED_TRACE(test::label(record) + " " + std::string(propertyName(law.property)));
            ASSERT_LT(block.Tmin, block.Tmax);
            std::vector<double> values;
            for (int T = block.Tmin; T <= block.Tmax; ++T) values.push_back(evaluateEquation(block.Typ, block.A, T));
            for (const double y : values) ASSERT_TRUE(std::isfinite(y) && y > 0 && y != kNoValue) << y;
            const auto [least, most] = std::minmax_element(values.begin(), values.end());
            const int breach = number * 100 + law.property;
            // A breach that is no longer there has to leave the table.
            EXPECT_EQ(*least >= law.least && *most <= law.most, !kBoundsBroken.contains(breach))
                << *least << ' ' << *most;
            EXPECT_EQ(follows(values, law.trend), !kTrendBroken.contains(breach));
            EXPECT_FALSE(hasKink(values));
            // The enthalpy needs polynomials.
            EXPECT_TRUE(law.property != kCPL || block.Typ <= 5);
        }
    }
}

}  // namespace
}  // namespace velor
