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
#include <string>
#include <vector>

#include "support/sample_mixture.h"

namespace velor {
namespace {

using test::SampleMixture;
using test::sampleSubstance;

constexpr double R = 8.314;
constexpr double kVolumeError = 1e-11;
constexpr double kStep = 1e-4;            // of T and p
constexpr double kSmooth = 60.0 * kStep;  // the most that a volume may change within a step

// Constants after Poling, Prausnitz and O'Connell (2001), rounded; nitrogen's heat capacity is an equation of type 19
// of our own, so that one component is integrated by quadrature.
std::vector<TLatka> gases() {
    struct Gas {
        const char* name;
        float Mv, Tkr, Pkr, Acent, Tnbv, DHV;
        TKorelace CPG;
    };
    const Gas table[] = {
        {"Methan",
         0.01604F,
         190.56F,
         4.599e6F,
         0.011F,
         111.66F,
         8190.0F,
         {{19.25F, 0.05213F, 1.197e-5F, -1.132e-8F}, 3, 1, 200, 1500}},
        {"Oxid uhličitý",
         0.04401F,
         304.12F,
         7.374e6F,
         0.225F,
         194.7F,
         15300.0F,
         {{19.80F, 0.07344F, -5.602e-5F, 1.715e-8F}, 3, 1, 200, 1500}},
        {"Propan",
         0.0441F,
         369.83F,
         4.248e6F,
         0.152F,
         231.0F,
         18770.0F,
         {{-4.224F, 0.3063F, -1.586e-4F, 3.215e-8F}, 3, 1, 200, 1500}},
        {"Voda",
         0.01802F,
         647.14F,
         22.064e6F,
         0.344F,
         373.15F,
         40650.0F,
         {{32.24F, 1.924e-3F, 1.055e-5F, -3.596e-9F}, 3, 1, 200, 1500}},
        {"Dusík", 0.02801F, 126.2F, 3.398e6F, 0.037F, 77.35F, 5577.0F, {{22.0F, 0.05F, 5.0F, 100.0F}, 19, 1, 50, 1500}},
    };
    std::vector<TLatka> records;
    for (const Gas& gas : table) {
        TLatka record = sampleSubstance(static_cast<int>(records.size()) + 1, gas.name);
        record.Mv = gas.Mv, record.Tkr = gas.Tkr, record.Pkr = gas.Pkr, record.Acent = gas.Acent;
        record.Tnbv = gas.Tnbv;
        record.Korelace[1] = gas.CPG;
        record.Korelace[6] = {{70.0F, 0.05F}, 1, 1, 50, 650};
        record.Korelace[7] = {{1.1F * gas.DHV, -0.1F * gas.DHV / gas.Tnbv}, 1, 1, 50, 650};
        records.push_back(record);
    }
    return records;
}

enum : int { kMethane = 1, kCarbonDioxide, kPropane, kWater, kNitrogen };

struct System {
    std::vector<int> components;
    std::vector<double> x;
};
const System kSystems[] = {
    {{kMethane}, {1}},
    {{kCarbonDioxide}, {1}},
    {{kPropane}, {1}},
    {{kWater}, {1}},
    {{kNitrogen}, {1}},
    {{kMethane, kCarbonDioxide, kPropane}, {0.85, 0.05, 0.1}},
    {{kNitrogen, kCarbonDioxide, kWater}, {0.7, 0.15, 0.15}},
};

struct Case {
    System system;
    int Redlich;
};

std::vector<Case> cases() {
    std::vector<Case> all;
    for (const System& system : kSystems)
        for (const int Redlich : {0, 1}) all.push_back({system, Redlich});
    return all;
}

// What the object returns in one state; pressure in MPa and volume in cm3/mol, so that their product is in joules.
struct Point {
    double T = 0, p = 0, Z = 0, V = 0, H = 0, S = 0, U = 0, Cp = 0, Cv = 0, lnPhi = 0, muJT = 0;
    double G() const { return H - T * S; }
};

class Gas {
  public:
    Variant X;
    SampleMixture mixture{gases()};
    Smes& smes = mixture.smes;

    explicit Gas(const Case& c) : X(Fractions(c.system.x)), x_(c.system.x) {
        smes.DefSlozky(List(c.system.components));
        smes.Redlich(c.Redlich);
        smes.Inivlr();
    }
    double Tc() const {
        return sum([&](int i) { return smes.Bod(i, 2); });
    }

