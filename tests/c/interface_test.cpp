// The C interface: what passes it is the table's, and nothing that a caller gets wrong passes it unsaid.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <string>
#include <vector>

#include "velor/flash_table.h"
#include "velor/velor.h"

namespace {

struct CInterface : testing::Test {
    velor_database* database = nullptr;
    velor_mixture* mixture = nullptr;
    velor_error error = VELOR_ERROR_INIT;
    const int numbers[2] = {235, 1};
    std::vector<double> T{300, 320, std::nan(""), 360}, x{0.4, 0.6}, values = std::vector(4, -1.0);
    std::vector<int> verdicts = std::vector(4, -1);

    void SetUp() override {
        ASSERT_EQ(velor_database_open(VELOR_DATABASE, &database, &error), VELOR_OK) << error.text;
        ASSERT_EQ(velor_mixture_create(database, numbers, 2, nullptr, &mixture, &error), VELOR_OK) << error.text;
    }
    void TearDown() override {
        velor_mixture_free(mixture);
        velor_database_close(database);
    }
    velor_compositions composition() const { return {sizeof(velor_compositions), x.data(), x.size(), 1, 0, 0, 0}; }
};

TEST_F(CInterface, everyPropertyIsTheTables) {
    const velor::PreparedMixture prepared(VELOR_DATABASE, numbers);
    const double P = 1e5;
    const velor_compositions X = composition();
    for (int index = 0; index < velor_mixture_property_count(); ++index) {
        velor_property row{};
        row.size = sizeof row;
        ASSERT_EQ(velor_mixture_property(index, &row), VELOR_OK);
        EXPECT_EQ(velor_find_mixture_property(row.code), index);
        ASSERT_EQ(
            velor_evaluate(mixture, index, {T.data(), 4}, {&P, 1}, &X, 4, values.data(), verdicts.data(), 2, &error),
            VELOR_OK)
            << error.text;
        std::vector<double> expected(4);
        std::vector<velor::Standing> standings(4);
        velor::evaluate(prepared, *velor::findMixtureProperty(row.code), T, {&P, 1}, {x}, expected, standings);
        for (std::size_t i = 0; i < 4; ++i) {
            EXPECT_TRUE(values[i] == expected[i] || (std::isnan(values[i]) && std::isnan(expected[i]))) << row.code;
            EXPECT_EQ(velor_verdict_word(verdicts[i]), velor::standingWord(standings[i])) << row.code;
            EXPECT_EQ(velor_verdict_has_value(verdicts[i]), std::isnan(values[i]) ? 0 : 1) << row.code;
        }
    }
}

TEST_F(CInterface, aFlashIsTheTables) {
    const double P = 1e5;
    const velor_compositions Z = composition();
    std::vector<double> vapours(8), liquids(8), expected(4), expectedVapours(8);
    std::vector<int> outcomes(4);
    velor_flash_results results = VELOR_FLASH_RESULTS_INIT;
    results.outcomes = outcomes.data();
    results.vapour_fractions = values.data();
    results.vapours = vapours.data();
    results.liquids = liquids.data();
    results.fraction_count = 8;
    const auto flashed = [&](int kind) {
        return velor_flash(mixture, kind, {T.data(), 4}, {&P, 1}, &Z, 4, &results, 2, &error);
    };
    EXPECT_EQ(flashed(2), VELOR_WRONG_USE);
    T[3] = 363;
    ASSERT_EQ(flashed(VELOR_ISOTHERMAL), VELOR_OK) << error.text;
    velor::flash(velor::PreparedMixture(VELOR_DATABASE, numbers), velor::FlashKind::Isothermal, T, {&P, 1}, {x}, 4,
                 {.vapourFractions = expected, .vapours = expectedVapours});
    EXPECT_EQ(outcomes, (std::vector<int>{VELOR_FLASH_ALL_LIQUID, VELOR_FLASH_ALL_LIQUID, VELOR_FLASH_NONE,
                                          VELOR_FLASH_CONVERGED}));
    EXPECT_EQ(values[3], expected[3]);
    EXPECT_EQ(vapours[7], expectedVapours[7]);
    results.fraction_count = 7;
    EXPECT_EQ(flashed(VELOR_ADIABATIC), VELOR_WRONG_USE);
}

TEST_F(CInterface, theDatabaseTellsWhatItHolds) {
    int finding = -1, found[2] = {}, count = 0;
    ASSERT_EQ(velor_database_find(database, "ethanol", &finding, found, 2, &count, &error), VELOR_OK);
    EXPECT_EQ(finding, VELOR_FOUND);
    EXPECT_EQ(found[0], 235);
    ASSERT_EQ(velor_database_find(database, "xylen", &finding, found, 2, &count, &error), VELOR_OK);
    EXPECT_EQ(finding, VELOR_UNKNOWN);
    EXPECT_GT(count, 2);
    double Tc = 0;
    ASSERT_STREQ(velor_constant_key(1), "Tkr");
    ASSERT_EQ(velor_database_constant(database, 1, 1, &Tc), VELOR_OK);
    EXPECT_NEAR(Tc, 647.096, 1e-3);  // IAPWS
    velor_correlation correlation{};
    correlation.size = sizeof correlation;
    ASSERT_EQ(velor_database_correlation(database, 235, velor_find_pure_property("TENS"), &correlation), VELOR_OK);
    EXPECT_EQ(correlation.is_given, 1);
    EXPECT_LT(correlation.t_min, correlation.t_max);
}

TEST_F(CInterface, whatTheCallerGetsWrongIsToldAndNothingTouched) {
    const velor_compositions X = composition();
    const auto refused = [&](int status) {
        EXPECT_EQ(status, VELOR_WRONG_USE);
        EXPECT_STRNE(error.text, "");
        EXPECT_EQ(values, std::vector(4, -1.0));
        error.text[0] = '\0';
    };
    const int row = velor_find_mixture_property("ROLW");
    const auto evaluated = [&](const velor_mixture* m, int property, velor_series temperatures,
                               const velor_compositions* c) {
        return velor_evaluate(m, property, temperatures, {nullptr, 0}, c, 4, values.data(), nullptr, 1, &error);
    };
    velor_compositions odd = X;
    odd.size = 8;
    refused(evaluated(nullptr, row, {T.data(), 4}, &X));
    refused(evaluated(mixture, 1000, {T.data(), 4}, &X));
    refused(evaluated(mixture, -1, {T.data(), 4}, &X));
    refused(evaluated(mixture, row, {T.data(), 3}, &X));
    refused(evaluated(mixture, row, {nullptr, 4}, &X));
    refused(evaluated(mixture, row, {T.data(), 4}, nullptr));
    refused(evaluated(mixture, row, {T.data(), 4}, &odd));
    velor_database* none = nullptr;
    EXPECT_EQ(velor_database_open("/nikde/VELOR.DRC", &none, &error), VELOR_RUN_TIME_ERROR);
    EXPECT_EQ(error.number, 76);
    EXPECT_EQ(none, nullptr);
    const int wrong[] = {235, 32000};
    velor_mixture* nothing = nullptr;
    EXPECT_EQ(velor_mixture_create(database, wrong, 2, nullptr, &nothing, &error), VELOR_RUN_TIME_ERROR);
    EXPECT_STREQ(velor_verdict_word(-1), "");
    EXPECT_STREQ(velor_constant_unit(99), "");
}

}  // namespace
