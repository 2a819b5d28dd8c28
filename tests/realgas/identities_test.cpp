// Thermodynamic identities of the real gas over a table of states, by differences of what the public methods return.
//
// The solver stops when the volume moves by less than 0.01 cm3/mol, and at high densities what is left shows in
// differences. So a state takes part where all volumes of its differences satisfy the pressure equation to within a
// relative volume of kVolumeError, which keeps that effect below the tolerances; and where the volume is smooth, which
// leaves out the vapour spinodal, where the root switches, and the closest neighbourhood of the critical point.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>

#include "support/real_mixture.h"

namespace velor::test {
namespace {

constexpr double R = 8.314;
constexpr double kVolumeError = 1e-11;
constexpr double kStep = 1e-4;            // of T and p
constexpr double kSmooth = 60.0 * kStep;  // the most that a volume may change within a step

constexpr std::int32_t kMethane = 74828, kCarbonDioxide = 124389, kPropane = 74986, kWater = 7732185,
                       kNitrogen = 7727379;

struct System {
    std::vector<std::int32_t> components;
    std::vector<double> x;
};
struct Case {
    System system;
    int Redlich;
};

std::vector<Case> cases() {
    // clang-format off
    const System systems[] = {
        {{kMethane}, {1}}, {{kCarbonDioxide}, {1}}, {{kPropane}, {1}}, {{kWater}, {1}}, {{kNitrogen}, {1}},
        {{kMethane, kCarbonDioxide, kPropane}, {0.85, 0.05, 0.1}},
        {{kNitrogen, kCarbonDioxide, kWater}, {0.7, 0.15, 0.15}}};
    // clang-format on
    std::vector<Case> all;
    for (const System& system : systems)
        for (const int Redlich : {0, 1}) all.push_back({system, Redlich});
    return all;
}

// What the object returns in one state; pressure in MPa and volume in cm3/mol, so that their product is in joules.
struct Point {
    double T = 0, p = 0, Z = 0, V = 0, H = 0, S = 0, U = 0, Cp = 0, Cv = 0, lnPhi = 0, muJT = 0;
};

class Gas : public RealMixture {
  public:
    Variant X;

    explicit Gas(const Case& c) : RealMixture(c.system.components), X(Fractions(c.system.x)), x_(c.system.x) {
        smes.Redlich(c.Redlich);
        smes.Inivlr();
    }
    double Tc() const {
        return sum([&](int i) { return smes.Bod(i, 2); });
    }

    Point operator()(double T, double p) {
        const auto d = [](const Variant& value) { return value.toDouble(); };
        Point at{T, p, d(smes.TEVRP(1, T, p * 1e6, X)), 1.0 / d(smes.RGHustota())};
        at.H = d(smes.RGEntalpie()), at.S = d(smes.RGEntropie()), at.U = d(smes.RGVnitrniEnergie());
        at.Cp = d(smes.RGCp()), at.Cv = d(smes.RGCv()), at.lnPhi = d(smes.RGLnFug());
        at.muJT = d(smes.RGJouleThomson()) * 1e6;
        return at;
    }

    // The equation of state written once more, with nothing prepared.
    double b() const {
        return sum([&](int i) { return 0.0867 * R * smes.Bod(i, 2) / (smes.Bod(i, 3) / 1e6); });
    }
    double theta(double T) const {
        const double s = sum([&](int i) {
            const double Tr = T / smes.Bod(i, 2), w = smes.Bod(i, 5);
            const double root = smes.Redlich() == 0 ? std::pow(Tr, -0.25)
                                                    : 1.0 + (0.480 + 1.574 * w - 0.176 * w * w) * (1.0 - std::sqrt(Tr));
            return std::sqrt(0.4278) * R * smes.Bod(i, 2) / std::sqrt(smes.Bod(i, 3) / 1e6) * root;
        });
        return s * s;
    }
    // Whether the volume satisfies the pressure equation, to within a share of itself.
    bool solved(const Point& at) const {
        const double V = at.V, B = b(), a = theta(at.T), RT = R * at.T;
        const double p = RT / (V - B) - a / (V * (V + B));
        const double slope = -RT / ((V - B) * (V - B)) + a * (2 * V + B) / (V * V * (V + B) * (V + B));
        return std::abs((p - at.p) / (slope * V)) <= kVolumeError;
    }

