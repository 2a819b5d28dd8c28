// Variant: the value that a host passes in and receives, as scripting hosts know it.
#pragma once

#include <cmath>
#include <concepts>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "velor/run_time_error.h"

namespace velor {

class Variant {
  public:
    enum class Kind { Empty, Null, Missing, Boolean, Int16, Int32, Single, Double, Date, Text, Array };

    // Implicit from numbers and texts, so that smes.ROLW(350.0, X) reads as it should; never from containers, whose
    // lower bound has to be said (see List, Numbers and Fractions).
    Variant() noexcept = default;
    Variant(bool value) noexcept : value_(value) {}
    Variant(std::int16_t value) noexcept : value_(value) {}
    Variant(float value) noexcept : value_(value) {}
    Variant(double value) noexcept : value_(value) {}
    Variant(std::string value) : value_(std::move(value)) {}
    Variant(std::string_view value) : value_(std::string(value)) {}
    Variant(const char* value) : value_(std::string(value)) {}
    Variant(char* value) : value_(std::string(value)) {}

    // A 32-bit integer; a larger number becomes a double.
    template <std::integral Integer>
    Variant(Integer value) noexcept {
        if (std::in_range<std::int32_t>(value)) {
            value_ = static_cast<std::int32_t>(value);
        } else {
            value_ = static_cast<double>(value);
        }
    }
    template <class Pointer>
    Variant(Pointer*) = delete;  // would become a boolean

    static Variant null() { return Variant(Storage(Null{})); }
    static Variant missing() { return Variant(Storage(Missing{})); }           // an optional argument that was left out
    static Variant date(double days) { return Variant(Storage(Date{days})); }  // days since 1899-12-30
    // Error 9: the indices, with one to spare at either end, do not fit an int.
    static Variant array(int lowerBound, std::vector<Variant> elements);

    Kind kind() const noexcept { return static_cast<Kind>(value_.index()); }
    bool isEmpty() const noexcept { return kind() == Kind::Empty; }
    bool isMissing() const noexcept { return kind() == Kind::Missing; }
    bool isArray() const noexcept { return kind() == Kind::Array; }

    // The number held. Empty counts as 0, true as -1, a date as its days; a text must be a number with "," or "." as
    // the decimal separator. Errors: 6 NaN or infinity, 13 no number, 94 Null.
    double toDouble() const {
        if (const double* number = std::get_if<double>(&value_); number && std::isfinite(*number)) [[likely]]
            return *number;
        return convertToDouble();
    }
    // As toDouble; beyond the range of single precision is error 6.
    float toSingle() const;
    // As toDouble, rounded to the nearest integer, halves to even; beyond -32768..32767 is error 6.
    std::int16_t toInt16() const;
    // The text held, or a number in 15 significant digits with "."; Empty gives "", a boolean "True" or "False".
    // Errors: 13 for an array or a missing argument, 94 Null.
    std::string toText() const;

    // Arrays. Anything but an array raises 13, an index outside the bounds 9.
    int lowerBound() const { return heldArray().lowerBound; }
    int upperBound() const;  // lower bound - 1 for an empty array
    const Variant& at(int index) const {
        const Array& array = heldArray();
        const std::int64_t offset = static_cast<std::int64_t>(index) - array.lowerBound;
        if (offset < 0 || static_cast<std::size_t>(offset) >= array.elements.size()) [[unlikely]]
            raise(RunTimeError::kSubscript);
        return array.elements[static_cast<std::size_t>(offset)];
    }
    Variant& at(int index) { return const_cast<Variant&>(std::as_const(*this).at(index)); }

    friend bool operator==(const Variant&, const Variant&) = default;

  private:
    struct Null {
        bool operator==(const Null&) const = default;
    };
    struct Missing {
        bool operator==(const Missing&) const = default;
    };
    struct Date {
        double days;
        bool operator==(const Date&) const = default;
    };
    struct Array {
        int lowerBound;
        std::vector<Variant> elements;
        bool operator==(const Array& other) const {
            return lowerBound == other.lowerBound && elements == other.elements;
        }
    };
    // In the order of Kind.
    using Storage = std::variant<std::monostate, Null, Missing, bool, std::int16_t, std::int32_t, float, double, Date,
                                 std::string, Array>;

    explicit Variant(Storage value) : value_(std::move(value)) {}
    double convertToDouble() const;
    const Array& heldArray() const {
        const Array* array = std::get_if<Array>(&value_);
        if (!array) [[unlikely]]
            raise(RunTimeError::kTypeMismatch);
        return *array;
    }
    [[noreturn]] static void raise(RunTimeError::Number number);

    Storage value_;
};

// An array counted from 0, of numbers or texts: List({1, 57}).
Variant List(std::initializer_list<Variant> elements);
Variant List(std::span<const int> elements);

// An array of doubles counted from 1, as the composition arguments are: Fractions({0.4, 0.6}).
Variant Numbers(std::span<const double> elements);
Variant Fractions(std::initializer_list<double> elements);
Variant Fractions(std::span<const double> elements);

}  // namespace velor