    Point operator()(double T, double p) {
        const double Z = smes.TEVRP(1, T, p * 1e6, X).toDouble();
        return {T,
                p,
                Z,
                1.0 / smes.RGHustota().toDouble(),
                smes.RGEntalpie().toDouble(),
                smes.RGEntropie().toDouble(),
                smes.RGVnitrniEnergie().toDouble(),
                smes.RGCp().toDouble(),
                smes.RGCv().toDouble(),
                smes.RGLnFug().toDouble(),
                smes.RGJouleThomson().toDouble() * 1e6};
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
    // How far the volume is from satisfying the pressure equation, as a share of the volume.
    double volumeError(const Point& at) const {
        const double V = at.V, B = b(), a = theta(at.T), RT = R * at.T;
        const double p = RT / (V - B) - a / (V * (V + B));
        const double slope = -RT / ((V - B) * (V - B)) + a * (2 * V + B) / (V * V * (V + B) * (V + B));
        return std::abs((p - at.p) / (slope * V));
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
    std::string name;

    // Central differences, extrapolated once after Richardson.
    double byT(Quantity q) const { return derivative(inT, q, at.T * kStep); }
    double byP(Quantity q) const { return derivative(inP, q, at.p * kStep); }

  private:
    static double derivative(const std::array<Point, 4>& points, Quantity q, double h) {
        const double whole = (points[0].*q - points[1].*q) / (2 * h), half = (points[2].*q - points[3].*q) / h;
        return (4 * half - whole) / 3;
    }
};

bool takesPart(const Gas& gas, const State& state) {
    if (gas.volumeError(state.at) > kVolumeError) return false;
    for (const auto& points : {state.inT, state.inP})
        for (const Point& point : points)
            if (gas.volumeError(point) > kVolumeError || std::abs(point.V / state.at.V - 1) > kSmooth) return false;
    return true;
}

const std::vector<State>& states() {
    static const std::vector<State> all = [] {
        std::vector<State> found;
        for (const Case& c : cases()) {
            Gas gas(c);
            for (const double Tr : {0.6, 0.75, 0.9, 1.02, 1.2, 1.6, 2.2, 3.0})
                for (const double p : {0.001, 0.01, 0.1, 0.4, 1.0, 3.0, 10.0, 30.0}) {
                    const double T = Tr * gas.Tc();
                    State state{gas(T, p), {}, {}, {}};
                    const double steps[] = {kStep, -kStep, kStep / 2, -kStep / 2};
                    for (std::size_t k = 0; k < 4; ++k) {
                        state.inT[k] = gas(T * (1 + steps[k]), p);
                        state.inP[k] = gas(T, p * (1 + steps[k]));
                    }
                    if (!takesPart(gas, state)) continue;
                    state.name = gas.smes.Nazev(1).toText() + " of " + std::to_string(c.system.x.size()) +
                                 ", Redlich " + std::to_string(c.Redlich);
                    found.push_back(state);
                }
        }
        return found;
    }();
    return all;
}

// Both sides of an identity, and what their difference is measured by.
struct Sides {
    double left, right, scale;
};

void expectIdentity(double tolerance, const std::function<Sides(const State&)>& identity) {
    EXPECT_GE(states().size(), 700U);
    for (const State& state : states()) {
        const Sides sides = identity(state);
        EXPECT_LE(std::abs(sides.left - sides.right), tolerance * std::abs(sides.scale))
            << state.name << ", T " << state.at.T << ", p " << state.at.p << ": " << sides.left << " and "
            << sides.right;
    }
}

TEST(Identities, hIsUPlusPv) {
    expectIdentity(1e-14, [](const State& s) {
        return Sides{s.at.H, s.at.U + s.at.p * s.at.V, std::abs(s.at.U) + s.at.p * s.at.V};
    });
}

TEST(Identities, cpIsDhDt) {
    expectIdentity(1e-6, [](const State& s) { return Sides{s.byT(&Point::H), s.at.Cp, s.at.Cp}; });
}

TEST(Identities, cpOverTIsDsDt) {
    expectIdentity(1e-6, [](const State& s) { return Sides{s.byT(&Point::S) * s.at.T, s.at.Cp, s.at.Cp}; });
}

TEST(Identities, cvIsDuDtAtConstantVolume) {
    expectIdentity(1e-6, [](const State& s) {
        const double dUdT = s.byT(&Point::U) - s.byP(&Point::U) * s.byT(&Point::V) / s.byP(&Point::V);
        return Sides{dUdT, s.at.Cv, s.at.Cp};
    });
}

TEST(Identities, dhDpIsVMinusTdVdT) {
    expectIdentity(1e-6, [](const State& s) {
        return Sides{s.byP(&Point::H), s.at.V - s.at.T * s.byT(&Point::V), s.at.V};
    });
}

TEST(Identities, dsDpIsMinusDvDt) {
    expectIdentity(1e-6, [](const State& s) { return Sides{s.byP(&Point::S), -s.byT(&Point::V), s.byT(&Point::V)}; });
}

TEST(Identities, muJtIsMinusDhDpOverCp) {
    expectIdentity(1e-6, [](const State& s) { return Sides{s.at.muJT * s.at.Cp, -s.byP(&Point::H), s.at.V}; });
}

TEST(Identities, cpMinusCvIsTPtPtOverPv) {
    expectIdentity(1e-6, [](const State& s) {  // p_T = -V_T/V_p and p_V = 1/V_p
        const double VT = s.byT(&Point::V);
        return Sides{s.at.Cp - s.at.Cv, -s.at.T * VT * VT / s.byP(&Point::V), s.at.Cp};
    });
}

TEST(Identities, lnPhiDpIsVOverRTMinusOneOverP) {
    expectIdentity(1e-7, [](const State& s) {
        return Sides{s.byP(&Point::lnPhi) * s.at.p, s.at.p * s.at.V / (R * s.at.T) - 1, 1.0};
    });
}

TEST(Identities, lnPhiPressureIntegral) {
    constexpr int kPanels = 400;  // Simpson's rule in the logarithm of the pressure
    constexpr double kThin = 1e-5;
    for (const Case& c : cases()) {
        Gas gas(c);
        for (const double Tr : {1.2, 1.6, 3.0})
            for (const double p : {1.0, 10.0, 30.0}) {
                const double T = Tr * gas.Tc(), step = std::log(p / kThin) / (2 * kPanels);
                double sum = 0.0;
                for (int k = 0; k <= 2 * kPanels; ++k) {
                    const double weight = k == 0 || k == 2 * kPanels ? 1 : k % 2 == 0 ? 2 : 4;
                    sum += weight * (gas(T, kThin * std::exp(k * step)).Z - 1);
                }
                const double integral = sum * step / 3;
                EXPECT_NEAR(gas(T, p).lnPhi - gas(T, kThin).lnPhi, integral, 1e-6) << T << ' ' << p;
            }
    }
}

TEST(Identities, gFromPhi) {
    for (const Case& c : cases()) {
        Gas gas(c);
        for (const double Tr : {0.7, 1.02, 1.5, 3.0})
            for (const double p : {0.01, 1.0, 30.0}) {
                const double T = Tr * gas.Tc();
                const Point at = gas(T, p), thin = gas(T, 1e-6);
                const double fugacities = std::log(p / 1e-6) + at.lnPhi - thin.lnPhi;
                EXPECT_NEAR((at.G() - thin.G()) / (R * T), fugacities, 1e-9) << T << ' ' << p;
            }
    }
}

TEST(Identities, idealLimit) {
    for (const Case& c : cases()) {
        Gas gas(c);
        const double from = 0.7 * gas.Tc(), to = 2.5 * gas.Tc(), thin = 1e-10;
        const Point first = gas(from, thin), last = gas(to, thin), thinner = gas(to, thin / 100);
        EXPECT_NEAR(first.Z, 1, 1e-7);
        EXPECT_NEAR(first.lnPhi, 0, 1e-7);
        EXPECT_NEAR(last.Cp, gas.smes.CPG(to, gas.X).toDouble(), 1e-6);
        EXPECT_NEAR(last.Cp - last.Cv, R, 1e-6);
        EXPECT_NEAR(thinner.H, last.H, 1e-6);
        EXPECT_NEAR(thinner.S - last.S, R * std::log(100), 1e-6);
        // Simpson's rule over what the low-pressure gas says of itself.
        constexpr int kPanels = 500;
        const double step = (to - from) / (2 * kPanels);
        double enthalpy = 0.0, entropy = 0.0;
        for (int k = 0; k <= 2 * kPanels; ++k) {
            const double T = from + k * step, weight = k == 0 || k == 2 * kPanels ? 1 : k % 2 == 0 ? 2 : 4;
            const double Cp = gas.smes.CPG(T, gas.X).toDouble();
            enthalpy += weight * Cp * step / 3, entropy += weight * Cp / T * step / 3;
        }
        EXPECT_NEAR(last.H - first.H, enthalpy, 1e-8 * enthalpy);
        EXPECT_NEAR(last.S - first.S, entropy, 1e-8 * entropy);
    }
}

TEST(Identities, virialSlope) {
    for (const Case& c : cases()) {
        Gas gas(c);
        for (const double Tr : {0.6, 1.0, 1.7, 3.0}) {
            const double T = Tr * gas.Tc(), p = 1e-5, attraction = gas.theta(T) / (R * T);
            EXPECT_NEAR((gas(T, p).Z - 1) * R * T / p, gas.b() - attraction, 1e-4 * (gas.b() + attraction)) << T;
        }
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

using Method = Variant (Smes::*)(const Variant&, const Variant&, const Variant&);
constexpr std::array<std::pair<Method, Method>, 5> kMolarAndMass{{{&Smes::RHG, &Smes::RHGW},
                                                                  {&Smes::RSG, &Smes::RSGW},
                                                                  {&Smes::RUG, &Smes::RUGW},
                                                                  {&Smes::RCPG, &Smes::RCPGW},
                                                                  {&Smes::RCVG, &Smes::RCVGW}}};

TEST(Identities, kapaIsCpOverCvAndMassVariantIsMolarOverVsm) {
    for (const Case& c : cases()) {
        Gas gas(c);
        const double T = 1.1 * gas.Tc(), P = 2e6, M = gas.smes.VSM(gas.X).toDouble();
        const auto call = [&](Method method) { return (gas.smes.*method)(T, P, gas.X).toDouble(); };
        EXPECT_DOUBLE_EQ(call(&Smes::Kapa), call(&Smes::RCPG) / call(&Smes::RCVG));
        for (const auto& [molar, mass] : kMolarAndMass) EXPECT_DOUBLE_EQ(call(mass), call(molar) / M);
        EXPECT_DOUBLE_EQ(call(&Smes::RROGW), M / gas(T, P / 1e6).V * 1e6);
    }
}

// ---- The mixture as a whole
// ------------------------------------------------------------------------------------------

void expectSame(const System& one, const System& other, double entropyOfMixing = 0.0) {
    for (const int Redlich : {0, 1}) {
        Gas first({one, Redlich}), second({other, Redlich});
        for (const double T : {200.0, 330.0, 700.0})
            for (const double p : {0.001, 1.0, 30.0}) {
                const Point a = first(T, p), b = second(T, p);
                for (const Quantity q :
                     {&Point::Z, &Point::V, &Point::H, &Point::U, &Point::Cp, &Point::Cv, &Point::lnPhi, &Point::muJT})
                    EXPECT_NEAR(a.*q, b.*q, 1e-9 * std::abs(a.*q) + 1e-12) << T << ' ' << p;
                EXPECT_NEAR(a.S + entropyOfMixing, b.S, 1e-9 * std::abs(a.S)) << T << ' ' << p;
            }
    }
}

TEST(Identities, mixtureOfOneIsPure) { expectSame({{kPropane}, {1}}, {{kMethane, kPropane}, {0, 1}}); }

TEST(Identities, splitComponentUnchanged) {
    // But for the mixing term, which cannot know that the two are the same.
    const double mixing = -R * (0.3 * std::log(0.3) + 0.7 * std::log(0.7));
    expectSame({{kPropane}, {1}}, {{kPropane, kPropane}, {0.3, 0.7}}, mixing);
}

TEST(Identities, permutationInvariant) {
    expectSame({{kMethane, kWater, kNitrogen}, {0.2, 0.3, 0.5}}, {{kNitrogen, kMethane, kWater}, {0.5, 0.2, 0.3}});
}

TEST(Identities, zeroComponentInvariant) {
    expectSame({{kMethane, kNitrogen}, {0.2, 0.8}}, {{kMethane, kWater, kNitrogen}, {0.2, 0, 0.8}});
}

}  // namespace
}  // namespace velor
