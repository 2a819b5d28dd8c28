// Values of the real gas: each call of the library solves the whole state, so does the floor.
#include <array>
#include <cmath>
#include <string>

#include "comparison.h"
#include "gas_floor.h"
#include "mixture.h"
#include "real_gas_floor.h"

namespace velor::bench {

namespace {

std::vector<StatePoint> superheated() {
    std::vector<StatePoint> points;
    for (const double T : evenly(430.0, 530.0, 8))
        for (const double P : evenly(1e5, 3e5, 8)) points.push_back({T, P});
    return points;
}

// Low-pressure viscosity with the excess of Dean and Stiel (1965).
class DenseViscosityFloor {
  public:
    explicit DenseViscosityFloor(const std::vector<TLatka>& records) : gas_(records), realGas_(records) {
        for (const TLatka& record : records)
            components_.push_back({record.Mv, record.Tkr, record.Vkr, record.Pkr * record.Vkr / (kR * record.Tkr)});
    }

    double operator()(const StatePoint& at, const std::vector<double>& x) const {
        double M = 0.0, Tc = 0.0, Vc = 0.0, Zc = 0.0;
        for (std::size_t i = 0; i < components_.size(); ++i) {
            M += x[i] * components_[i].M;
            Tc += x[i] * components_[i].Tc;
            Vc += x[i] * components_[i].Vc;
            Zc += x[i] * components_[i].Zc;
        }
        const Solution state = realGas_(at, x);
        benchmark::DoNotOptimize(&state);
        const double r = state.density * 1e6 * Vc, pressure = Zc * kR * Tc / Vc;
        const double term = 0.000108 * (std::exp(1.439 * r) - std::exp(-1.111 * std::pow(r, 1.858)));
        const double reciprocalXi =
            std::sqrt(1000.0 * M) * std::pow(pressure / 101324.0, 2.0 / 3.0) * std::pow(Tc, -1.0 / 6.0);
        return gas_.viscosity(at.T, x) + term * reciprocalXi / 1000.0;
    }

  private:
    struct Component {
        double M, Tc, Vc, Zc;
    };
    GasFloor gas_;
    RealGasFloor realGas_;
    std::vector<Component> components_;
};

using Method = Variant (Smes::*)(const Variant&, const Variant&, const Variant&);

struct Member {
    const char* name;
    Method method;
    double Solution::*member;
};

constexpr std::array<Member, 4> kMembers{{{"RHG 3", &Smes::RHG, &Solution::enthalpy},
                                          {"RSG 3", &Smes::RSG, &Solution::entropy},
                                          {"RCPG 3", &Smes::RCPG, &Solution::Cp},
                                          {"JTkoef 3", &Smes::JTkoef, &Solution::jouleThomson}}};

}  // namespace

void addRealGas() {
    const auto mixture = mixtureOf(3);
    const RealGasFloor floor(mixture->records);
    for (const Member& member : kMembers)
        compare(
            member.name, Goal::ratio(2.8), superheated(),
            [mixture, member](const StatePoint& at) {
                return (mixture->smes.*member.method)(at.T, at.P, mixture->X).toDouble();
            },
            [mixture, floor, member](const StatePoint& at) {
                const Solution state = floor(at, mixture->fractions);
                benchmark::DoNotOptimize(&state);
                return state.*member.member;
            });
    compare(
        "RETAG 3", Goal::ratio(2.5), superheated(),
        [mixture](const StatePoint& at) { return mixture->smes.RETAG(at.T, at.P, mixture->X).toDouble(); },
        [mixture, dense = DenseViscosityFloor(mixture->records)](const StatePoint& at) {
            return dense(at, mixture->fractions);
        });
}

}  // namespace velor::bench
