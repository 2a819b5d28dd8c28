// The equation of state below the mixture object, the ideal gas's integrals, and the solver at the edges of its domain.
#include "realgas/equation_of_state.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <vector>

#include "correlations/pure_value.h"
#include "realgas/ideal_gas.h"
#include "support/sample_mixture.h"

namespace velor {
namespace {

using test::errorNumber;
using test::SampleMixture;
using test::sampleSubstance;

constexpr double R = 8.314;

struct Gas {
    double Tc, pc, acentric;  // K, MPa, -
};

constexpr Gas kMethane{190.56, 4.599, 0.011};
constexpr Gas kGases[] = {
    kMethane, {647.1, 22.064, 0.344}, {33.19, 1.313, -0.216}, {617.7, 2.11, 0.49}, {900.0, 1.0, 0.9}};
constexpr Attraction kAttractions[] = {Attraction::RedlichKwong, Attraction::Soave};

CubicParameters pureParameters(Attraction attraction, const Gas& gas, double T) {
    const double one = 1.0;
    const CubicComponent component = cubicComponent(attraction, gas.Tc, gas.pc, gas.acentric);
    return mixtureParameters(attraction, T, {&one, 1}, {&component, 1});
}

double pressure(double T, double V, const CubicParameters& mixture) {
    return R * T / (V - mixture.b) - mixture.theta() / (V * (V + mixture.b));
}

// The largest root of Z^3 - Z^2 + (A - B - B^2) Z - A B by bisection in its bracket: above the cubic's minimum where
// that is not positive, else the one root above B.
double volumeByBisection(double T, double p, const CubicParameters& mixture) {
    using Real = long double;
    const Real RT = static_cast<Real>(R) * T, B = mixture.b * p / RT, A = mixture.theta() * p / (RT * RT);
    const auto f = [&](Real Z) { return ((Z - 1) * Z + (A - B - B * B)) * Z - A * B; };
    Real low = B, high = 1 + B;
    if (const Real discriminant = 1 - 3 * (A - B - B * B); discriminant > 0) {
        const Real minimum = (1 + std::sqrt(discriminant)) / 3;
        if (minimum > B && f(minimum) <= 0) low = minimum;
    }
    for (int halving = 0; halving < 90; ++halving) {
        const Real middle = (low + high) / 2;
        (f(middle) < 0 ? low : high) = middle;
    }
    return static_cast<double>(low * RT / p);
}

TEST(GasVolume, isTheLargestRootOnAGridOf10000States) {
    constexpr int kTemperatures = 25, kPressures = 40;
    int most = 0, states = 0;
    double steps = 0.0, worstVolume = 0.0;
    for (const Gas& gas : kGases)
        for (const Attraction attraction : kAttractions)
            for (int i = 0; i < kTemperatures; ++i)
                for (int j = 0; j < kPressures; ++j) {
                    const double T = gas.Tc * (0.3 + 2.7 * i / (kTemperatures - 1));
                    const double p = 1e-4 * std::pow(1e6, static_cast<double>(j) / (kPressures - 1));
                    const CubicParameters mixture = pureParameters(attraction, gas, T);
                    const CubicVolume found = gasVolume(T, p, mixture);
                    const double expected = volumeByBisection(T, p, mixture);
                    ASSERT_GT(found.V, mixture.b) << gas.Tc << ' ' << T << ' ' << p;
                    // Where the last change is below 0.01, twice that is left at a triple root and far less elsewhere.
                    EXPECT_NEAR(found.V, expected, 0.02) << gas.Tc << ' ' << T << ' ' << p;
                    // As a share of the repulsion, because a liquid is stiff.
                    const double repulsion = R * T / (found.V - mixture.b);
                    const double missed = std::abs(pressure(T, found.V, mixture) - p) / repulsion;
                    EXPECT_LT(missed, 1e-4) << gas.Tc << ' ' << T << ' ' << p;
                    EXPECT_LE(found.steps, 30);
                    most = std::max(most, found.steps);
                    steps += found.steps;
                    ++states;
                    worstVolume = std::max(worstVolume, std::abs(found.V - expected));
                }
    EXPECT_EQ(states, 10000);
    EXPECT_LT(most, 30) << "the limit of steps has cut an iteration off";
    RecordProperty("mostSteps", most);
    EXPECT_LT(steps, 4.0 * states);
    EXPECT_LT(worstVolume, 1e-4);
}

// On an isotherm below the critical one the vapour ends at its spinodal, the greatest pressure it can bear.
TEST(GasVolume, changesToTheLiquidAtTheVapourSpinodal) {
    for (const Gas& gas : kGases)
        for (const Attraction attraction : kAttractions)
            for (const double Tr : {0.4, 0.6, 0.8, 0.95, 0.99}) {
                const double T = Tr * gas.Tc;
                const CubicParameters mixture = pureParameters(attraction, gas, T);
                double atSpinodal = 1e4 * mixture.b;
                while (pressure(T, atSpinodal * 0.9995, mixture) > pressure(T, atSpinodal, mixture))
                    atSpinodal *= 0.9995;
                const double spinodal = pressure(T, atSpinodal, mixture);
                EXPECT_GT(gasVolume(T, spinodal * (1 - 1e-5), mixture).V, 0.999 * atSpinodal) << gas.Tc << ' ' << Tr;
                const double liquid = gasVolume(T, spinodal * (1 + 1e-5), mixture).V;
                EXPECT_LT(liquid, 0.9 * atSpinodal) << gas.Tc << ' ' << Tr;
                EXPECT_NEAR(liquid, volumeByBisection(T, spinodal * (1 + 1e-5), mixture), 0.02);
            }
}

TEST(GasVolume, ofAThinGasIsTheIdealOne) {
    for (const Attraction attraction : kAttractions)
        for (const double Tr : {0.3, 0.7, 1.0, 1.7, 3.0, 20.0})
            for (double p = 1e-4; p > 1e-24; p /= 3.7) {
                const double T = Tr * kMethane.Tc;
                const CubicParameters mixture = pureParameters(attraction, kMethane, T);
                const CubicVolume found = gasVolume(T, p, mixture);
                const double Z = 1.0 + (mixture.b - mixture.theta() / (R * T)) * p / (R * T);
                EXPECT_NEAR(found.V * p / (R * T), Z, 1e-12 + 3.0 * (Z - 1) * (Z - 1)) << T << ' ' << p;
                EXPECT_LE(found.steps, 8) << T << ' ' << p;
                EXPECT_NEAR(logFugacityCoefficient(T, p, found.V, mixture), Z - 1, 1e-12 + 3.0 * (Z - 1) * (Z - 1));
            }
}

TEST(GasVolume, atTheEquationsOwnCriticalPointIsAThird) {
    // With the exact factors 1/(9 (2^(1/3) - 1)) and (2^(1/3) - 1)/3 the critical point would be (Tc, pc).
    const double root = std::cbrt(2.0) - 1.0, exactA = 1.0 / (9.0 * root), exactB = root / 3.0;
    const double Tr = std::pow(0.4278 / 0.0867 / (exactA / exactB), 2.0 / 3.0), pr = Tr * exactB / 0.0867;
    EXPECT_NEAR(Tr, 1.0000397, 1e-7);
    EXPECT_NEAR(pr, 0.9993516, 1e-7);
    for (const Gas& gas : kGases) {
        const double T = Tr * gas.Tc, p = pr * gas.pc;
        const CubicVolume found = gasVolume(T, p, pureParameters(Attraction::RedlichKwong, gas, T));
        // A triple root is approached by a third of the distance a step; the stop leaves two changes of 0.01, and
        // where the volume is thousands, the limit of steps a little more.
        EXPECT_NEAR(found.V, R * T / p / 3.0, 0.04) << gas.Tc;
        EXPECT_LE(found.steps, 30);
    }
    const CubicParameters atCritical = pureParameters(Attraction::RedlichKwong, kMethane, kMethane.Tc);
    const double Z = kMethane.pc * gasVolume(kMethane.Tc, kMethane.pc, atCritical).V / (R * kMethane.Tc);
    EXPECT_NEAR(Z, 0.304920, 1e-6);
}

TEST(CubicParameters, keepANegativeRootOfTheAttraction) {
    const Gas heavy{500, 2, 0.9};  // m = 1.754, so that sqrt(alpha) turns negative above 2.465 Tc
    EXPECT_GT(pureParameters(Attraction::Soave, heavy, 2.46 * heavy.Tc).S, 0);
    const CubicParameters hot = pureParameters(Attraction::Soave, heavy, 3 * heavy.Tc);
    EXPECT_LT(hot.S, 0);
    EXPECT_GT(hot.theta(), 0);
}

TEST(EquationOfState, raisesTheClassicErrors) {
    const CubicParameters mixture = pureParameters(Attraction::RedlichKwong, kMethane, 300);
    EXPECT_EQ(errorNumber([&] { gasVolume(300, 0, mixture); }), RunTimeError::kDivisionByZero);
    EXPECT_EQ(errorNumber([&] { gasVolume(300, -1, mixture); }), RunTimeError::kInvalidCall);
    for (const Attraction attraction : kAttractions) {
        EXPECT_EQ(errorNumber([&] { cubicComponent(attraction, 300, 0, 0); }), RunTimeError::kDivisionByZero);
        EXPECT_EQ(errorNumber([&] { cubicComponent(attraction, 300, -1, 0); }), RunTimeError::kInvalidCall);
        EXPECT_EQ(errorNumber([&] { cubicComponent(attraction, -9999, 1, 0); }), RunTimeError::kInvalidCall);
        EXPECT_EQ(errorNumber([&] { pureParameters(attraction, kMethane, 0); }), RunTimeError::kDivisionByZero);
        EXPECT_EQ(errorNumber([&] { pureParameters(attraction, kMethane, -1); }), RunTimeError::kInvalidCall);
    }
}

// ---- Integrals of the ideal gas ------------------------------------------------------------------------------------

// Boole's rule in many panels.
long double quadrature(const std::function<double(double)>& f, double from, double to) {
    constexpr int kPanels = 500;
    const long double h = (static_cast<long double>(to) - from) / (4 * kPanels);
    long double sum = 0;
    for (int k = 0; k <= 4 * kPanels; ++k) {
        const int weight = k % 4 == 0 ? (k == 0 || k == 4 * kPanels ? 7 : 14) : k % 2 == 0 ? 12 : 32;
        sum += weight * static_cast<long double>(f(static_cast<double>(from + k * h)));
    }
    return sum * h * 2 / 45;
}

// The pieces below, within and above the range, each by itself.
long double inPieces(const std::function<double(double)>& f, double from, double to, double Tmin, double Tmax) {
    std::vector<double> points{from, to};
    for (const double edge : {Tmin, Tmax})
        if (edge > std::min(from, to) && edge < std::max(from, to)) points.push_back(edge);
    std::sort(points.begin(), points.end());
    long double sum = 0;
    for (std::size_t k = 1; k < points.size(); ++k) sum += quadrature(f, points[k - 1], points[k]);
    return from <= to ? sum : -sum;
}

TEST(IdealGas, integralsOfPolynomialsAreTheirAntiderivatives) {
    const Coefficients A{19.25F, 0.05213F, 1.197e-5F, -1.132e-8F, 3e-12F, -5e-16F};
    for (int type = 1; type <= 5; ++type)
        for (const double T0 : {20.0, 111.0, 373.0, 900.0})
            for (const double T : {20.0, 298.15, 1500.0}) {
                long double enthalpy = 0, entropy = A[0] * std::log(static_cast<long double>(T) / T0);
                for (int j = 0; j <= type; ++j) {
                    const long double a = A[static_cast<std::size_t>(j)];
                    enthalpy += a * (std::pow(static_cast<long double>(T), j + 1) - std::pow(T0, j + 1.0L)) / (j + 1);
                    if (j > 0) entropy += a * (std::pow(static_cast<long double>(T), j) - std::pow(T0, 1.0L * j)) / j;
                }
                const HeatCapacityIntegral integral({A, type, false, 300, 400}, T0);
                EXPECT_NEAR(integral.enthalpy(T), static_cast<double>(enthalpy), 1e-9) << type << ' ' << T0 << ' ' << T;
                EXPECT_NEAR(integral.entropy(T, std::log(T)), static_cast<double>(entropy), 1e-12) << type << ' ' << T;
            }
}

TEST(IdealGas, integralsOfEveryTypeAndRangeAgreeWithAQuadrature) {
    const HeatCapacity heatCapacities[] = {
        {{19.25F, 0.05213F, 1.197e-5F, -1.132e-8F}, 3, false, 0, 0},
        {{4.0F, -30.0F, 10.0F}, 6, false, 0, 0},
        {{0.5F, 0.0F, 0.0F, 0.4F, 1e-4F, -1e-8F}, 9, false, 0, 0},
        {{1.5F, -20.0F, 3e-4F, -1e-7F, 60.0F}, 10, false, 0, 0},
        {{4.0F, -30.0F, 200.0F, -500.0F}, 11, false, 0, 0},
        {{1.8F, 60.0F}, 12, false, 0, 0},
        {{-9.0F, 400.0F, 1.6F}, 17, false, 0, 0},
        {{3.0F, -20.0F, 0.1F, 1e-7F, 2.0F}, 18, false, 0, 0},
        {{22.0F, 0.1F, -8.0F, 900.0F}, 19, false, 0, 0},
        {{1.0F}, 0, false, 0, 0},  // none: the engine's value for that
    };
    for (HeatCapacity Cp : heatCapacities)
        for (const bool clamped : {false, true}) {
            Cp.clamped = clamped, Cp.Tmin = 200, Cp.Tmax = 500;
            for (const double T0 : {90.0, 300.0, 640.0})
                for (const double T : {90.0, 150.0, 350.0, 640.0, 700.0}) {
                    const HeatCapacityIntegral integral(Cp, T0);
                    const auto enthalpy =
                        static_cast<double>(inPieces([&](double t) { return Cp(t); }, T0, T, Cp.Tmin, Cp.Tmax));
                    const auto entropy =
                        static_cast<double>(inPieces([&](double t) { return Cp(t) / t; }, T0, T, Cp.Tmin, Cp.Tmax));
                    EXPECT_NEAR(integral.enthalpy(T), enthalpy, 1e-9 * std::abs(enthalpy) + 1e-12)
                        << Cp.type << ' ' << clamped << ' ' << T0 << ' ' << T;
                    EXPECT_NEAR(integral.entropy(T, std::log(T)), entropy, 1e-9 * std::abs(entropy) + 1e-14)
                        << Cp.type << ' ' << clamped << ' ' << T0 << ' ' << T;
                }
        }
}

// ---- The solver at the edges
// -----------------------------------------------------------------------------------------

struct SolverTest : ::testing::Test {
    static std::vector<TLatka> substances() {
        std::vector<TLatka> records;
        for (int number = 1; number <= 3; ++number) {
            TLatka record = sampleSubstance(number, "Látka");
            record.Mv = 0.02F + 0.01F * static_cast<float>(number);
            record.Tkr = 450.0F + 50.0F * static_cast<float>(number);
            record.Acent = 0.1F * static_cast<float>(number);
            record.Tnbv = 340.0F + 5.0F * static_cast<float>(number);
            records.push_back(record);
        }
        return records;
    }
    SampleMixture mixture{substances()};
    Smes& smes = mixture.smes;
    std::vector<Message>& messages = mixture.boxes.messages;
    const Variant X = Fractions({0.4, 0.6});

