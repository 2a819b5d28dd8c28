#include "comparison.h"

#include <cmath>
#include <cstdlib>
#include <iostream>

namespace velor::bench {

void requireAgreement(const std::string& task, double ours, double floor, double tolerance) {
    if (std::abs(ours - floor) <= tolerance * std::abs(ours)) return;
    std::cerr.precision(17);
    std::cerr << task << ": the library gives " << ours << ", the floor " << floor << '\n';
    std::exit(1);
}

std::vector<double> evenly(double first, double last, std::size_t count) {
    std::vector<double> values;
    for (std::size_t k = 0; k < count; ++k)
        values.push_back(first + (last - first) * static_cast<double>(k) / static_cast<double>(count - 1));
    return values;
}

}  // namespace velor::bench
