// Flashes of the table against the object's, state by state, and what they promise beyond.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "support/real_mixture.h"
#include "velor/flash_table.h"
#include "velor/verdict.h"

namespace velor::test {
namespace {

constexpr int kMethane = 10, kWater = 1, kBenzene = 182, kToluene = 183, kEthanol = 235;

struct Results {
    std::vector<FlashOutcome> outcomes;
    std::vector<Standing> verdicts;
    std::vector<double> V, T, x, y, K;

    FlashResults arrays(std::ptrdiff_t componentStride = 1, std::ptrdiff_t pointStride = 0) {
        return {.outcomes = outcomes,
                .verdicts = verdicts,
                .vapourFractions = V,
                .temperatures = T,
                .liquids = x,
                .vapours = y,
                .equilibriums = K,
                .componentStride = componentStride,
                .pointStride = pointStride};
    }
    Results(std::size_t components, std::size_t points)
        : outcomes(points), verdicts(points), V(points), T(points), x(components * points), y(x), K(x) {}
};

void expectSame(const FlashRecord& object, const Results& table, double T, double share) {
    ASSERT_EQ(table.outcomes[0], object.outcome);
    EXPECT_NEAR(table.V[0], object.vapourFraction, share);
    EXPECT_NEAR(table.T[0], object.temperature, T);
    for (std::size_t i = 0; i < object.feed.size(); ++i) {
        EXPECT_NEAR(table.x[i], object.liquid[i], share);
        EXPECT_NEAR(table.y[i], object.vapour[i], share);
        if (object.passes == 0) continue;
        EXPECT_NEAR(table.K[i], object.equilibrium[i], share * object.equilibrium[i]);
    }
}

TEST(FlashTable, answersAsTheObjectDoes) {
    std::mt19937 random(6);
    std::uniform_real_distribution<double> temperature(280, 420), logarithm(std::log(2e4), std::log(1e6));
    int converged = 0;
    const std::vector<std::int32_t> registryNumbers{71432, 108883, 64175, 7732185, 110543};
    for (const FlashKind kind : {FlashKind::Isothermal, FlashKind::Adiabatic}) {
        for (int state = 0; state < 150; ++state) {
            RealMixture object({registryNumbers.begin(), registryNumbers.begin() + 2 + state % 4});
            std::vector<double> z;
            for (int i = 0; i < 2 + state % 4; ++i) z.push_back(1.0 + static_cast<double>(random() % 9));
            std::vector<TLatka> records;
            object.smes.Inivlr();
            for (int i = 1; i <= static_cast<int>(z.size()); ++i) records.push_back(object.smes.record(i));
            const double T = temperature(random), P = std::exp(logarithm(random));
            Variant t(T), p(P);
            const bool isAdiabatic = kind == FlashKind::Adiabatic;
            object.smes.FLASH(isAdiabatic ? 1 : 0, t, p, Fractions(z));
            Results table(z.size(), 1);
            const Compositions parts{.values = z, .isNormalised = true};
            flash(PreparedMixture(records), kind, {&T, 1}, {&P, 1}, parts, 1, table.arrays());
            SCOPED_TRACE("state " + std::to_string(state) + " at " + std::to_string(T) + " K");
            expectSame(object.smes.lastFlash(), table, isAdiabatic ? 0.1 : 0.0, isAdiabatic ? 2e-3 : 1e-12);
            converged += table.outcomes[0] == FlashOutcome::Converged;
        }
    }
    EXPECT_GT(converged, 50);
}

TEST(FlashTable, arraysMayLieInAnyOrderAndAFaultStaysAlone) {
    const PreparedMixture mixture(VELOR_DATABASE, std::vector{kBenzene, kToluene});
    const std::size_t points = 41;
    std::vector<double> T(points);
    for (std::size_t i = 0; i < points; ++i) T[i] = 360 + 0.5 * static_cast<double>(i);
    const std::vector<double> P{101325}, z{0.4, 0.6};
    Results whole(2, points), spoilt(2, points);
    flash(mixture, FlashKind::Isothermal, T, P, {z}, points, whole.arrays());
    T[20] = std::nan("");
    flash(mixture, FlashKind::Isothermal, T, P, {z}, points, spoilt.arrays(points, 1), {.threads = 5});
    EXPECT_EQ(spoilt.outcomes[20], FlashOutcome::None);
    EXPECT_EQ(spoilt.verdicts[20], Standing::Failed);
    for (std::size_t i = 0; i < points; ++i) {
        if (i == 20) continue;
        EXPECT_EQ(spoilt.V[i], whole.V[i]);
        EXPECT_EQ(spoilt.y[i + points], whole.y[2 * i + 1]);
    }
    EXPECT_EQ(whole.outcomes.front(), FlashOutcome::AllLiquid);
    EXPECT_EQ(whole.outcomes.back(), FlashOutcome::AllVapour);
    EXPECT_TRUE(std::isnan(whole.K.back()));
}

// Methane far above its critical temperature leaves the water no dew point of its own; part of the water condenses.
TEST(FlashTable, aGasAboveItsCriticalTemperatureIsFlashedAllTheSame) {
    const PreparedMixture mixture(VELOR_DATABASE, std::vector{kMethane, kWater});
    const std::vector<double> T{290, 400}, P{101325}, z{0.9, 0.1};
    Results found(2, 2);
    flash(mixture, FlashKind::Isothermal, T, P, {z}, 2, found.arrays());
    EXPECT_EQ(found.outcomes[0], FlashOutcome::Converged);
    EXPECT_EQ(found.verdicts[0], Standing::BelowCritical);
    EXPECT_NEAR(found.y[1], 1920 / P[0], 0.05 * 1920 / P[0]);  // saturated: 1920 Pa at 290 K (IAPWS)
    EXPECT_EQ(found.outcomes[1], FlashOutcome::AllVapour);
}

TEST(FlashTable, whatDoesNotFitIsRefusedBeforeAnythingIsComputed) {
    const PreparedMixture mixture(VELOR_DATABASE, std::vector{kEthanol, kWater});
    const std::vector<double> T(3, 350.0), P{101325}, z{0.5, 0.5};
    Results three(2, 3);
    const auto refused = [&](const FlashResults& results, std::size_t points = 3) {
        EXPECT_THROW(flash(mixture, FlashKind::Isothermal, T, P, {z}, points, results), RunTimeError);
    };
    refused(three.arrays(), 2);
    for (const auto& [componentStride, pointStride] :
         {std::pair<std::ptrdiff_t, std::ptrdiff_t>{1, 1}, {1, 3}, {2, 1}, {0, 2}, {-1, 2}, {PTRDIFF_MAX, 1}})
        refused(three.arrays(componentStride, pointStride));
    flash(mixture, FlashKind::Isothermal, T, P, {z}, 3, three.arrays(3, 1));
}

}  // namespace
}  // namespace velor::test