    SolverTest() { define(smes); }
    static void define(Smes& mixture) {
        mixture.DefSlozky(List({1, 2}));
        mixture.Inivlr();  // so that changes of a record are not overwritten by the first call
    }
    std::vector<Variant> members() const {
        return {smes.RGHustota(),      smes.RGLnFug(),    smes.RGCv(),       smes.RGCp(),
                smes.RGJouleThomson(), smes.RGEntalpie(), smes.RGEntropie(), smes.RGVnitrniEnergie()};
    }
};

using Member = Variant (Smes::*)(const Variant&, const Variant&, const Variant&);
constexpr Member kMembers[] = {&Smes::RROGW, &Smes::RHG,   &Smes::RHGW, &Smes::RSG,   &Smes::RSGW,
                               &Smes::RUG,   &Smes::RUGW,  &Smes::RCPG, &Smes::RCPGW, &Smes::RCVG,
                               &Smes::RCVGW, &Smes::LnFug, &Smes::Kapa, &Smes::JTkoef};
const std::vector<Variant> kAllEmpty(8);

TEST_F(SolverTest, reportsWhatCannotBeSolved) {
    struct Case {
        Variant T, P, X;
        const char* place;
    };
    const Case cases[] = {
        {0, 101325, X, "T(K)= 0.0 ,P(Pa)= 101325"},
        {-300, 101325, X, "T(K)= -300.0 ,P(Pa)= 101325"},
        {Variant(), 101325, X, "T(K)= 0.0 ,P(Pa)= 101325"},
        {"teplo", 101325, X, "T(K)= teplo ,P(Pa)= 101325"},
        {300.26, 0, X, "T(K)= 300.3 ,P(Pa)= 0"},
        {300, -100000, X, "T(K)= 300.0 ,P(Pa)= -100000"},
        {300, Variant(), X, "T(K)= 300.0 ,P(Pa)= 0"},
        {"300,5", "tlak", X, "T(K)= 300.5 ,P(Pa)= tlak"},
        {300, 101325, Fractions({1.0}), "T(K)= 300.0 ,P(Pa)= 101325"},
        {300, 101325, List({1, 0}), "T(K)= 300.0 ,P(Pa)= 101325"},
        {300, 101325, 0.5, "T(K)= 300.0 ,P(Pa)= 101325"},
        {300, 101325, Variant::array(1, {0.5, "x"}), "T(K)= 300.0 ,P(Pa)= 101325"},
        {300, 101325, Fractions({0, 0}), "T(K)= 300.0 ,P(Pa)= 101325"},
        {300, 101325, Fractions({1.5, -0.5}), "T(K)= 300.0 ,P(Pa)= 101325"},  // no logarithm of the fraction
        {1e-160, 101325, X, "T(K)= 0.0 ,P(Pa)= 101325"},
        {std::numeric_limits<double>::quiet_NaN(), 101325, X, "T(K)=  ,P(Pa)= 101325"},
    };
    for (const Case& c : cases) {
        smes.ChyboveHlasky(0);
        ASSERT_FALSE(smes.TEVRP(1, 300, 101325, X).isEmpty());
        EXPECT_TRUE(smes.TEVRP(1, c.T, c.P, c.X).isEmpty()) << c.place;
        EXPECT_EQ(members(), kAllEmpty) << c.place;
        for (const Member member : kMembers) EXPECT_TRUE((smes.*member)(c.T, c.P, c.X).isEmpty()) << c.place;
        EXPECT_TRUE(messages.empty()) << c.place;  // ordinary errors have no box

        smes.ChyboveHlasky(-1);
        const std::pair<const char*, std::function<void()>> raising[] = {
            {"VELOR - TEVRP; ", [&] { smes.TEVRP(1, c.T, c.P, c.X); }},
            {"VELOR - TEVRP; ", [&] { smes.RHGW(c.T, c.P, c.X); }},
            {"VELOR - RROGW; ", [&] { smes.RROGW(c.T, c.P, c.X); }},
        };
        for (const auto& [method, body] : raising) {
            try {
                body();
                ADD_FAILURE() << "nothing raised: " << c.place;
            } catch (const RunTimeError& error) {
                EXPECT_EQ(error.number(), RunTimeError::kRaisedToHost);
                EXPECT_EQ(error.source(), std::string(method) + c.place);
                EXPECT_EQ(error.description(), "Chyba při výpočtu vlastnosti!");
            }
        }
        EXPECT_EQ(members(), kAllEmpty) << c.place;
    }
}

TEST_F(SolverTest, givesNumbersFarFromAnyVapour) {
    for (const int choice : {0, 1}) {
        smes.Redlich(choice);
        for (const double T : {60.0, 300.0, 3000.0})
            for (const double P : {1e-9, 1.0, 1e8, 1e9, 1e10}) {
                ASSERT_FALSE(smes.TEVRP(1, T, P, X).isEmpty()) << T << ' ' << P;
                for (const Variant& member : members()) EXPECT_TRUE(std::isfinite(member.toDouble())) << T << ' ' << P;
                EXPECT_GT(smes.RGHustota().toDouble(), 0) << T << ' ' << P;
            }
    }
    EXPECT_TRUE(messages.empty());
}

TEST_F(SolverTest, fillsTwoMembersInEveryModeButTheFirst) {
    const Variant Z = smes.TEVRP(1, 360, 2e5, X);
    const std::vector<Variant> all = members();
    for (const int mode : {0, 2, -1, 32767}) {
        smes.TEVRP(1, 300, 101325, X);
        EXPECT_EQ(smes.TEVRP(mode, 360, 2e5, X), Z);
        EXPECT_EQ(members(), (std::vector<Variant>{all[0], all[1], {}, {}, {}, {}, {}, {}})) << mode;
    }
    EXPECT_DOUBLE_EQ(Z.toDouble(), 0.2 / (all[0].toDouble() * R * 360));
    EXPECT_EQ(smes.Slozeni(2), Variant(0.6));
    EXPECT_EQ(errorNumber([&] { smes.TEVRP(40000, 300, 101325, X); }), RunTimeError::kOverflow);
}

TEST_F(SolverTest, needsCriticalValuesOfComponentsThatArePresent) {
    for (const int choice : {0, 1})
        for (const int constant : {2, 3}) {
            smes.Redlich(choice);
            const float kept = smes.Bod(2, constant);
            for (const double unknown : {0.0, -9999.0}) {
                smes.Bod(2, constant, unknown);
                for (const Member member : kMembers)
                    EXPECT_TRUE((smes.*member)(300, 101325, X).isEmpty()) << choice << ' ' << constant << unknown;
                EXPECT_EQ(members(), kAllEmpty);
                EXPECT_FALSE(smes.RHG(300, 101325, Fractions({1, 0})).isEmpty()) << choice << ' ' << constant;
            }
            smes.Bod(2, constant, kept);
            EXPECT_FALSE(smes.RHG(300, 101325, X).isEmpty());
        }
    EXPECT_TRUE(messages.empty());
}

TEST_F(SolverTest, tellsAMissingBoilingPoint) {
    const Message missing{"Chybí údaj Tnbv 2. složky", Icon::Exclamation, "VELOR"};
    smes.TEVRP(1, 300, 101325, X);
    const std::vector<Variant> all = members();
    smes.Bod(2, 15, 0);
    struct Case {
        int mode, limit;
        bool shown;
    };
    for (const Case& c : {Case{0, 20, true}, {-1, 20, true}, {1, 20, false}, {2, 20, false}, {0, 2, false}}) {
        smes.ChyboveHlasky(c.mode), smes.MaxErrHlas(c.limit);
        messages.clear();
        const int before = smes.PocHlasek();
        EXPECT_FALSE(smes.TEVRP(1, 300, 101325, X).isEmpty());
        EXPECT_EQ(messages, (c.shown ? std::vector{missing} : std::vector<Message>{})) << c.mode << ' ' << c.limit;
        EXPECT_EQ(smes.PocHlasek() - before, c.shown ? 1 : 0);
        EXPECT_EQ(members(), (std::vector<Variant>{all[0], all[1], all[2], all[3], all[4], {}, {}, {}}));
        EXPECT_TRUE(smes.RHGW(300, 101325, X).isEmpty());
        EXPECT_FALSE(smes.RCPGW(300, 101325, X).isEmpty());
    }
    smes.ChyboveHlasky(0), smes.MaxErrHlas(20);
    messages.clear();
    EXPECT_FALSE(smes.RHG(300, 101325, Fractions({1, 0})).isEmpty());  // an absent component needs none
    smes.TEVRP(0, 300, 101325, X);                                     // nor do the other modes
    EXPECT_TRUE(messages.empty());
}

// ---- Prepared constants
// ----------------------------------------------------------------------------------------------

std::vector<Variant> valuesOf(Smes& smes) {
    const Variant X = Fractions({0.4, 0.6});
    return {smes.RHG(430, 2e6, X), smes.RSG(430, 2e6, X), smes.RCPG(430, 2e6, X), smes.LnFug(430, 2e6, X),
            smes.ALAG(430, X)};
}

TEST_F(SolverTest, followsEveryChangeAfterTheFirstValue) {
    const std::pair<const char*, std::function<void(Smes&)>> changes[] = {
        {"Mv", [](Smes& s) { s.Bod(2, 1, 0.09); }},
        {"Tkr", [](Smes& s) { s.Bod(2, 2, 560); }},
        {"Pkr", [](Smes& s) { s.Bod(1, 3, 4e6); }},
        {"Acent", [](Smes& s) { s.Redlich(1), valuesOf(s), s.Bod(1, 5, 0.3); }},
        {"Tnbv", [](Smes& s) { s.Bod(2, 15, 360); }},
        {"CPG", [](Smes& s) { s.VLRConst(1, 2, 1, 30); }},
        {"type of CPG",
         [](Smes& s) {
             s.VLRConst(1, 2, 7, 2);
             s.VLRConst(1, 2, 3, 0.01);
         }},
        {"DHV", [](Smes& s) { s.VLRConst(2, 8, 1, 30000); }},
        {"Redlich", [](Smes& s) { s.Redlich(1); }},
        {"MezeZap", [](Smes& s) { s.MezeZap(); }},
        {"Tmax", [](Smes& s) { s.MezeZap(), valuesOf(s), s.VLRConst(1, 2, 10, 380); }},
        {"slot", [](Smes& s) { s.ZapisNslozky(1, 3); }},
        {"definition",
         [](Smes& s) {
             s.DefSlozky(List({3, 1}));
         }},
        {"order",
         [](Smes& s) {
             s.DefSmes(2, Numbers(std::vector<double>{2, 1}));
         }},
    };
    for (const auto& [name, change] : changes) {
        SampleMixture used(substances()), fresh(substances());
        define(used.smes), define(fresh.smes);
        const std::vector<Variant> before = valuesOf(used.smes);
        change(used.smes), change(fresh.smes);
        EXPECT_NE(valuesOf(used.smes), before) << name;
        EXPECT_EQ(valuesOf(used.smes), valuesOf(fresh.smes)) << name;
        EXPECT_TRUE(used.boxes.messages.empty()) << name;
    }
    // There and back again.
    const std::vector<Variant> before = valuesOf(smes);
    smes.Redlich(1), smes.MezeZap();
    EXPECT_NE(valuesOf(smes), before);
    smes.Redlich(0), smes.MezeVyp();
    EXPECT_EQ(valuesOf(smes), before);
}

TEST_F(SolverTest, showsADueMessageOnEveryCall) {
    struct Case {
        int k, item;
        std::size_t boxes;
    };
    // Marked as not given the equation still has its value; without a type it has none, and a second box says so.
    for (const Case& c : {Case{kDHV, 8, 1}, Case{kDHV, 7, 1}, Case{kCPG, 8, 1}, Case{kCPG, 7, 1}}) {
        SampleMixture other(substances());
        define(other.smes);
        for (int call = 0; call < 3; ++call) other.smes.RHG(300, 101325, X);
        other.smes.VLRConst(1, c.k, c.item, 0);
        for (int call = 1; call <= 4; ++call) {
            EXPECT_FALSE(other.smes.RHG(300, 101325, X).isEmpty());
            EXPECT_EQ(other.boxes.messages.size(), static_cast<std::size_t>(call) * c.boxes) << c.k << ' ' << c.item;
        }
        // Messages that were off are due again.
        other.smes.ChyboveHlasky(2);
        other.smes.RHG(300, 101325, X);
        other.smes.ChyboveHlasky(0);
        other.boxes.messages.clear();
        other.smes.RHG(300, 101325, X);
        EXPECT_EQ(other.boxes.messages.size(), c.boxes) << c.k << ' ' << c.item;
    }
}

}  // namespace
}  // namespace velor
