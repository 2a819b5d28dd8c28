// Viscosity and conductivity of the gas at low pressure by the bare arithmetic.
#pragma once

#include <array>
#include <cmath>
#include <vector>

#include "floor_equation.h"
#include "properties/pure_value.h"

namespace velor::bench {

class GasFloor {
  public:
    explicit GasFloor(const std::vector<TLatka>& records) {
        for (const TLatka& record : records) {
            components_.push_back({FloorEquation(record.Korelace[kETAG - 1]), FloorEquation(record.Korelace[kALAG - 1]),
                                   std::sqrt(double{record.Mv})});
            for (const TLatka& other : records) {
                const double ratio = record.Mv / other.Mv;  // in single precision, as the library holds it
                pairs_.push_back({1.0 / std::sqrt(std::sqrt(ratio)), 0.35355 / std::sqrt(1.0 + ratio)});
            }
        }
    }

    // Herning and Zipperer (1936).
    double viscosity(double T, const std::vector<double>& x) const {
        const double lnT = std::log(T);
        double numerator = 0.0, denominator = 0.0;
        for (std::size_t i = 0; i < components_.size(); ++i) {
            const double weight = x[i] * components_[i].rootOfM;
            numerator += weight * components_[i].viscosity(T, lnT);
            denominator += weight;
        }
        return numerator / denominator;
    }

    // Wassiljewa (1904) with the factor of Mason and Saxena (1958).
    double conductivity(double T, const std::vector<double>& x) const {
        const std::size_t n = components_.size();
        const double lnT = std::log(T);
        std::array<double, 20> root, reciprocal;
        for (std::size_t i = 0; i < n; ++i) {
            root[i] = std::sqrt(components_[i].viscosity(T, lnT));
            reciprocal[i] = 1.0 / root[i];
        }
        double sum = 0.0;
        for (std::size_t i = 0; i < n; ++i) {
            double row = x[i];
            for (std::size_t j = 0; j < n; ++j) {
                if (j == i) continue;
                const Pair& pair = pairs_[i * n + j];
                const double factor = 1.0 + root[i] * reciprocal[j] * pair.ratioRoot;
                row += x[j] * pair.weight * factor * factor;
            }
            sum += x[i] * components_[i].conductivity(T, lnT) / row;
        }
        return sum;
    }

  private:
    struct Component {
        FloorEquation viscosity, conductivity;
        double rootOfM;
    };
    struct Pair {
        double ratioRoot, weight;
    };
    std::vector<Component> components_;
    std::vector<Pair> pairs_;
};

}  // namespace velor::bench
