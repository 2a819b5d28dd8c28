// Compiled for the machine at hand and without regard to the last bits; see CMakeLists.txt.
#include "vector_floor.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <iostream>

namespace velor::bench {

namespace {

constexpr std::size_t kBlock = 256;  // points that fit the first-level cache with all that is kept of them

template <class Body>
void inBlocks(std::size_t count, const Body& body) {
    for (std::size_t first = 0; first < count; first += kBlock) body(first, std::min(kBlock, count - first));
}

void volumes(const RealGasFloor::Constants& gas, const double* t, const double* P, double* V, std::size_t count) {
    double theta[kBlock];
    for (std::size_t k = 0; k < count; ++k) {
        theta[k] = gas.v * gas.v / std::sqrt(t[k]);
        V[k] = kR * t[k] / (P[k] * 1e-6) + gas.b;
    }
    for (int step = 0; step < 30; ++step) {
        double largest = 0.0;
        for (std::size_t k = 0; k < count; ++k) {
            const double inverse = 1e6 / P[k], RTp = kR * t[k] * inverse, v = V[k];
            const double linear = theta[k] * inverse - gas.b * RTp - gas.b * gas.b;
            const double change =
                (((v - RTp) * v + linear) * v - theta[k] * gas.b * inverse) / ((3.0 * v - 2.0 * RTp) * v + linear);
            V[k] = v - change;
            largest = std::max(largest, std::abs(change));
        }
        if (largest < 0.01) break;
    }
}

void addPower(const TKorelace& block, double weight, const double* t, const double* lnT, double* sum,
              std::size_t count) {
    const double a = block.A[0], b = block.A[1], c = block.A[2], d = block.A[3];
    for (std::size_t k = 0; k < count; ++k) {
        const double square = t[k] * t[k];
        sum[k] += weight * (a * std::exp(b * lnT[k]) * square / (square + c * t[k] + d));
    }
}

void addPolynomial(const TKorelace& block, double weight, const double* t, double* sum, std::size_t count) {
    double a[6] = {};
    for (int j = 0; j <= block.Typ; ++j) a[j] = block.A[static_cast<std::size_t>(j)];
    for (std::size_t k = 0; k < count; ++k)
        sum[k] += weight * (a[0] + t[k] * (a[1] + t[k] * (a[2] + t[k] * (a[3] + t[k] * (a[4] + t[k] * a[5])))));
}

}  // namespace

void vectorEquation(const TKorelace& block, const Points& points, Points& values) {
    const std::array<double, 6> a{block.A[0], block.A[1], block.A[2], block.A[3], block.A[4], block.A[5]};
    const double* T = points.data();
    double* y = values.data();
    const std::size_t n = points.size();
    const double ratio = a[0] / a[1], lnB = std::log(a[1]), inverse = 1.0 / a[2], ln10 = std::log(10.0);
    switch (block.Typ) {
        case 10:
            for (std::size_t k = 0; k < n; ++k)
                y[k] = std::exp(ln10 * (a[0] + a[1] / (a[4] + T[k]) + T[k] * (a[2] + T[k] * a[3])));
            return;
        case 13:
            for (std::size_t k = 0; k < n; ++k) {
                const double t = 1.0 - T[k] / a[4], cube = t * t * t;
                const double sum = a[0] * t + a[1] * t * std::sqrt(t) + a[2] * cube + a[3] * cube * cube;
                y[k] = a[5] * std::exp(sum * a[4] / T[k]);
            }
            return;
        case 15:
            for (std::size_t k = 0; k < n; ++k)
                y[k] = ratio * std::exp(-lnB * std::exp(a[3] * std::log(1.0 - T[k] * inverse)));
            return;
        case 18:
            for (std::size_t k = 0; k < n; ++k) {
                const double lnT = std::log(T[k]);
                y[k] = std::exp(a[0] + a[1] / T[k] + a[2] * lnT + a[3] * std::exp(a[4] * lnT));
            }
            return;
        case 19:
            for (std::size_t k = 0; k < n; ++k) {
                const double square = T[k] * T[k];
                y[k] = a[0] * std::exp(a[1] * std::log(T[k])) * square / (square + a[2] * T[k] + a[3]);
            }
            return;
        default:
            std::cerr << "No vector floor of type " << block.Typ << '\n';
            std::exit(1);
    }
}

void vectorGasViscosity(const std::vector<TLatka>& records, const std::vector<double>& x, const Points& T,
                        Points& values) {
    double total = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i) total += x[i] * std::sqrt(double{records[i].Mv});
    inBlocks(T.size(), [&](std::size_t first, std::size_t count) {
        double lnT[kBlock], sum[kBlock];
        const double* t = T.data() + first;
        for (std::size_t k = 0; k < count; ++k) {
            lnT[k] = std::log(t[k]);
            sum[k] = 0.0;
        }
        for (std::size_t i = 0; i < x.size(); ++i) {
            const TKorelace& block = records[i].Korelace[kETAG - 1];
            const double weight = x[i] * std::sqrt(double{records[i].Mv}) / total;
            if (block.Typ == 19)
                addPower(block, weight, t, lnT, sum, count);
            else
                addPolynomial(block, weight, t, sum, count);
        }
        std::copy_n(sum, count, values.data() + first);
    });
}

void vectorGasVolume(const RealGasFloor::Constants& gas, const Points& T, const Points& P, Points& values) {
    inBlocks(T.size(), [&](std::size_t first, std::size_t count) {
        volumes(gas, T.data() + first, P.data() + first, values.data() + first, count);
    });
}

void vectorGasEnthalpy(const RealGasFloor::Constants& gas, const Points& T, const Points& P, Points& values) {
    inBlocks(T.size(), [&](std::size_t first, std::size_t count) {
        double V[kBlock];
        volumes(gas, T.data() + first, P.data() + first, V, count);
        const double* t = T.data() + first;
        const double* p = P.data() + first;
        double* h = values.data() + first;
        const auto& a = gas.Cp;
        for (std::size_t k = 0; k < count; ++k) {
            const double theta = gas.v * gas.v / std::sqrt(t[k]), L = std::log(1.0 + gas.b / V[k]) / gas.b;
            const double ideal =
                t[k] * (a[0] + t[k] * (a[1] / 2 +
                                       t[k] * (a[2] / 3 + t[k] * (a[3] / 4 + t[k] * (a[4] / 5 + t[k] * a[5] / 6)))));
            h[k] = gas.enthalpy + ideal + p[k] * 1e-6 * V[k] - kR * t[k] - 1.5 * theta * L;
        }
    });
}

}  // namespace velor::bench
