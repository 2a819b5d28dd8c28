#include "velor/variant.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "velor/run_time_error.h"

namespace velor {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// The value of a conversion, or the number of the error it raises with 1000 taken off.
template <class Conversion>
double outcome(const Conversion& conversion) {
    try {
        return conversion();
    } catch (const RunTimeError& error) {
        return error.number() - 1000.0;
    }
}

constexpr double kError6 = 6 - 1000.0, kError13 = 13 - 1000.0, kError94 = 94 - 1000.0;

TEST(Variant, convertsEveryKindToNumbers) {
    // clang-format off
    const std::tuple<const char*, Variant, double, double, double> cases[] = {
        {"empty", Variant(), 0, 0, 0}, {"null", Variant::null(), kError94, kError94, kError94},
        {"missing", Variant::missing(), kError13, kError13, kError13}, {"true", true, -1, -1, -1},
        {"false", false, 0, 0, 0}, {"int16", std::int16_t{-5}, -5, -5, -5}, {"int32", 70000, 70000, 70000, kError6},
        {"int64", 5'000'000'000LL, 5e9, 5e9, kError6}, {"single", 2.5F, 2.5, 2.5, 2}, {"double", 3.5, 3.5, 3.5, 4},
        {"huge", 1e300, 1e300, kError6, kError6}, {"NaN", std::nan(""), kError6, kError6, kError6},
        {"infinity", -kInfinity, kError6, kError6, kError6},
        {"single infinity", static_cast<float>(kInfinity), kError6, kError6, kError6},
        {"date", Variant::date(45000.25), 45000.25, 45000.25, kError6}, {"text", "350", 350, 350, 350},
        {"decimal comma", " 0,5 ", 0.5, 0.5, 0}, {"decimal point", "-1.5e1", -15, -15, -15},
        {"empty text", "", kError13, kError13, kError13}, {"two commas", "1,2,3", kError13, kError13, kError13},
        {"word", "350 K", kError13, kError13, kError13}, {"infinite text", "inf", kError13, kError13, kError13},
        {"huge text", "1e999", kError6, kError6, kError6}, {"array", List({1}), kError13, kError13, kError13},
    };
    // clang-format on
    for (const auto& [what, value, asDouble, asSingle, asInt16] : cases) {
        EXPECT_EQ(outcome([&v = value] { return v.toDouble(); }), asDouble) << what;
        EXPECT_EQ(outcome([&v = value] { return static_cast<double>(v.toSingle()); }), asSingle) << what;
        EXPECT_EQ(outcome([&v = value] { return static_cast<double>(v.toInt16()); }), asInt16) << what;
    }
}

TEST(Variant, arraysHaveBounds) {
    Variant list = List({1, "dva", 3.0});
    list.at(2) = 4;
    EXPECT_EQ(list.at(1).toText() + list.at(2).toText(), "dva4");
    const Variant fractions = Fractions({0.4, 0.6});
    EXPECT_EQ(fractions.at(2).toDouble(), 0.6);
    for (const int outside : {0, 3, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_EQ(outcome([&] { return fractions.at(outside).toDouble(); }), 9 - 1000.0) << outside;
    const Variant none = List({});
    EXPECT_LT(none.upperBound(), none.lowerBound());
    EXPECT_EQ(outcome([] { return Variant(1.0).upperBound(); }), kError13);
}

}  // namespace
}  // namespace velor