  private:
    double sum(const std::function<double(int)>& value) const {
        double total = 0.0;
        for (std::size_t i = 0; i < x_.size(); ++i) total += x_[i] * value(static_cast<int>(i) + 1);
        return total;
    }
    std::vector<double> x_;
};

using Quantity = double Point::*;

// A state with its neighbours at +h, -h, +h/2, -h/2 in the temperature and in the pressure.
struct State {
    Point at;
    std::array<Point, 4> inT, inP;
    bool takesPart;

    // Central differences, extrapolated once after Richardson.
    double byT(Quantity q) const { return derivative(inT, q, at.T * kStep); }
    double byP(Quantity q) const { return derivative(inP, q, at.p * kStep); }
    static double derivative(const std::array<Point, 4>& points, Quantity q, double h) {
        const double whole = (points[0].*q - points[1].*q) / (2 * h), half = (points[2].*q - points[3].*q) / h;
        return (4 * half - whole) / 3;
    }

    State(Gas& gas, double T, double p) : at(gas(T, p)), takesPart(gas.solved(at)) {
        const double steps[] = {kStep, -kStep, kStep / 2, -kStep / 2};
        for (std::size_t k = 0; k < 4; ++k) {
            inT[k] = gas(T * (1 + steps[k]), p), inP[k] = gas(T, p * (1 + steps[k]));
            for (const Point& point : {inT[k], inP[k]})
                takesPart = takesPart && gas.solved(point) && std::abs(point.V / at.V - 1) <= kSmooth;
        }
    }
};

// Both sides of an identity, and what their difference is measured by.
struct Sides {
    double left, right, scale;
};
struct Identity {
    const char* name;
    double tolerance;
    Sides (*sides)(const State&);
};

// p_T = -V_T/V_p and p_V = 1/V_p
const Identity kIdentities[] = {
    // clang-format off
    {"H = U + pV", 1e-14, [](const State& s) { return Sides{s.at.H, s.at.U + s.at.p * s.at.V, std::abs(s.at.U) + s.at.p * s.at.V}; }},
    {"Cp = dH/dT", 1e-6, [](const State& s) { return Sides{s.byT(&Point::H), s.at.Cp, s.at.Cp}; }},
    {"Cp/T = dS/dT", 1e-6, [](const State& s) { return Sides{s.byT(&Point::S) * s.at.T, s.at.Cp, s.at.Cp}; }},
    {"Cv = dU/dT at constant V", 1e-6, [](const State& s) {
        return Sides{s.byT(&Point::U) - s.byP(&Point::U) * s.byT(&Point::V) / s.byP(&Point::V), s.at.Cv, s.at.Cp}; }},
    {"dH/dp = V - T dV/dT", 1e-6, [](const State& s) { return Sides{s.byP(&Point::H), s.at.V - s.at.T * s.byT(&Point::V), s.at.V}; }},
    {"dS/dp = -dV/dT", 1e-6, [](const State& s) { return Sides{s.byP(&Point::S), -s.byT(&Point::V), s.byT(&Point::V)}; }},
    {"mu = -dH/dp / Cp", 1e-6, [](const State& s) { return Sides{s.at.muJT * s.at.Cp, -s.byP(&Point::H), s.at.V}; }},
    {"Cp - Cv = -T p_T^2 / p_V", 1e-6, [](const State& s) {
        return Sides{s.at.Cp - s.at.Cv, -s.at.T * s.byT(&Point::V) * s.byT(&Point::V) / s.byP(&Point::V), s.at.Cp}; }},
    {"d ln phi/dp = V/RT - 1/p", 1e-7, [](const State& s) {
        return Sides{s.byP(&Point::lnPhi) * s.at.p, s.at.p * s.at.V / (R * s.at.T) - 1, 1.0}; }},
    // clang-format on
};

TEST(Identities, holdInEveryState) {
    int states = 0;
    for (const Case& c : cases()) {
        Gas gas(c);
        for (const double Tr : {0.6, 0.75, 0.9, 1.02, 1.2, 1.6, 2.2, 3.0})
            for (const double p : {0.001, 0.01, 0.1, 0.4, 1.0, 3.0, 10.0, 30.0}) {
                const State state(gas, Tr * gas.Tc(), p);
                if (!state.takesPart) continue;
                ++states;
                for (const auto& [name, tolerance, identity] : kIdentities) {
                    const Sides sides = identity(state);
                    EXPECT_LE(std::abs(sides.left - sides.right), tolerance * std::abs(sides.scale))
                        << name << " of " << gas.smes.Nazev(1).toText() << ", Tr " << Tr << ", p " << p;
                }
            }
    }
    EXPECT_GE(states, 700);
}

TEST(Identities, atLowPressureTheGasIsIdeal) {
    for (const Case& c : cases()) {
        Gas gas(c);
        const double T = 2.5 * gas.Tc(), thin = 1e-10;
        const Point first = gas(0.7 * gas.Tc(), thin), last = gas(T, thin), thinner = gas(T, thin / 100);
        EXPECT_NEAR(first.Z, 1, 1e-7);
        EXPECT_NEAR(first.lnPhi, 0, 1e-7);
        EXPECT_NEAR(last.Cp, gas.smes.CPG(T, gas.X).toDouble(), 1e-6);
        EXPECT_NEAR(last.Cp - last.Cv, R, 1e-6);
        EXPECT_NEAR(thinner.H, last.H, 1e-6);
        EXPECT_NEAR(thinner.S - last.S, R * std::log(100), 1e-6);
    }
}

TEST(Identities, vapourAtTbEqualsDhv) {
    for (const Case& c : cases()) {
        if (c.system.x.size() > 1) continue;
        Gas gas(c);
        const double Tb = gas.smes.Bod(1, 15), DHV = gas.smes.FFce(Tb, 1, 8).toDouble();
        const Point vapour = gas(Tb, 0.101325);
        EXPECT_NEAR(vapour.H, DHV, 1e-9 * DHV);
        EXPECT_NEAR(vapour.S, DHV / Tb, 1e-9 * DHV / Tb);
        EXPECT_NEAR(vapour.H - gas.smes.HL(Tb, gas.X).toDouble(), DHV, 1e-9 * DHV);
        EXPECT_NEAR(vapour.S - gas.smes.SL(Tb, gas.X).toDouble(), DHV / Tb, 1e-9 * DHV / Tb);
    }
}

TEST(Identities, densityAndKapaFollowFromTheState) {
    for (const Case& c : cases()) {
        Gas gas(c);
        const double T = 1.1 * gas.Tc(), M = gas.smes.VSM(gas.X).toDouble();
        const Point at = gas(T, 2);
        EXPECT_DOUBLE_EQ(gas.smes.Kapa(T, 2e6, gas.X).toDouble(), at.Cp / at.Cv);
        EXPECT_DOUBLE_EQ(gas.smes.RROGW(T, 2e6, gas.X).toDouble(), M / at.V * 1e6);
    }
}

TEST(Identities, aSplitAddsTheEntropyOfMixingAlone) {
    const double mixing = -R * (0.3 * std::log(0.3) + 0.7 * std::log(0.7));
    for (const int Redlich : {0, 1}) {
        Gas whole({{{kPropane}, {1}}, Redlich}), split({{{kPropane, kPropane}, {0.3, 0.7}}, Redlich});
        for (const double p : {0.001, 1.0, 30.0}) {
            const Point a = whole(330, p), b = split(330, p);
            EXPECT_NEAR(a.S + mixing, b.S, 1e-9 * std::abs(a.S)) << p;
            EXPECT_NEAR(a.H, b.H, 1e-9 * std::abs(a.H)) << p;
        }
    }
}

}  // namespace
}  // namespace velor::test
