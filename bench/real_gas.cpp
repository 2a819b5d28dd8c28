// Values of the real gas: each call of the library solves the whole state, so does the floor.
#include <array>
#include <cmath>
#include <string>

#include "comparison.h"
#include "gas_floor.h"
#include "mixture.h"
#include "properties/pure_value.h"

namespace velor::bench {

namespace {

constexpr double kR = 8.314;
constexpr double kReferencePressure = 0.101325;  // MPa

struct StatePoint {
    double T, P;
};

std::vector<StatePoint> superheated() {
    std::vector<StatePoint> points;
    for (const double T : evenly(430.0, 530.0, 8))
        for (const double P : evenly(1e5, 3e5, 8)) points.push_back({T, P});
    return points;
}

struct Solution {
    double density, internalEnergy, enthalpy, entropy, lnFug, Cv, Cp, jouleThomson;
};

// Redlich and Kwong (1949) in MPa, cm3/mol and J/mol, with polynomial heat capacities. sqrt(theta) is v T^(-1/4).
class RealGasFloor {
  public:
    explicit RealGasFloor(const std::vector<TLatka>& records) {
        for (const TLatka& record : records) components_.push_back(prepare(record));
    }

    Solution operator()(const StatePoint& at, const std::vector<double>& x) const {
        return solve(mix(x), at.T, at.P * 1e-6);
    }

  private:
    struct Constants {
        double b = 0, v = 0;
        std::array<double, 6> Cp{};
        double enthalpy = 0, entropy = 0;
    };

    static double idealCp(const Constants& c, double T) {
        const auto& a = c.Cp;
        return a[0] + T * (a[1] + T * (a[2] + T * (a[3] + T * (a[4] + T * a[5]))));
    }
    static double idealEnthalpy(const Constants& c, double T) {
        const auto& a = c.Cp;
        return T * (a[0] + T * (a[1] / 2 + T * (a[2] / 3 + T * (a[3] / 4 + T * (a[4] / 5 + T * a[5] / 6)))));
    }
    static double idealEntropy(const Constants& c, double T, double lnT) {
        const auto& a = c.Cp;
        return a[0] * lnT + T * (a[1] + T * (a[2] / 2 + T * (a[3] / 3 + T * (a[4] / 4 + T * a[5] / 5))));
    }

    // The integrals' lower bounds and the state at the normal boiling point are folded into the constants.
    static Constants prepare(const TLatka& record) {
        const double pc = record.Pkr * 1e-6, Tc = record.Tkr, Tb = record.Tnbv;
        const TKorelace& heatCapacity = record.Korelace[kCPG - 1];
        Constants c;
        c.b = 0.0867 * kR * Tc / pc;
        c.v = std::sqrt(0.4278) * kR * Tc / std::sqrt(pc) * std::sqrt(std::sqrt(Tc));
        for (std::size_t j = 0; j <= static_cast<std::size_t>(heatCapacity.Typ); ++j) c.Cp[j] = heatCapacity.A[j];
        const double heat = FloorEquation(record.Korelace[kDHV - 1])(Tb);
        const Solution boiling = solve(c, Tb, kReferencePressure);
        c.enthalpy = heat - boiling.enthalpy;
        c.entropy = heat / Tb - boiling.entropy;
        return c;
    }

    Constants mix(const std::vector<double>& x) const {
        Constants m;
        for (std::size_t i = 0; i < components_.size(); ++i) {
            const Constants& c = components_[i];
            m.b += x[i] * c.b;
            m.v += x[i] * c.v;
            for (std::size_t j = 0; j < m.Cp.size(); ++j) m.Cp[j] += x[i] * c.Cp[j];
            m.enthalpy += x[i] * c.enthalpy;
            m.entropy += x[i] * (c.entropy - kR * std::log(x[i]));
        }
        return m;
    }

    static double vapourVolume(double theta, double b, double RTp, double p) {
        const double q = theta / p - b * RTp - b * b, r = theta * b / p;
        double V = RTp + b;
        for (int step = 0; step < 30; ++step) {
            const double change = (((V - RTp) * V + q) * V - r) / ((3.0 * V - 2.0 * RTp) * V + q);
            V -= change;
            if (std::abs(change) < 0.01) break;
        }
        return V;
    }

    static Solution solve(const Constants& m, double T, double p) {
        const double b = m.b, RT = kR * T, lnT = std::log(T);
        const double S = m.v / std::sqrt(std::sqrt(T)), theta = S * S;
        const double dTheta = -theta / (2.0 * T), d2Theta = 0.75 * theta / (T * T);
        const double V = vapourVolume(theta, b, RT / p, p), pV = p * V, covolume = V * (V + b), free = V - b;
        const double L = std::log1p(b / V) / b, repulsion = std::log(p * free / RT);
        const double dpdT = kR / free - dTheta / covolume;
        const double dpdV = theta * (2.0 * V + b) / (covolume * covolume) - RT / (free * free);
        Solution s;
        s.density = 1.0 / V;
        s.enthalpy = m.enthalpy + idealEnthalpy(m, T) + pV - RT + (T * dTheta - theta) * L;
        s.entropy =
            m.entropy + idealEntropy(m, T, lnT) - kR * std::log(p / kReferencePressure) + kR * repulsion + dTheta * L;
        s.internalEnergy = s.enthalpy - pV;
        s.lnFug = pV / RT - 1.0 - repulsion - theta * L / RT;
        s.Cv = idealCp(m, T) - kR + T * d2Theta * L;
        s.Cp = s.Cv - T * dpdT * dpdT / dpdV;
        s.jouleThomson = (-T * dpdT / dpdV - V) / s.Cp * 1e-6;
        return s;
    }

    std::vector<Constants> components_;
};

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
