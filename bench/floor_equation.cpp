#include "floor_equation.h"

#include <algorithm>

namespace velor::bench {

namespace {

constexpr double kLn10 = 2.302585092994046;

}  // namespace

// The comments at the cases of the operator say what the constants become.
FloorEquation::FloorEquation(const TKorelace& block) : type_(block.Typ) {
    std::copy(block.A.begin(), block.A.end(), c_.begin());
    const auto A = c_;
    usesLogarithm_ = type_ == 9 || type_ == 14 || type_ == 18 || type_ == 19;
    switch (type_) {
        case 7:
            c_ = {std::log(1000.0 * A[0]), std::log(A[1]), 1.0 / A[2]};
            break;
        case 8:
            c_ = {A[0] * std::exp(-A[2] * std::log(A[3] - A[1])), 0.0, A[2], A[3]};
            break;
        case 9:
            c_ = {kLn10 * A[0], kLn10 * A[1], A[2], A[3], kLn10 * A[4], kLn10 * A[5]};
            break;
        case 10:
            c_ = {kLn10 * A[0], kLn10 * A[1], kLn10 * A[2], kLn10 * A[3], A[4]};
            break;
        case 14:
            c_ = {A[0] * std::exp(0.166667 * std::log(A[1])), 1.0 / A[1]};
            break;
        case 15:
            c_ = {A[0] / A[1], std::log(A[1]), 1.0 / A[2], A[3]};
            break;
        case 17:
            c_ = {kLn10 * (A[2] - A[0] / A[1]), kLn10 * A[0]};
            break;
        default:
            break;
    }
}

double FloorEquation::operator()(double T, double lnT) const {
    const auto& c = c_;
    switch (type_) {
        case 1:
            return c[0] + T * c[1];
        case 2:
            return c[0] + T * (c[1] + T * c[2]);
        case 3:
            return c[0] + T * (c[1] + T * (c[2] + T * c[3]));
        case 4:
            return c[0] + T * (c[1] + T * (c[2] + T * (c[3] + T * c[4])));
        case 5:
            return c[0] + T * (c[1] + T * (c[2] + T * (c[3] + T * (c[4] + T * c[5]))));
        case 6:
            return std::exp(c[0] + c[1] / (c[2] + T));
        case 7:  // ln(1000 A1), ln A2, 1/A3
            return std::exp(c[0] - c[1] * std::exp(0.285714 * std::log(1.0 - T * c[2])));
        case 8:  // A1 (A4 - A2)^-A3
            return c[0] * std::exp(c[2] * std::log(c[3] - T));
        case 9:  // natural logarithms
            return std::exp(c[0] + c[1] / (c[2] + T) + c[3] * lnT + T * (c[4] + T * c[5]));
        case 10:  // the same
            return std::exp(c[0] + c[1] / (c[4] + T) + T * (c[2] + T * c[3]));
        case 11: {
            const double r = 1.0 / T;
            return std::exp(c[0] + r * (c[1] + r * (c[2] + r * c[3])));
        }
        case 12:
            return c[0] * T * std::sqrt(T) / (T + c[1]);
        case 13: {
            const double t = 1.0 - T / c[4], cube = t * t * t;
            return c[5] * std::exp((t * (c[0] + c[1] * std::sqrt(t)) + cube * (c[2] + c[3] * cube)) * c[4] / T);
        }
        case 14:  // A1 A2^(1/6), 1/A2
            return c[0] * std::exp(0.38 * std::log(1.0 - T * c[1]) - 0.166667 * lnT);
        case 15:  // A1/A2, ln A2, 1/A3
            return c[0] * std::exp(-c[1] * std::exp(c[3] * std::log(1.0 - T * c[2])));
        case 16: {
            const double r = T / c[5];
            return c[0] * (1.0 - r) * (c[1] + r * (c[2] + r * c[3]));
        }
        case 17:  // ln 10 (A3 - A1/A2), ln 10 A1
            return std::exp(c[0] + c[1] / T);
        case 18: {
            const double power = c[4] == 2.0 ? T * T : std::exp(c[4] * lnT);
            return std::exp(c[0] + c[1] / T + c[2] * lnT + c[3] * power);
        }
        default:
            return c[0] * std::exp(c[1] * lnT) * T * T / (T * (T + c[2]) + c[3]);
    }
}

}  // namespace velor::bench
