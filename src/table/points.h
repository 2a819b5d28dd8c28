// What every table of points reads and how it is divided: arrays in a caller's order, threads.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <thread>
#include <vector>

#include "properties/property_point.h"
#include "velor/table.h"

namespace velor {

// Error 9.
[[noreturn]] void refuse();

// One number for all points or one each; any other length is error 9.
class Series {
  public:
    Series(std::span<const double> values, std::size_t points) : values_(values), step_(values.size() == 1 ? 0 : 1) {
        if (values.size() != 1 && values.size() != points) refuse();
    }
    double operator[](std::size_t point) const { return values_[point * step_]; }
    const double* from(std::size_t point) const { return &values_[point * step_]; }
    std::size_t step() const { return step_; }

  private:
    std::span<const double> values_;
    std::size_t step_;
};

// Where the last of so many lies, told without multiplying what a caller made up. Error 9 beyond the most.
std::size_t lastOffset(std::size_t count, std::ptrdiff_t stride, std::size_t most);

// Error 9: the fractions of those points lead out of the values.
void requireInside(const Compositions& X, std::size_t components, std::size_t points);

// The mole fractions of a point; false where they are none.
class FractionReader {
  public:
    FractionReader(const PreparedComponents& mixture, const Compositions& X);
    bool read(std::size_t point, std::array<double, kMostComponents>& x) const;

  private:
    bool toMoles(std::span<double> fractions) const;

    const Compositions& X_;
    std::size_t count_;
    std::array<double, kMostComponents> molarMasses_{};
};

// How many parts the points are divided into: one a thread, as far as there are points, up to 256.
inline std::size_t partsOf(std::size_t points, int threads) {
    constexpr std::size_t kMostThreads = 256;
    return std::min({static_cast<std::size_t>(std::max(threads, 1)), kMostThreads, points});
}

// Divides the points evenly among the threads; each takes a run of neighbours.
template <class Work>
void divide(std::size_t points, int threads, const Work& work) {
    if (points == 0) return;
    const std::size_t parts = partsOf(points, threads);
    std::vector<std::jthread> others;
    for (std::size_t part = 1; part < parts; ++part)
        others.emplace_back(
            [&work, from = points * part / parts, to = points * (part + 1) / parts] { work(from, to); });
    work(0, points / parts);
}

}  // namespace velor
