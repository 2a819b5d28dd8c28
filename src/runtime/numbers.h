// Numbers and texts, independent of any locale.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "runtime/checked.h"
#include "velor/text.h"

namespace velor {

// Rounds to the nearest integer, halves to even; beyond the type's range or not finite is error 6.
std::int16_t roundToInt16(double value);

// A 16-bit argument that arrives as int: beyond the range is error 6.
inline std::int16_t checkedInt16(int value) {
    if (!std::in_range<std::int16_t>(value)) [[unlikely]]
        checked::raise(RunTimeError::kOverflow);
    return static_cast<std::int16_t>(value);
}
inline void requireInt16(std::initializer_list<int> values) {
    for (const int value : values) checkedInt16(value);
}

// The longest number at the start of the text: leading blanks, sign, digits with one ".", exponent. Reading stops at
// the first character that cannot continue it; 0 where there is none. Beyond double precision is error 6.
double parseLeadingNumber(std::string_view text);

// Decimal text of n with a leading blank where n is not negative.
std::string Str(std::int32_t n);

// The number in at most 15 significant digits, "1E-05" style beyond the fixed range.
std::string shortestText(double value);

// A pattern of "#" and "0" digits, one "." and an exponent "E+00" or "E-00", for many numbers. Rounds the decimal
// number of 15 significant digits, halves away from zero; a negative that rounds to zero keeps no sign.
class NumberPattern {
  public:
    // Error 5: a pattern of another form.
    explicit NumberPattern(std::string_view text);

    // Error 6: a value that is not finite.
    void append(std::string& out, double value) const;

  private:
    struct Decimal;

    void appendUnits(std::string& out, std::int64_t units) const;
    void appendFixed(std::string& out, const Decimal& number) const;
    void appendScientific(std::string& out, double value) const;
    void appendExponent(std::string& out, int exponent) const;

    int integerPlaces_ = 0;       // "#" and "0" before the point
    int leastIntegerDigits_ = 0;  // "0" before the point
    bool point_ = false;
    int mostDecimals_ = 0;    // "#" and "0" behind the point
    int leastDecimals_ = 0;   // "0" behind the point
    int exponentDigits_ = 0;  // 0: no exponent
    bool exponentPlus_ = false;
};

// Text of a number by a pattern. Errors: those of NumberPattern.
std::string Format(double value, std::string_view pattern);

}  // namespace velor
