// Bubble and dew points: of every substance of the database, and the iteration's own rules on vapour pressures simple
// enough to follow it by hand. No case here may run without its limit of steps unless it is known to converge.
#include "records/record_file.h"
#include "support/sample_test.h"

namespace velor::test {
namespace {

constexpr int kTENS = 9;
constexpr double kAtmosphere = 101325, kTolerance = 0.02;

TEST(Saturation, everySubstanceBoilsWhereItsVapourPressureIsTheGivenOne) {
    const int count = RecordFile(VELOR_DATABASE).count();
    for (int number = 1; number <= count; ++number) {
        RecordingUserInterface boxes;
        Smes smes(boxes);  // a fresh budget of messages, so that the steps are limited
        smes.AdrVELOR(VELOR_DATABASE);
        smes.DefSlozky(List({number}));
        for (const auto method : {&Smes::TBV, &Smes::TRB}) {
            const double T = (smes.*method)(kAtmosphere, Fractions({1.0})).toDouble();
            EXPECT_LT(smes.FFce(T - kTolerance, 1, kTENS).toDouble(), kAtmosphere) << number;
            EXPECT_GT(smes.FFce(T + kTolerance, 1, kTENS).toDouble(), kAtmosphere) << number;
        }
        EXPECT_TRUE(boxes.messages.empty()) << number;
    }
}

const Message kNoBubble{"Výp.bodu varu diverguje!", Icon::Exclamation, "VELOR"};
const Message kNoDew{"Výp.ros.bodu diverguje!", Icon::Exclamation, "VELOR"};

// ---- Vapour pressures that can be followed by hand -----------------------------------------------------------------

constexpr double kP = 1e5, kSlope = 0.5;  // ln Ps rises by 0.5 in a kelvin

// Boils at Tb at kP, and far from it Newton's method on the steep exponential goes a constant step.
TLatka steep(int number, double Tb) {
    TLatka record = sampleSubstance(number, "Strmá");
    record.Tkr = 1000;
    record.Korelace[kTENS - 1] = {
        {static_cast<float>(std::log(kP) - kSlope * Tb), 0, 0, static_cast<float>(kSlope), 1}, 18, 1, 1, 900};
    return record;
}

struct IterationTest : SampleTest {
    const Variant pure = Fractions({1.0});

    IterationTest() : SampleTest({sampleSubstance(1, "Voda"), steep(2, 420), steep(3, 180)}) {}
};

// 120 K away at 1.54 K a step, both need 78 steps: given up after the 51st only where the message is due or nobody
// waits for it.
TEST_F(IterationTest, theLimitOfStepsIsTiedToTheMessage) {
    const double step = 1 / (std::exp(kSlope) - 1);
    const std::tuple<int, int, int, bool> cases[] = {{-1, 20, 0, true}, {1, 20, 0, true}, {2, 20, 0, false},
                                                     {0, 0, 0, false},  {0, 0, 1, true},  {2, 20, 1, true}};
    for (const auto& [mode, limit, quiet, limited] : cases) {
        smes.Tichy(quiet);
        messages.clear();
        smes.DefSlozky(List({3}));
        smes.ChyboveHlasky(mode);
        smes.MaxErrHlas(limit);
        EXPECT_NEAR(smes.TBV(kP, pure).toDouble(), limited ? 0 : 180, kTolerance);
        smes.ZapisNslozky(1, 2);
        EXPECT_NEAR(smes.TRB(kP, pure).toDouble(), limited ? 300 + 51 * step : 420, limited ? 1e-6 : kTolerance);
        EXPECT_EQ(messages, limited && !quiet ? (std::vector{kNoBubble, kNoDew}) : std::vector<Message>{}) << mode;
    }
}

}  // namespace
}  // namespace velor::test
