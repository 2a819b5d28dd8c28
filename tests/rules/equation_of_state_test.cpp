// The equation of state below the mixture object, the ideal gas's integrals, and the solver at the edges of its domain.
#include "rules/equation_of_state.h"

#include <algorithm>
#include <functional>

#include "properties/pure_value.h"
#include "rules/ideal_gas.h"
#include "support/sample_test.h"

namespace velor::test {
namespace {

constexpr double R = 8.314;

struct Gas {
    double Tc, pc, acentric;  // K, MPa, -
};
constexpr Gas kGases[] = {
    {190.56, 4.599, 0.011}, {647.1, 22.064, 0.344}, {33.19, 1.313, -0.216}, {617.7, 2.11, 0.49}, {900.0, 1.0, 0.9}};

CubicParameters pureParameters(Attraction attraction, const Gas& gas, double T) {
    const double one = 1.0;
    const CubicComponent component = cubicComponent(attraction, gas.Tc, gas.pc, gas.acentric);
    return mixtureParameters(attraction, T, {&one, 1}, {&component, 1});
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
    int most = 0, states = 0;
    double steps = 0.0, worstVolume = 0.0;
    for (const Gas& gas : kGases)
        for (const Attraction attraction : {Attraction::RedlichKwong, Attraction::Soave})
            for (int state = 0; state < 25 * 40; ++state, ++states) {
                const double T = gas.Tc * (0.3 + 2.7 * (state / 40) / 24);
                const double p = 1e-4 * std::pow(1e6, (state % 40) / 39.0);
                const CubicParameters mixture = pureParameters(attraction, gas, T);
                const CubicVolume found = gasVolume(T, p, mixture);
                const double V = found.V, b = mixture.b, expected = volumeByBisection(T, p, mixture);
                ASSERT_GT(V, b) << gas.Tc << ' ' << T << ' ' << p;
                // Where the last change is below 0.01, twice that is left at a triple root and far less elsewhere.
                EXPECT_NEAR(V, expected, 0.02) << gas.Tc << ' ' << T << ' ' << p;
                // As a share of the repulsion, because a liquid is stiff.
                const double repulsion = R * T / (V - b), attracted = mixture.theta() / (V * (V + b));
                EXPECT_LT(std::abs(repulsion - attracted - p) / repulsion, 1e-4) << gas.Tc << ' ' << T << ' ' << p;
                most = std::max(most, found.steps);
                steps += found.steps;
                worstVolume = std::max(worstVolume, std::abs(V - expected));
            }
    EXPECT_EQ(states, 10000);
    EXPECT_LT(most, 30) << "the limit of steps has cut an iteration off";
    EXPECT_LT(steps, 4.0 * states);
    EXPECT_LT(worstVolume, 1e-4);
}

// ---- Integrals of the ideal gas: Boole's rule in the pieces below, within and above the range ----------------------

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

double inPieces(const std::function<double(double)>& f, double from, double to, const HeatCapacity& Cp) {
    std::vector<double> points{from, to};
    for (const double edge : {Cp.Tmin, Cp.Tmax})
        if (edge > std::min(from, to) && edge < std::max(from, to)) points.push_back(edge);
    std::sort(points.begin(), points.end());
    long double sum = 0;
    for (std::size_t k = 1; k < points.size(); ++k) sum += quadrature(f, points[k - 1], points[k]);
    return static_cast<double>(from <= to ? sum : -sum);
}

TEST(IdealGas, integralsOfEveryTypeAndRangeAgreeWithAQuadrature) {
    // clang-format off
    const HeatCapacity heatCapacities[] = {
        {{19.25F, 0.05213F}, 1, false, 0, 0}, {{19.25F, 0.05213F, 1.197e-5F, -1.132e-8F}, 3, false, 0, 0},
        {{19.25F, 0.05213F, 1.197e-5F, -1.132e-8F, 3e-12F, -5e-16F}, 5, false, 0, 0},
        {{4.0F, -30.0F, 10.0F}, 6, false, 0, 0}, {{0.5F, 0.0F, 0.0F, 0.4F, 1e-4F, -1e-8F}, 9, false, 0, 0},
        {{1.5F, -20.0F, 3e-4F, -1e-7F, 60.0F}, 10, false, 0, 0}, {{4.0F, -30.0F, 200.0F, -500.0F}, 11, false, 0, 0},
        {{1.8F, 60.0F}, 12, false, 0, 0}, {{-9.0F, 400.0F, 1.6F}, 17, false, 0, 0},
        {{3.0F, -20.0F, 0.1F, 1e-7F, 2.0F}, 18, false, 0, 0}, {{22.0F, 0.1F, -8.0F, 900.0F}, 19, false, 0, 0},
        {{1.0F}, 0, false, 0, 0}};  // none: the engine's value for that
    // clang-format on
    for (HeatCapacity Cp : heatCapacities)
        for (const bool clamped : {false, true}) {
            Cp.clamped = clamped, Cp.Tmin = 200, Cp.Tmax = 500;
            for (const double T0 : {90.0, 300.0, 640.0})
                for (const double T : {90.0, 150.0, 350.0, 640.0, 700.0}) {
                    const HeatCapacityIntegral integral(Cp, T0);
                    const double H = inPieces([&](double t) { return Cp(t); }, T0, T, Cp);
                    const double S = inPieces([&](double t) { return Cp(t) / t; }, T0, T, Cp);
                    EXPECT_NEAR(integral.enthalpy(T), H, 1e-9 * std::abs(H) + 1e-12) << Cp.type << ' ' << clamped << T;
                    EXPECT_NEAR(integral.entropy(T, std::log(T)), S, 1e-9 * std::abs(S) + 1e-14) << Cp.type << ' ' << T;
                }
        }
}

// ---- The solver ----------------------------------------------------------------------------------------------------

std::vector<TLatka> substances() {
    std::vector<TLatka> records = sampleSubstances(3);
    for (TLatka& record : records) {
        const float n = record.Cislo;
        record.Mv = 0.02F + 0.01F * n, record.Tkr = 450 + 50 * n, record.Acent = 0.1F * n, record.Tnbv = 340 + 5 * n;
    }
    return records;
}

void define(Smes& smes) {
    smes.DefSlozky(List({1, 2}));
    smes.Inivlr();  // so that changes of a record are not overwritten by the first call
}

struct SolverTest : SampleTest {
    const Variant X = Fractions({0.4, 0.6});

