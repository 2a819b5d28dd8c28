// Numbers of several points side by side, which a processor computes at once: the rules are written for any number, and
// this is one. Where a plain number raises a run-time error, a lane becomes NaN and stays so, and the others go on.
#pragma once

#include <cstddef>

namespace velor {

// Instructions tells a processor's: its Register (a vector of doubles), a Mask of whole numbers (what comparing two
// registers gives), exponential, logarithm, squareRoot of a register and any of a mask.
template <class Instructions>
class Lanes {
  public:
    using Register = typename Instructions::Register;

    // Several registers a number, so that what is done once for all of them, the calls above all, costs little a point.
    static constexpr std::size_t kRegisters = 8;
    static constexpr std::size_t kWidth = sizeof(Register) / sizeof(double);
    static constexpr std::size_t kCount = kRegisters * kWidth;

    class Mask {
      public:
        friend bool isAny(const Mask& mask) {
            typename Instructions::Mask all = mask.parts[0];
            for (std::size_t k = 1; k < kRegisters; ++k) all |= mask.parts[k];
            return Instructions::any(all);
        }
        friend bool isAll(const Mask& mask) { return !isAny(!mask); }
        friend Mask operator!(const Mask& a) {
            Mask mask;
            for (std::size_t k = 0; k < kRegisters; ++k) mask.parts[k] = ~a.parts[k];
            return mask;
        }
        friend Mask operator&(const Mask& a, const Mask& b) {
            Mask mask;
            for (std::size_t k = 0; k < kRegisters; ++k) mask.parts[k] = a.parts[k] & b.parts[k];
            return mask;
        }
        friend Mask operator|(const Mask& a, const Mask& b) {
            Mask mask;
            for (std::size_t k = 0; k < kRegisters; ++k) mask.parts[k] = a.parts[k] | b.parts[k];
            return mask;
        }

        typename Instructions::Mask parts[kRegisters];
    };

    Lanes() = default;
    Lanes(double all) {
        for (Register& part : parts_) part = Register{} + all;
    }

    static Lanes load(const double* values) {
        Lanes lanes;
        __builtin_memcpy(lanes.parts_, values, sizeof lanes.parts_);
        return lanes;
    }
    void store(double* values) const { __builtin_memcpy(values, parts_, sizeof parts_); }

    friend Lanes operator-(const Lanes& a) {
        return each(a, [](Register x) { return -x; });
    }
    friend Lanes operator+(const Lanes& a, const Lanes& b) {
        return each(a, b, [](Register x, Register y) { return x + y; });
    }
    friend Lanes operator-(const Lanes& a, const Lanes& b) {
        return each(a, b, [](Register x, Register y) { return x - y; });
    }
    friend Lanes operator*(const Lanes& a, const Lanes& b) {
        return each(a, b, [](Register x, Register y) { return x * y; });
    }
    friend Lanes operator/(const Lanes& a, const Lanes& b) {
        return each(a, b, [](Register x, Register y) { return x / y; });
    }
    Lanes& operator+=(const Lanes& other) { return *this = *this + other; }
    Lanes& operator-=(const Lanes& other) { return *this = *this - other; }
    Lanes& operator*=(const Lanes& other) { return *this = *this * other; }

    friend Mask operator<(const Lanes& a, const Lanes& b) {
        return compare(a, b, [](Register x, Register y) { return x < y; });
    }
    friend Mask operator<=(const Lanes& a, const Lanes& b) {
        return compare(a, b, [](Register x, Register y) { return x <= y; });
    }
    friend Mask operator>(const Lanes& a, const Lanes& b) { return b < a; }
    friend Mask operator>=(const Lanes& a, const Lanes& b) { return b <= a; }
    friend Mask isNan(const Lanes& a) {
        return compare(a, a, [](Register x, Register y) { return x != y; });
    }
    friend Lanes select(const Mask& mask, const Lanes& a, const Lanes& b) {
        Lanes lanes;
        for (std::size_t k = 0; k < kRegisters; ++k) lanes.parts_[k] = mask.parts[k] ? a.parts_[k] : b.parts_[k];
        return lanes;
    }
    friend Lanes absolute(const Lanes& a) { return select(a < 0.0, -a, a); }
    friend Lanes larger(const Lanes& a, const Lanes& b) { return select(a < b, b, a); }
    friend Lanes smaller(const Lanes& a, const Lanes& b) { return select(b < a, b, a); }

    // As runtime/checked.h has them for one number, but for this: an infinity stays one as long as it cannot vanish
    // again, as in 1/infinity, and it is finite() that ends it.
    friend Lanes finite(const Lanes& a) {
        return each(a, [](Register x) { return x + (x - x); });
    }
    friend Lanes divide(const Lanes& a, const Lanes& b) {
        return each(a, b, [](Register x, Register y) { return x / y + 0.0 * y; });
    }
    friend Lanes exponential(const Lanes& a) {
        return each(a, [](Register x) { return Instructions::exponential(x) + 0.0 * x; });
    }
    friend Lanes naturalLogarithm(const Lanes& a) {
        return each(a, [](Register x) { return Instructions::logarithm(x); });
    }
    friend Lanes plainLogarithm(const Lanes& a) { return naturalLogarithm(a); }
    friend Lanes squareRoot(const Lanes& a) {
        return each(a, [](Register x) { return Instructions::squareRoot(x); });
    }
    friend Lanes power(const Lanes& base, double exponent) { return exponential(exponent * naturalLogarithm(base)); }
    friend Lanes cubeRoot(const Lanes& a) { return power(a, 1.0 / 3.0); }
    // ln(1 + a): the second term is what rounding took from 1 + a.
    friend Lanes logarithmOfOnePlus(const Lanes& a) {
        const Lanes sum = 1.0 + a;
        return naturalLogarithm(sum) + (a - (sum - 1.0)) / sum;
    }

  private:
    template <class Function>
    static Lanes each(const Lanes& a, const Function& f) {
        Lanes lanes;
        for (std::size_t k = 0; k < kRegisters; ++k) lanes.parts_[k] = f(a.parts_[k]);
        return lanes;
    }
    template <class Function>
    static Lanes each(const Lanes& a, const Lanes& b, const Function& f) {
        Lanes lanes;
        for (std::size_t k = 0; k < kRegisters; ++k) lanes.parts_[k] = f(a.parts_[k], b.parts_[k]);
        return lanes;
    }
    template <class Function>
    static Mask compare(const Lanes& a, const Lanes& b, const Function& f) {
        Mask mask;
        for (std::size_t k = 0; k < kRegisters; ++k) mask.parts[k] = f(a.parts_[k], b.parts_[k]);
        return mask;
    }

    Register parts_[kRegisters];
};

}  // namespace velor
