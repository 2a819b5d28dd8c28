// The real gas's whole state by the bare arithmetic.
#pragma once

#include <array>
#include <cmath>
#include <vector>

#include "floor_equation.h"
#include "properties/pure_value.h"

namespace velor::bench {

constexpr double kR = 8.314;
constexpr double kReferencePressure = 0.101325;  // MPa

struct StatePoint {
    double T, P;
};

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

    struct Constants {
        double b = 0, v = 0;
        std::array<double, 6> Cp{};
        double enthalpy = 0, entropy = 0;
    };

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

  private:
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

}  // namespace velor::bench