    SolverTest() : SampleTest(substances()) { define(smes); }
};

// ---- Prepared constants --------------------------------------------------------------------------------------------

std::vector<Variant> valuesOf(Smes& s) {
    const Variant X = Fractions({0.4, 0.6});
    return {s.RHG(430, 2e6, X), s.RSG(430, 2e6, X), s.RCPG(430, 2e6, X), s.LnFug(430, 2e6, X), s.ALAG(430, X)};
}

TEST_F(SolverTest, followsEveryChangeAfterTheFirstValue) {
    // clang-format off
    const std::pair<const char*, std::function<void(Smes&)>> changes[] = {
        {"Mv", [](Smes& s) { s.Bod(2, 1, 0.09); }},
        {"Tkr", [](Smes& s) { s.Bod(2, 2, 560); }},
        {"Pkr", [](Smes& s) { s.Bod(1, 3, 4e6); }},
        {"Acent", [](Smes& s) { s.Redlich(1), valuesOf(s), s.Bod(1, 5, 0.3); }},
        {"Tnbv", [](Smes& s) { s.Bod(2, 15, 360); }},
        {"CPG", [](Smes& s) { s.VLRConst(1, 2, 1, 30); }},
        {"type of CPG", [](Smes& s) { s.VLRConst(1, 2, 7, 2), s.VLRConst(1, 2, 3, 0.01); }},
        {"DHV", [](Smes& s) { s.VLRConst(2, 8, 1, 30000); }},
        {"Redlich", [](Smes& s) { s.Redlich(1); }},
        {"MezeZap", [](Smes& s) { s.MezeZap(); }},
        {"Tmax", [](Smes& s) { s.MezeZap(), valuesOf(s), s.VLRConst(1, 2, 10, 380); }},
        {"slot", [](Smes& s) { s.ZapisNslozky(1, 3); }},
        {"definition", [](Smes& s) { s.DefSlozky(List({3, 1})); }},
        {"order", [](Smes& s) { s.DefSmes(2, Numbers(std::vector<double>{2, 1})); }}};
    // clang-format on
    for (const auto& [name, change] : changes) {
        SampleMixture used(substances()), fresh(substances());
        define(used.smes), define(fresh.smes);
        const std::vector<Variant> before = valuesOf(used.smes);
        change(used.smes), change(fresh.smes);
        EXPECT_NE(valuesOf(used.smes), before) << name;
        EXPECT_EQ(valuesOf(used.smes), valuesOf(fresh.smes)) << name;
        EXPECT_TRUE(used.boxes.messages.empty()) << name;
    }
}

TEST_F(SolverTest, showsADueMessageOnEveryCall) {
    for (const int k : {kDHV, kCPG})
        for (const int item : {7, 8}) {  // without a type, or marked as not given
            define(smes);
            smes.ZapisNslozky(1, 1);
            smes.Inivlr();
            for (int call = 0; call < 3; ++call) smes.RHG(300, 101325, X);
            smes.VLRConst(1, k, item, 0);
            for (const int mode : {0, 0, 2, 0}) {  // messages that were off are due again
                smes.ChyboveHlasky(mode);
                messages.clear();
                EXPECT_FALSE(smes.RHG(300, 101325, X).isEmpty());
                EXPECT_EQ(messages.size(), mode == 0 ? 1U : 0U) << k << ' ' << item;
            }
        }
}

}  // namespace
}  // namespace velor::test
