#include "runtime/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "runtime/checked.h"
#include "velor/run_time_error.h"
#include "velor/smes.h"

namespace velor {
namespace {

template <class Body>
int errorOf(const Body& body) {
    try {
        body();
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return 0;
}

TEST(Hodnota, readsTheNumberThatATextBeginsWith) {
    const std::pair<const char*, double> cases[] = {
        {"1,5", 1.5},        {"1.5", 1.5},
        {"  2.5", 2.5},      {"12abc", 12},
        {"abc", 0},          {"", 0},
        {"-3", -3},          {"+4", 4},
        {"--5", 0},          {"- 5", 0},
        {"1 2", 1},          {".5", 0.5},
        {"5.", 5},           {".", 0},
        {"1.2.3", 1.2},      {"1,2,3", 1.2},
        {"1e3", 1000},       {"1E-2x", 0.01},
        {"1e", 1},           {"1e+", 1},
        {"e5", 0},           {"0x10", 0},
        {"inf", 0},          {"nan", 0},
        {"1e-999", 0},       {"0e999", 0},
        {"-1e-999", 0},      {"\t7", 0},
        {"0.0000001e8", 10}, {"1e99999999999999999999x", -1},  // -1: error 6
        {"1e400", -1},
    };
    for (const auto& [text, value] : cases) {
        if (value == -1) {
            EXPECT_EQ(errorOf([&] { Smes::Hodnota(text); }), RunTimeError::kOverflow) << text;
        } else {
            EXPECT_EQ(Smes::Hodnota(text), Variant(value)) << text;
        }
    }
    // A long way of writing a small number, and a large one.
    EXPECT_EQ(Smes::Hodnota("0." + std::string(400, '0') + "1").toDouble(), 0.0);
    EXPECT_EQ(errorOf([] { Smes::Hodnota("1" + std::string(400, '0') + ".0"); }), RunTimeError::kOverflow);
    EXPECT_EQ(Smes::Hodnota("0." + std::string(400, '0') + "1e401").toDouble(), 1.0);
}

TEST(Numbers, roundToIntegersHalvesToEven) {
    const std::pair<double, int> cases[] = {{0.5, 0},   {1.5, 2},   {2.5, 2},        {-0.5, 0},
                                            {-1.5, -2}, {-2.5, -2}, {32767.4, 32767}};
    for (const auto& [value, rounded] : cases) EXPECT_EQ(roundToInt16(value), rounded) << value;
    for (const double value : {32767.5, -32768.6, 1e300, std::nan("")})
        EXPECT_EQ(errorOf([&] { roundToInt16(value); }), RunTimeError::kOverflow) << value;
    EXPECT_EQ(errorOf([] { checkedInt16(32768); }), RunTimeError::kOverflow);
}

TEST(Numbers, haveTexts) {
    EXPECT_EQ(Str(57), " 57");
    EXPECT_EQ(Str(0), " 0");
    EXPECT_EQ(Str(-5), "-5");
    EXPECT_EQ(shortestText(0.1 + 0.2), "0.3");
    EXPECT_EQ(shortestText(101325), "101325");
    EXPECT_EQ(shortestText(1e-5), "1E-05");
    EXPECT_EQ(shortestText(1e20), "1E+20");
}

TEST(CheckedArithmetic, raisesTheClassicErrors) {
    constexpr double inf = std::numeric_limits<double>::infinity();
    const double nan = std::nan("");
    const std::pair<int, double (*)(double)> zero[] = {
        {RunTimeError::kDivisionByZero, [](double x) { return checked::divide(1, x); }},
        {RunTimeError::kDivisionByZero, [](double x) { return checked::divide(x, x); }},
        {RunTimeError::kInvalidCall, [](double x) { return checked::naturalLogarithm(x); }},
        {RunTimeError::kInvalidCall, [](double x) { return checked::power(x, -1); }},
    };
    for (const auto& [number, function] : zero) EXPECT_EQ(errorOf([&] { function(0.0); }), number);
    EXPECT_EQ(errorOf([] { checked::squareRoot(-1); }), RunTimeError::kInvalidCall);
    EXPECT_EQ(errorOf([] { checked::power(-8, 1.0 / 3); }), RunTimeError::kInvalidCall);
    EXPECT_EQ(checked::power(-2, 3), -8);
    EXPECT_EQ(errorOf([] { checked::exponential(710); }), RunTimeError::kOverflow);
    EXPECT_EQ(errorOf([] { checked::divide(1e300, 1e-300); }), RunTimeError::kOverflow);
    // What is not finite must not vanish in 1/infinity, exp(-infinity), 1^NaN or NaN^0.
    for (const double bad : {inf, -inf, nan}) {
        EXPECT_NE(errorOf([&] { checked::divide(1, bad); }), 0);
        EXPECT_NE(errorOf([&] { checked::exponential(bad); }), 0);
        EXPECT_NE(errorOf([&] { checked::naturalLogarithm(bad); }), 0);
        EXPECT_NE(errorOf([&] { checked::squareRoot(bad); }), 0);
        EXPECT_NE(errorOf([&] { checked::power(1, bad); }), 0);
        EXPECT_NE(errorOf([&] { checked::power(bad, 0); }), 0);
    }
}

}  // namespace
}  // namespace velor
