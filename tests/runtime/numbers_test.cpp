#include "runtime/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "runtime/checked.h"
#include "support/sample_mixture.h"

namespace velor::test {
namespace {

TEST(Hodnota, readsTheNumberThatATextBeginsWith) {
    // clang-format off
    const std::pair<const char*, double> cases[] = {
        {"1,5", 1.5}, {"1.5", 1.5}, {" 2.5", 2.5}, {"12abc", 12}, {"abc", 0}, {"", 0}, {"-3", -3}, {"+4", 4},
        {"--5", 0}, {"- 5", 0}, {"1 2", 1}, {".5", 0.5}, {"5.", 5}, {".", 0}, {"1.2.3", 1.2}, {"1,2,3", 1.2},
        {"1e3", 1000}, {"1E-2x", 0.01}, {"1e", 1}, {"1e+", 1}, {"e5", 0}, {"0x10", 0}, {"inf", 0}, {"nan", 0},
        {"1e-999", 0}, {"0e999", 0}, {"-1e-999", 0}, {"\t7", 0}, {"0.0000001e8", 10}, {"1e99999999999999999999x", -1},
        {"1e400", -1},
    };
    // clang-format on
    for (const auto& [text, value] : cases) {
        if (value == -1) {  // error 6
            EXPECT_EQ(errorNumber([&] { Smes::Hodnota(text); }), RunTimeError::kOverflow) << text;
        } else {
            EXPECT_EQ(Smes::Hodnota(text), Variant(value)) << text;
        }
    }
    // A long way of writing a small number, and a large one.
    EXPECT_EQ(Smes::Hodnota("0." + std::string(400, '0') + "1").toDouble(), 0.0);
    EXPECT_EQ(errorNumber([] { Smes::Hodnota("1" + std::string(400, '0') + ".0"); }), RunTimeError::kOverflow);
    EXPECT_EQ(Smes::Hodnota("0." + std::string(400, '0') + "1e401").toDouble(), 1.0);
}

TEST(Numbers, roundToIntegersHalvesToEven) {
    const std::pair<double, int> cases[] = {{0.5, 0},   {1.5, 2},   {2.5, 2},        {-0.5, 0},
                                            {-1.5, -2}, {-2.5, -2}, {32767.4, 32767}};
    for (const auto& [value, rounded] : cases) EXPECT_EQ(roundToInt16(value), rounded) << value;
    for (const double value : {32767.5, -32768.6, 1e300, std::nan("")})
        EXPECT_EQ(errorNumber([&] { roundToInt16(value); }), RunTimeError::kOverflow) << value;
    EXPECT_EQ(errorNumber([] { checkedInt16(32768); }), RunTimeError::kOverflow);
}

TEST(CheckedArithmetic, raisesTheClassicErrors) {
    constexpr double inf = std::numeric_limits<double>::infinity();
    const std::pair<int, double (*)()> cases[] = {
        {11, [] { return checked::divide(1, 0); }},       {11, [] { return checked::divide(0, 0); }},
        {5, [] { return checked::naturalLogarithm(0); }}, {5, [] { return checked::power(0, -1); }},
        {5, [] { return checked::squareRoot(-1); }},      {5, [] { return checked::power(-8, 1.0 / 3); }},
        {6, [] { return checked::exponential(710); }},    {6, [] { return checked::divide(1e300, 1e-300); }},
    };
    for (const auto& [number, body] : cases) EXPECT_EQ(errorNumber(body), number);
    EXPECT_EQ(checked::power(-2, 3), -8);
    // What is not finite must not vanish in 1/infinity, exp(-infinity), 1^NaN or NaN^0.
    double (*const functions[])(double) = {[](double x) { return checked::divide(1, x); },
                                           checked::exponential,
                                           checked::naturalLogarithm,
                                           checked::squareRoot,
                                           [](double x) { return checked::power(1, x); },
                                           [](double x) { return checked::power(x, 0); }};
    for (const auto function : functions)
        for (const double bad : {inf, -inf, std::nan("")}) EXPECT_NE(errorNumber([&] { function(bad); }), 0);
}

}  // namespace
}  // namespace velor::test
