// Points fitted to the equations.
#include "baze/fit/fit.h"

#include <gtest/gtest.h>

#include <cmath>

#include "rules/equations.h"

namespace velor::baze {
namespace {

const PureProperty& property(const char* code) { return *findPureProperty(code); }

std::vector<MeasuredPoint> pointsOf(const TKorelace& block, double from, double to, int count) {
    std::vector<MeasuredPoint> points;
    for (int i = 0; i < count; ++i) {
        const double T = from + (to - from) * i / (count - 1);
        points.push_back({T, evaluateEquation(block.Typ, block.A, T)});
    }
    return points;
}

TEST(Fit, findsEachEquationAgain) {
    struct Case {
        int type;
        Coefficients A;
    };
    // clang-format off
    const Case cases[] = {
        {1, {50, 0.2F}}, {2, {50, 0.2F, -1e-4F}}, {3, {50, 0.2F, -1e-4F, 1e-7F}}, {4, {50, 0.2F, -1e-4F, 1e-7F, 3e-11F}},
        {5, {50, 0.2F, -1e-4F, 1e-7F, 3e-11F, -2e-14F}}, {6, {23.2F, -3816, -46}}, {7, {0.3F, 0.27F, 560}},
        {8, {40000, 250, 0.38F, 560}}, {9, {39.9F, -2085, -5, -11.8F, 0.0058F, 1.2e-6F}}, {10, {2.2F, -600, -0.002F, 1e-6F, -20}},
        {11, {-10.7F, 1046, 145102, -9919140}}, {12, {1.5e-6F, 120}}, {13, {-6.9F, 1.6F, -2.4F, -2.5F, 560, 5.6e6F}},
        {14, {5e4F, 560}}, {15, {0.9F, 0.27F, 560, 0.29F}}, {16, {1, 0.05F, 0.01F, -0.02F, 0, 560}}, {17, {900, 300, -3.2F}},
        {18, {73.6F, -7258, -7.3F, 4.2e-6F, 2}}, {19, {3.3e-7F, 0.7F, 60, 4000}}};
    // clang-format on
    ASSERT_EQ(std::size(cases), kEquations.size());
    for (const auto& [type, A] : cases) {
        SCOPED_TRACE(type);
        TKorelace block{A, static_cast<std::int16_t>(type), 1, 260, 500};
        const auto points = pointsOf(block, 260, 500, 41);
        FitOptions options;
        if (type == 13) options.Tkr = A[4], options.Pkr = A[5];
        const auto fit = fitted(type, points, property("CPG"), options);
        ASSERT_TRUE(fit);
        EXPECT_LT(fit->most, 1e-4);  // %
    }
}

// Vapour pressure of water as the steam tables have it (IAPWS-IF97), 0 to 200 °C.
const std::vector<MeasuredPoint> kSteam{{273.16, 611.657}, {293.15, 2339.3},  {313.15, 7384.9}, {333.15, 19946},
                                        {353.15, 47414},   {373.15, 101418},  {393.15, 198670}, {413.15, 361540},
                                        {433.15, 618230},  {453.15, 1002800}, {473.15, 1554900}};

TEST(Fit, followsTheSteamTables) {
    FitOptions options{647.096, 22.064e6, false, {}};
    const auto fits = bestFits(kSteam, property("TENS"), options);
    ASSERT_FALSE(fits.empty());
    EXPECT_LT(fits.front().most, 0.01);
    EXPECT_EQ(fits.front().doubt, "");
    EXPECT_NE(fits.back().doubt, "");  // a straight line is below zero in the cold
    // The tables' boiling point, which is none of the points.
    EXPECT_NEAR(curveValue(fits.front(), 373.124), 101325, 10);

    options.through = {{400.0, 250000}};
    const auto forced = fitted(6, kSteam, property("TENS"), options);
    EXPECT_NEAR(curveValue(*forced, 400.0), 250000, 0.5);
}

TEST(Fit, leavesOutliersOutWhereToldTo) {
    auto points = kSteam;
    points[4].value *= 1.5;
    FitOptions options{647.096, 22.064e6, true, {}};
    const auto fit = fitted(13, points, property("TENS"), options);
    ASSERT_TRUE(fit);
    EXPECT_EQ(fit->weights[4], 0.0);
    EXPECT_NEAR(curveValue(*fit, 353.15), 47414, 30);
    options.isRobust = false;
    EXPECT_GT(std::abs(curveValue(*fitted(13, points, property("TENS"), options), 353.15) - 47414), 1000);
}

TEST(Fit, readsPointsInPeoplesUnits) {
    LineFaults faults;
    const auto points = readPoints("\xEF\xBB\xBFT [°C],TENS [kPa],vaha\r\n100,\"101,418\",2\r\n0,0.6112,\r\n",
                                   property("TENS"), faults);
    ASSERT_TRUE(faults.empty()) << faults.front().reason;
    EXPECT_NEAR(points[0].T, 373.15, 1e-9);
    EXPECT_NEAR(points[0].value, 101418, 1e-6);
    EXPECT_EQ(points[0].weight, 2);
    EXPECT_EQ(points[1].weight, 1);
    struct Case {
        const char* text;
        int line;
        const char* reason;
    };
    const Case cases[] = {{"", 1, "žádné body"},
                          {"T,TENS\n300,1\n", 1, "aspoň dva"},
                          {"T,TENS\n300,1\n300,2\n", 1, "aspoň dva"},
                          {"T\n300\n", 1, "chybí sloupec TENS"},
                          {"T [R],TENS\n1,1\n", 1, "T: jednotka „R“"},
                          {"T,TENS [kg/m3]\n1,1\n", 1, "TENS: jednotka „kg/m3“"},
                          {"T,TENS,x\n1,1,1\n", 1, "x: neznámý sloupec"},
                          {"T,TENS\n300,1\nabc,2\n", 3, "T: „abc“ není číslo"},
                          {"T,TENS\n300,1\n310\n", 3, "TENS: „“ není číslo"},
                          {"T,TENS\n300,1\n310,-2\n", 3, "TENS: hodnota má být kladná"},
                          {"T,TENS\n300,1\n1e9,2\n", 3, "T: teplota má být"},
                          {"T,TENS,vaha\n300,1,1\n310,2,-1\n", 3, "vaha: váha"}};
    for (const auto& [text, line, reason] : cases) {
        LineFaults found;
        readPoints(text, property("TENS"), found);
        ASSERT_FALSE(found.empty()) << text;
        EXPECT_EQ(found.front().line, line) << text;
        EXPECT_NE(found.front().reason.find(reason), std::string::npos) << found.front().reason;
    }
}

}  // namespace
}  // namespace velor::baze
