// Density and viscosity of the liquid.
#include <cmath>
#include <string>

#include "comparison.h"
#include "floor_equation.h"
#include "mixture.h"
#include "properties/pure_value.h"

namespace velor::bench {

namespace {

class LiquidFloor {
  public:
    explicit LiquidFloor(const std::vector<TLatka>& records) {
        for (const TLatka& record : records)
            components_.push_back({FloorEquation(record.Korelace[kROLW - 1]), FloorEquation(record.Korelace[kETAL - 1]),
                                   record.Mv, record.Tkr, record.Vkr});
    }

    double density(double T, const std::vector<double>& x) const {
        const std::size_t n = components_.size();
        if (n == 1) return components_[0].density(T);
        double M = 0.0, volume = 0.0, temperature = 0.0, molarVolume = 0.0;
        for (std::size_t i = 0; i < n; ++i) {
            const Component& c = components_[i];
            const double part = x[i] * c.Vc;
            M += x[i] * c.M;
            volume += part;
            temperature += part * c.Tc;
        }
        const double Tr = T * volume / temperature;
        for (std::size_t i = 0; i < n; ++i)
            molarVolume += x[i] * components_[i].M / components_[i].density(Tr * components_[i].Tc);
        return M / molarVolume;
    }

    // One logarithm for each component, because the rule takes it of the pure value.
    double viscosity(double T, const std::vector<double>& x) const {
        const std::size_t n = components_.size();
        const double lnT = std::log(T);
        if (n == 1) return components_[0].viscosity(T, lnT);
        double M = 0.0, sum = 0.0;
        for (std::size_t i = 0; i < n; ++i) {
            const Component& c = components_[i];
            M += x[i] * c.M;
            sum += x[i] * std::log(c.viscosity(T, lnT) * c.M / c.density(T, lnT));
        }
        return std::exp(sum) * density(T, x) / M;
    }

  private:
    struct Component {
        FloorEquation density, viscosity;
        double M, Tc, Vc;
    };
    std::vector<Component> components_;
};

}  // namespace

void addLiquid() {
    for (const int n : {1, 3, 5, 20}) {
        const auto mixture = mixtureOf(n);
        const LiquidFloor floor(mixture->records);
        compare(
            "ROLW " + std::to_string(n), Goal::ratio(2.2), evenly(280.0, 400.0),
            [mixture](double T) { return mixture->smes.ROLW(T, mixture->X).toDouble(); },
            [mixture, floor](double T) { return floor.density(T, mixture->fractions); });
        compare(
            "ETAL " + std::to_string(n), Goal::ratio(2.5), evenly(280.0, 400.0),
            [mixture](double T) { return mixture->smes.ETAL(T, mixture->X).toDouble(); },
            [mixture, floor](double T) { return floor.viscosity(T, mixture->fractions); });
    }
}

}  // namespace velor::bench
