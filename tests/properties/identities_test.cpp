// Thermodynamic identities of the real gas over a table of states, by differences of what the public methods return.
//
// The solver stops when the volume moves by less than 0.01 cm3/mol, and at high densities what is left shows in
// differences. So a state takes part from kLeastVolume on, and where the volume is smooth, which leaves out the vapour
// spinodal, where the root switches, and the closest neighbourhood of the critical point.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <functional>

#include "support/real_mixture.h"

namespace velor::test {
namespace {

constexpr double R = 8.314;
constexpr double kLeastVolume = 300.0;    // cm3/mol
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

    explicit Gas(const Case& c) : RealMixture(c.system.components), X(Fractions(c.system.x)) {
        smes.Redlich(c.Redlich);
        smes.Inivlr();
    }
    double Tc() { return smes.PSEUD(X, "T").toDouble(); }

    Point operator()(double T, double p) {
        const auto d = [](const Variant& value) { return value.toDouble(); };
        Point at{T, p, d(smes.TEVRP(1, T, p * 1e6, X)), 1.0 / d(smes.RGHustota())};
        at.H = d(smes.RGEntalpie()), at.S = d(smes.RGEntropie()), at.U = d(smes.RGVnitrniEnergie());
        at.Cp = d(smes.RGCp()), at.Cv = d(smes.RGCv()), at.lnPhi = d(smes.RGLnFug());
        at.muJT = d(smes.RGJouleThomson()) * 1e6;
        return at;
    }
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

    State(Gas& gas, double T, double p) : at(gas(T, p)), takesPart(at.V > kLeastVolume) {
        const double steps[] = {kStep, -kStep, kStep / 2, -kStep / 2};
        for (std::size_t k = 0; k < 4; ++k) {
            inT[k] = gas(T * (1 + steps[k]), p), inP[k] = gas(T, p * (1 + steps[k]));
            for (const Point& point : {inT[k], inP[k]})
                takesPart = takesPart && std::abs(point.V / at.V - 1) <= kSmooth;
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
    EXPECT_GE(states, 650);
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

}  // namespace
}  // namespace velor::test
