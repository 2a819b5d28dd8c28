#include "rules/equations.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "support/sample_mixture.h"

namespace velor::test {
namespace {

struct Point {
    int type;
    Coefficients A;
    double T, y;  // y: the value, or the error's number
};

// Worked out apart from this code, in 40-digit decimal arithmetic on the single-precision coefficients.
TEST(Equations, agreeWithPointsWorkedOutByHand) {
    // clang-format off
    const Point points[] = {
        {1, {2, 0.25F}, 300.0, 7.7000000000000000e+01}, {2, {1, 0.5F, -0.125F}, 40.0, -1.7900000000000000e+02},
        {3, {33.5F, -0.005F, 2e-05F, -7e-09F}, 350.0, 3.3899874971431217e+01},
        {4, {1, 1, 1, 1, 1}, 2.0, 3.1000000000000000e+01}, {5, {1, 2, 3, 4, 5, 6}, 3.0, 2.0050000000000000e+03},
        {6, {21, -2700, -50}, 350.0, 1.6275479141900392e+05},
        {7, {0.275F, 0.26F, 508}, 330.0, 7.4626404064723158e+02},
        {8, {40000, 0.38F, 0.38F, 500}, 300.0, 2.8246735408771918e+04},
        {8, {40000, 250, 0.38F, 500}, 300.0, 3.6748040542964365e+04},
        {9, {9.5F, -1800, -20, -0.5F, 0.0005F, 1e-07F}, 320.0, 2.6161643213651394e+02},
        {10, {-3, 400, 0.001F, -2e-06F, -30}, 300.0, 3.9946754098869795e-02},
        {11, {-10, 900, 20000, -1000000}, 310.0, 9.8563462688660078e-04},
        {12, {1.5e-06F, 110}, 300.0, 1.9010314414020684e-05},
        {13, {-7.7F, 1.5F, -2.7F, -1.2F, 647.096F, 22064000}, 450.0, 9.7327723838801903e+05},
        {14, {0.05F, 560}, 400.0, 3.2853290605791396e-02},
        {15, {1.1F, 0.26F, 562, 0.28F}, 300.0, 1.2557088283213510e+01},
        {16, {0.09F, 0.8F, 0.1F, -0.05F, 0, 600}, 420.0, 2.2828501247294259e-02},
        {17, {500, 250, -3.2F}, 300.0, 2.9286442430723425e-04},
        {18, {73.6F, -7258, -7.3F, 4.2e-06F, 2}, 373.15, 9.9084533234557486e+04},
        {18, {60, -6000, -5, 1e-17F, 6}, 400.0, 3.5541882820422687e+06},
        {18, {70, -6500, -6.5F, 0.003F, 1}, 300.0, 1.9075539958792255e+05},
        {18, {60, -6000, -5, 1e-10F, 3.5F}, 400.0, 3.8774072983664335e+06},
        {19, {7e-08F, 0.9346F, 195.6F, -13046}, 400.0, 1.3444555589453975e-05},
    };
    // clang-format on
    for (const Point& p : points) {
        SCOPED_TRACE("type " + std::to_string(p.type));
        EXPECT_NEAR(evaluateEquation(p.type, p.A, p.T) / p.y, 1.0, 5e-14);
        EXPECT_EQ(PreparedEquation(p.type, p.A)(p.T), evaluateEquation(p.type, p.A, p.T));
        // A damaged coefficient shows where the table says that it is used, and nowhere else.
        const Equation& equation = equationOf(p.type);
        for (std::size_t j = 0; j < p.A.size(); ++j) {
            Coefficients damaged = p.A;
            damaged[j] = std::numeric_limits<float>::quiet_NaN();
            double y = kNoValue;
            const int error = errorNumber([&] { y = evaluateEquation(p.type, damaged, p.T); });
            EXPECT_EQ(equation.uses(j), error != 0 || y == kNoValue) << "A" << j + 1;
            EXPECT_TRUE(equation.degree == 0 || equation.uses(j) == (static_cast<int>(j) <= equation.degree));
        }
    }
    for (int type = 1; isEquationType(type); ++type)
        EXPECT_TRUE(std::ranges::any_of(points, [&](const Point& p) { return p.type == type; }))
            << "no point of " << type;
}

constexpr float kTc = 500;

// Types with a reference temperature: the last value below, the value at it, the value beyond it.
TEST(Equations, endAtTheirReferenceTemperature) {
    // clang-format off
    const std::tuple<int, Coefficients, double> limits[] = {
        {7, {0.3F, 0.25F, kTc}, 1000 * static_cast<double>(0.3F)}, {8, {40000, 300, 0.38F, kTc}, 0},
        {13, {-7, 1.5F, -3, -1, kTc, 3e6F}, kNoValue}, {14, {0.05F, kTc}, kNoValue}, {15, {1, 0.25F, kTc, 0.28F}, 4},
        {16, {0.09F, 0.8F, 0.1F, 0.05F, 0, kTc}, 0},
    };
    // clang-format on
    for (const auto& [type, A, at] : limits) {
        EXPECT_EQ(A[static_cast<std::size_t>(equationOf(type).reference - 1)], kTc) << type;
        EXPECT_GT(evaluateEquation(type, A, 499.0), 1e-4) << type;
        EXPECT_NEAR(evaluateEquation(type, A, kTc), at, 1e-10) << type;
        EXPECT_EQ(evaluateEquation(type, A, 500.001), kNoValue) << type;
    }
    // A negative base below the reference temperature is no value either, not an error.
    EXPECT_EQ(evaluateEquation(8, {1, 600, 0.5F, kTc}, 400), kNoValue);
    EXPECT_EQ(evaluateEquation(15, {1, 0.25F, -kTc, 0.28F}, 400), kNoValue);
}

TEST(Equations, raiseWhatArithmeticRefuses) {
    constexpr float kNaN = std::numeric_limits<float>::quiet_NaN(), kInfinity = std::numeric_limits<float>::infinity();
    // clang-format off
    const Point failures[] = {
        {6, {1, 1, -300}, 300, 11}, {6, {800, 0, 0}, 300, 6}, {7, {-1, 0.2F, 500}, 300, 5},
        {7, {0.2F, 0, 500}, 300, 5}, {8, {1, 500, 1, 500}, 300, 11}, {9, {1, 1, 1, 1}, -5, 5},
        {9, {1, 1, -300, 0}, 300, 11}, {10, {1, 1, 0, 0, -300}, 300, 11}, {11, {1, 1}, 0, 11}, {12, {1, 1}, -2, 5},
        {12, {1, -300}, 300, 11}, {13, {1, 1, 1, 1, 500, 1}, 0, 11}, {14, {1, 500}, -1, 5},
        {15, {1, 0, 500, 1}, 300, 11}, {16, {1, 1, 1, 1, 0, 0}, 0, 11}, {17, {1, 0, 1}, 300, 11},
        {17, {1, 1, 1}, 0, 11}, {18, {1, 1, 1, 1, 1}, 0, 11}, {18, {1, 1, 1, 1, 0.5F}, -1, 5},
        {18, {0, 0, 0, 1, 200}, 400, 6}, {19, {1, 0.5F, 0, 0}, -1, 5}, {19, {1, 1, -300, 0}, 300, 11},
        {1, {kNaN, 1}, 300, 6}, {5, {1, 1, 1, 1, 1, kInfinity}, 300, 6}, {6, {-kInfinity, 1, 1}, 300, 6},
        {6, {1, 1, kInfinity}, 300, 6}, {18, {1, 1, 1, -1, 120}, 400, 6}, {19, {1, kNaN, 0, 0}, 1, 6},
        {0, {}, 300, 9}, {99, {}, 300, 9},
    };
    // clang-format on
    for (const Point& f : failures) {
        EXPECT_EQ(errorNumber([&] { evaluateEquation(f.type, f.A, f.T); }), f.y) << "type " << f.type << " at " << f.T;
        EXPECT_EQ(errorNumber([&] { PreparedEquation(f.type, f.A)(f.T); }), f.y) << "type " << f.type << " at " << f.T;
    }
}

TEST(WaterDensity, agreesWithTheSaturatedLiquidOfIapws) {
    // IAPWS SR1-86(1992), verification values at the triple and the normal boiling point.
    EXPECT_NEAR(waterDensity(273.16), 999.789, 0.001);
    EXPECT_NEAR(waterDensity(373.1243), 958.365, 0.001);
    EXPECT_NEAR(waterDensity(647.096), 322, 1e-9);
    // The whole sum in 40-digit arithmetic.
    EXPECT_NEAR(waterDensity(298.15), 996.99933076296560797, 1e-10);
    EXPECT_NEAR(waterDensity(640.0), 481.94520478473767280, 1e-9);
    EXPECT_THROW(waterDensity(647.1), RunTimeError);
}

}  // namespace
}  // namespace velor::test
