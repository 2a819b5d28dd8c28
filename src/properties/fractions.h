// A composition as it was passed, and numbers kept per component.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

#include "object/state.h"
#include "runtime/checked.h"
#include "velor/variant.h"

namespace velor {

// Fractions at indices 1..n, an array of the host's or of our own. An index outside it raises 9, an element that is no
// number 13, what is no array 13.
class Composition {
  public:
    explicit Composition(const Variant& X) : host_(&X) {}
    explicit Composition(std::span<const double> x) : own_(x) {}

    double at(int i) const {
        if (host_) return host_->at(i).toDouble();
        if (i < 1 || static_cast<std::size_t>(i) > own_.size()) checked::raise(RunTimeError::kSubscript);
        return own_[static_cast<std::size_t>(i - 1)];
    }

  private:
    const Variant* host_ = nullptr;
    std::span<const double> own_;
};

// One number for each of a count of components (at most 20), counted from 1; zero at first. Outside them error 9.
class ComponentValues {
  public:
    explicit ComponentValues(int count = ComponentSlots::kCount)
        : count_(std::clamp(count, 0, ComponentSlots::kCount)) {
        // Only these, and in pairs: what fills a block at once takes longer to start than a rule to compute.
        for (std::size_t i = 0; i < static_cast<std::size_t>(count_); i += 2) values_[i] = values_[i + 1] = 0.0;
    }

    double& operator[](int i) {
        if (i < 1 || i > count_) [[unlikely]]
            checked::raise(RunTimeError::kSubscript);
        return values_[static_cast<std::size_t>(i - 1)];
    }
    std::span<const double> first(int n) const {
        if (n > count_) checked::raise(RunTimeError::kSubscript);
        return std::span(values_).first(static_cast<std::size_t>(std::max(n, 0)));
    }

  private:
    int count_;
    static_assert(ComponentSlots::kCount % 2 == 0);
    std::array<double, ComponentSlots::kCount> values_;
};

// Reads fraction i and keeps it as the last call's composition.
inline double takeFraction(State& state, const Composition& X, int i) {
    const double x = X.at(i);
    state.last.Slozeni.set(i, x);
    return x;
}

inline ComponentValues takeFractions(State& state, const Composition& X) {
    ComponentValues x(state.definition.PocSlozek);
    for (int i = 1; i <= state.definition.PocSlozek; ++i) x[i] = takeFraction(state, X, i);
    return x;
}

}  // namespace velor
