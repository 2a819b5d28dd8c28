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

// Ps = 100 T, so that it would boil at kP at 1000 K.
TLatka linear(int number, float Tkr, int given = 1, int type = 1) {
    TLatka record = sampleSubstance(number, "Přímá");
    record.Tkr = Tkr;
    record.Korelace[kTENS - 1] = {{0, 100}, static_cast<std::int16_t>(type), static_cast<std::int16_t>(given), 1, 900};
    return record;
}

std::vector<TLatka> byHand() {
    return {sampleSubstance(1, "Voda"), steep(2, 420),  steep(3, 180),  linear(4, 500),       linear(5, 500, 0),
            linear(6, 500, 1, 20),      linear(7, 280), linear(8, 400), linear(9, 350, 1, 20)};
}

struct IterationTest : SampleTest {
    const Variant pure = Fractions({1.0});

    IterationTest() : SampleTest(byHand()) {}
};

// 120 K away at 1.54 K a step, both need 78 steps: given up after the 51st only where the message is due.
TEST_F(IterationTest, theLimitOfStepsIsTiedToTheMessage) {
    const double step = 1 / (std::exp(kSlope) - 1);
    const std::tuple<int, int, bool> cases[] = {{-1, 20, true}, {1, 20, true}, {2, 20, false}, {0, 0, false}};
    for (const auto& [mode, limit, limited] : cases) {
        messages.clear();
        smes.DefSlozky(List({3}));
        smes.ChyboveHlasky(mode);
        smes.MaxErrHlas(limit);
        EXPECT_NEAR(smes.TBV(kP, pure).toDouble(), limited ? 0 : 180, kTolerance);
        smes.ZapisNslozky(1, 2);
        EXPECT_NEAR(smes.TRB(kP, pure).toDouble(), limited ? 300 + 51 * step : 420, limited ? 1e-6 : kTolerance);
        EXPECT_EQ(messages, limited ? (std::vector{kNoBubble, kNoDew}) : std::vector<Message>{}) << mode;
    }
}

// From the flat side Newton's estimate is far off. It is discarded, the temperature is halved or raised by half, and
// some 20 steps from there lead to the point.
TEST_F(IterationTest, anEstimateBeyondHalfOrOneAndAHalfIsDiscarded) {
    smes.DefSlozky(List({2}));
    EXPECT_NEAR(smes.TBV(kP, pure).toDouble(), 420, kTolerance);
    smes.DefSlozky(List({3}));
    EXPECT_NEAR(smes.TRB(kP, pure).toDouble(), 180, kTolerance);
    EXPECT_TRUE(messages.empty());
}

// Held at 0.95 of the critical temperature the linear pressure never reaches kP; the dew point's last estimate tells
// where it was held: T + Ps (P - Ps) / (P dPs/dT).
TEST_F(IterationTest, theTemperatureStaysBelowEveryCriticalOne) {
    const std::pair<std::vector<int>, double> cases[] = {{{4}, 475}, {{4, 8}, 380}, {{8, 7}, 266}};
    for (const auto& [substances, T] : cases) {
        SampleMixture held(byHand());
        held.smes.DefSlozky(List(substances));
        const Variant Y = substances.size() == 1 ? pure : Fractions({0.5, 0.5});
        EXPECT_NEAR(held.smes.TRB(kP, Y).toDouble(), T + 100 * T * (kP - 100 * T) / (kP * 100), 1e-6);
        EXPECT_EQ(held.smes.TBV(kP, Y), Variant(0.0));
        EXPECT_EQ(held.boxes.messages, (std::vector{kNoDew, kNoBubble}));
    }
}

TEST_F(IterationTest, thePressureAtTIsEvaluatedTwiceSoItsMessagesComeTwice) {
    smes.MaxErrHlas(1000);
    smes.DefSlozky(List({5}));  // not given, but evaluated all the same
    EXPECT_EQ(smes.TBV(kP, pure), Variant(0.0));
    EXPECT_EQ(messages.size(), 51U * 3U + 1U);
    EXPECT_EQ(smes.PocHlasek(), 154);
    // The order: T, T + 1, T again for each component, all below the critical temperatures.
    messages.clear();
    smes.DefSlozky(List({6, 9}));
    EXPECT_TRUE(smes.TBV(kP, Fractions({0.5, 0.5})).isEmpty());
    std::string temperatures;
    for (const Message& message : messages) temperatures += message.text.substr(message.text.size() - 6);
    EXPECT_EQ(temperatures, " 300.0 301.0 300.0 300.0 301.0 300.0");
    // A budget that ends inside a step ends the messages, not the iteration.
    smes.ResetujSmes();  // slot 2 would keep its number
    smes.DefSlozky(List({5}));
    messages.clear();
    smes.MaxErrHlas(smes.PocHlasek() + 2);
    EXPECT_NEAR(smes.TBV(3.5e4, pure).toDouble(), 350, 1e-6);
    EXPECT_EQ(messages.size(), 2U);
}

TEST_F(IterationTest, errorsAreTrapped) {
    const std::tuple<int, double, Variant> cases[] = {{4, 0, pure}, {4, 3e4, Fractions({0.0})}, {6, 3e4, pure}};
    for (const auto& [substance, P, X] : cases) {
        smes.DefSlozky(List({substance}));
        EXPECT_TRUE(smes.TBV(P, X).isEmpty() && smes.TRB(P, X).isEmpty());
    }
    messages.clear();
    smes.DefSlozky(List({4, 4}));
    EXPECT_TRUE(smes.TBV(3.5e4, Fractions({0.75})).isEmpty());
    EXPECT_EQ(smes.Slozeni(1), Variant(0.75));  // what was read before the error stays
    // Below 0 K the linear pressure goes on and so does the iteration, by halves.
    EXPECT_EQ(smes.TBV(-1e4, Fractions({1, 0})), Variant(0.0));
    EXPECT_EQ(messages, std::vector{kNoBubble});
    smes.ResetujSmes();
    EXPECT_TRUE(smes.TBV(3.5e4, pure).isEmpty() && smes.TRB(3.5e4, pure).isEmpty());  // no components, no slope
}

}  // namespace
}  // namespace velor::test
