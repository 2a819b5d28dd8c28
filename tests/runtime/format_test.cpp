#include <gtest/gtest.h>

#include <limits>

#include "runtime/numbers.h"
#include "velor/run_time_error.h"

namespace velor {
namespace {

TEST(Format, writesByPattern) {
    constexpr double kMost = std::numeric_limits<double>::max();
    // clang-format off
    const std::tuple<double, const char*, const char*> cases[] = {
        {0, "0.0000", "0.0000"}, {0, "#0", "0"}, {0, "#", ""}, {0, "#.#", "."}, {0, "000", "000"},
        {0, "0.0000E+00", "0.0000E+00"}, {7, "000", "007"}, {1234, "000", "1234"}, {-7, "000", "-007"},
        {350, "#0.0", "350.0"}, {0.5, "#0.0", "0.5"}, {0.5, "#.0", ".5"}, {12.5, "#0.0##", "12.5"},
        {12.3456, "#0.0##", "12.346"},
        // Halves away from zero, of the decimal number and not of the binary one.
        {0.5, "0", "1"}, {1.5, "0", "2"}, {2.5, "0", "3"}, {-2.5, "0", "-3"}, {0.125, "0.00", "0.13"},
        {1.005, "0.00", "1.01"}, {2.675, "0.00", "2.68"}, {0.285, "0.00", "0.29"}, {9.9995, "0.000", "10.000"},
        {99.95, "#0.0", "100.0"},
        {0.04999999999999999, "0.0", "0.1"},  // 15 digits make it 0.05
        {0.0499999999999999, "0.0", "0.0"},
        // A negative that rounds to zero keeps no sign.
        {-0.04, "0.0", "0.0"}, {-0.05, "0.0", "-0.1"}, {-0.0, "0.00", "0.00"},
        {-1e-300, "0.0000E+00", "-1.0000E-300"},
        // Exponents.
        {12345.678, "0.0000E+00", "1.2346E+04"}, {0.00001234567, "0.0000E+00", "1.2346E-05"},
        {9.99999e5, "0.0000E+00", "1.0000E+06"}, {101325, "0.000E+00", "1.013E+05"},
        {101325, "0.000E-00", "1.013E05"}, {0.5, "0.0E-0", "5.0E-1"}, {12345, "00.0E+00", "12.3E+03"},
        {kMost, "0.0000E+00", "1.7977E+308"}, {5e-324, "0.00E+00", "4.94E-324"},
        // Beyond 15 digits only zeros.
        {123456789012345678.0, "0", "123456789012346000"}, {0.1 + 0.2, "0.00000000000000000", "0.30000000000000000"},
    };
    // clang-format on
    for (const auto& [value, pattern, text] : cases)
        EXPECT_EQ(Format(value, pattern), text) << value << " by " << pattern;
}

TEST(Format, refusesWhatItCannotWrite) {
    for (const char* pattern : {"", ".", "abc", "0.0.0", "0,0", "0E", "0E+", "E+00", "0.0E+00x", "#0 "})
        EXPECT_THROW(Format(1.0, pattern), RunTimeError) << pattern;
    EXPECT_THROW(Format(1.0, std::string(1000, '0')), RunTimeError);
    EXPECT_THROW(Format(std::numeric_limits<double>::infinity(), "0"), RunTimeError);
    EXPECT_THROW(Format(std::numeric_limits<double>::quiet_NaN(), "0"), RunTimeError);
}

}  // namespace
}  // namespace velor
