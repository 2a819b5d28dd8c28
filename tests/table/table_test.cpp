// The table against the object, point by point, and what it promises beyond.
#include "velor/table.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <random>

#include "support/real_mixture.h"
#include "velor/substances.h"

namespace velor::test {
namespace {

constexpr int kNitrogen = 3, kOxygen = 4, kWater = 1, kBenzene = 182, kToluene = 183;

const MixtureProperty& property(std::string_view code) { return *findMixtureProperty(code); }

// A mixture of the whole database, in the object and in the table.
struct Pair {
    std::vector<int> numbers;
    std::vector<double> x;
    MixtureSettings settings;

    explicit Pair(std::mt19937& random) {
        static const SubstanceList substances = readSubstances(VELOR_DATABASE);
        std::sample(substances.begin(), substances.end(), chosen.begin(), 1 + static_cast<int>(random() % 20), random);
        std::uniform_real_distribution<double> part(0.01, 1.0);
        double sum = 0;
        for (const Substance& substance : chosen) {
            if (substance.number == 0) break;
            numbers.push_back(substance.number);
            x.push_back(numbers.size() % 7 == 5 ? 1e-7 : part(random));  // some traces
            sum += x.back();
        }
        for (double& fraction : x) fraction /= sum;
        settings = {random() % 2 == 0, random() % 3 == 0};
    }

    PropertyValue byObject(const MixtureProperty& row, double T, double P) const {
        RecordingUserInterface silence;
        Smes smes(silence);
        smes.AdrVELOR(VELOR_DATABASE);
        smes.DefSlozky(List(std::span<const int>(numbers)));
        smes.Redlich(settings.isSoave ? 1 : 0);
        if (settings.isClamped) smes.MezeZap();
        smes.MaxErrHlas(32767);
        smes.ChyboveHlasky(-1);
        smes.Inivlr();
        return mixtureValue(smes, row, T, P, Fractions(x)).result;
    }

    PropertyValue byTable(const PreparedMixture& prepared, const MixtureProperty& row, double T, double P) const {
        double value = 0;
        Standing standing{};
        evaluate(prepared, row, {&T, 1}, {&P, 1}, {x}, {&value, 1}, {&standing, 1});
        return {standing, value};
    }

  private:
    std::array<Substance, 20> chosen{};
};

TEST(Table, answersAsTheObjectDoes) {
    std::mt19937 random(20);
    int compared = 0;
    for (int mixture = 0; mixture < 25; ++mixture) {
        const Pair pair(random);
        const PreparedMixture prepared(VELOR_DATABASE, pair.numbers, pair.settings);
        for (const auto& [T, P] : {std::pair(330.0, 1e5), {210.0, 2e6}, {620.0, 3e4}, {-5.0, 1e5}, {4.0, 1e5}}) {
            for (const MixtureProperty& row : mixtureProperties()) {
                const PropertyValue object = pair.byObject(row, T, P), table = pair.byTable(prepared, row, T, P);
                const std::string place = std::string(row.code) + " of mixture " + std::to_string(mixture);
                // Where the object's iteration ends without a solution, or never, the table may have one.
                if (row.outcome && !object.isComputed()) continue;
                EXPECT_EQ(standingWord(table.standing), standingWord(object.standing)) << place;
                EXPECT_EQ(std::isnan(table.value), !object.isComputed()) << place;
                if (!object.isComputed()) continue;
                EXPECT_NEAR(table.value, object.value, row.outcome ? 0.02 : 1e-12 * std::abs(object.value)) << place;
                ++compared;
            }
        }
    }
    EXPECT_GT(compared, 1500);
}

// Moist air of 3 % water: its dew point is that of the water alone, 24.4 °C at a vapour pressure of 3040 Pa (IAPWS).
TEST(Table, gasesThatDoNotCondenseHaveADewPointAllTheSame) {
    const PreparedMixture air(VELOR_DATABASE, std::vector{kNitrogen, kOxygen, kWater});
    const double P = 101325;
    double T = 0;
    Standing standing{};
    evaluate(air, property("TRB"), {}, {&P, 1}, {std::vector{0.766, 0.204, 0.03}}, {&T, 1}, {&standing, 1});
    EXPECT_NEAR(T - 273.15, 24.4, 0.3);
    EXPECT_EQ(standing, Standing::Inert);
}

TEST(Table, aFaultOfOnePointLeavesTheOthersAndThreadsChangeNothing) {
    const PreparedMixture mixture(VELOR_DATABASE, std::vector{kBenzene, kToluene});
    const std::vector<double> x{0.25, 0.75};
    std::vector<double> T;
    for (int i = 0; i < 101; ++i) T.push_back(300 + i);
    std::vector<double> whole(T.size()), spoilt(T.size());
    evaluate(mixture, property("ETAL"), T, {}, {x}, whole, {});
    T[50] = std::nan("");
    std::vector<Standing> verdicts(T.size());
    evaluate(mixture, property("ETAL"), T, {}, {x}, spoilt, verdicts, {.threads = 7});
    EXPECT_TRUE(std::isnan(spoilt[50]));
    EXPECT_EQ(verdicts[50], Standing::Failed);
    spoilt[50] = whole[50];
    EXPECT_EQ(spoilt, whole);
}

TEST(Table, compositionsMayLieInAnyOrder) {
    const PreparedMixture mixture(VELOR_DATABASE, std::vector{kBenzene, kToluene});
    const std::vector<double> byPoint{0.2, 0.8, 0.6, 0.4}, byComponent{0.2, 0.6, 0.8, 0.4}, parts{1, 4, 3, 2};
    const std::vector<double> T{350};
    const auto densities = [&](const Compositions& X) {
        std::vector<double> values(2);
        evaluate(mixture, property("ROLW"), T, {}, X, values, {});
        return values;
    };
    const std::vector<double> expected = densities({byPoint, 1, 2});
    EXPECT_EQ(densities({byComponent, 2, 1}), expected);
    const std::vector<double> normalised = densities({parts, 1, 2, FractionKind::Mole, true});
    EXPECT_NEAR(normalised[1], expected[1], 1e-12 * expected[1]);
    EXPECT_TRUE(std::isnan(densities({parts, 1, 2})[0])) << "parts are no fractions";
    // By mass: w = x M / sum(x M) with M = 0.07811 and 0.09214 kg/mol.
    const double M1 = 0.0781118, M2 = 0.0921384, mass = 0.2 * M1 + 0.8 * M2;
    const std::vector<double> w{0.2 * M1 / mass, 0.8 * M2 / mass};
    EXPECT_NEAR(densities({w, 1, 0, FractionKind::Mass})[0], expected[0], 1e-4);
}

TEST(Table, whatDoesNotFitIsRefusedBeforeAnythingIsComputed) {
    const PreparedMixture mixture(VELOR_DATABASE, std::vector{kBenzene, kToluene});
    const std::vector<double> x{0.5, 0.5}, three(3, 300.0);
    std::vector<double> two(2, -1.0);
    const auto refused = [&](std::span<const double> T, const Compositions& X) {
        EXPECT_THROW(evaluate(mixture, property("ROLW"), T, {}, X, two, {}), RunTimeError);
        EXPECT_EQ(two, std::vector(2, -1.0));
    };
    refused(three, {x});
    refused({}, {x});
    refused(std::span(three).first(1), {x, 2});
    refused(std::span(three).first(1), {x, 1, 2});
    refused(std::span(three).first(1), {x, 1, -1});
    refused(std::span(three).first(1), {x, 1, PTRDIFF_MAX});
    evaluate(mixture, pureProperties()[0], 1, std::span(three).first(1), {}, {}, {.threads = 9});  // no point, no fault
    EXPECT_THROW(PreparedMixture(VELOR_DATABASE, std::vector<int>{}), RunTimeError);
    EXPECT_THROW(PreparedMixture(VELOR_DATABASE, std::vector<int>{32000}), RunTimeError);
    EXPECT_THROW(evaluate(mixture, pureProperties()[0], 3, std::span(three).first(2), two, {}), RunTimeError);
}

// The object's own table: of what it holds now, silent, and empty where there is no value.
TEST(Table, ofAnObjectFollowsWhatItHolds) {
    RealMixture object({64175, 7732185});
    Smes& smes = object.smes;
    const Variant X = Fractions({0.4, 0.6});
    smes.Inivlr();
    smes.Bod(1, 2, 900);
    smes.Redlich(1);
    const Variant T = List({300.0, Variant(), "teplo", "320,5"});
    for (const char* name : {"tens", "RROGW"}) {
        const Variant found = smes.Tabulka(name, X, T, 2e5);
        ASSERT_EQ(found.upperBound(), 3);
        EXPECT_TRUE(found.at(1).isEmpty() && found.at(2).isEmpty());
        for (const int i : {0, 3}) {
            const double expected = smes.Vlastnost(name, X, T.at(i), 2e5).toDouble();
            EXPECT_NEAR(found.at(i).toDouble(), expected, 1e-12 * expected) << name;
        }
    }
    EXPECT_EQ(smes.Tabulka("VSM", X, 0), smes.VSM(X));
    EXPECT_EQ(smes.Tabulka("TBV", X, Variant(), Numbers(std::vector{1e5, 0.0})).at(2), Variant());
    const auto errorOf = [&](const char* name, const Variant& t, const Variant& p) {
        try {
            smes.Tabulka(name, X, t, p);
        } catch (const RunTimeError& error) {
            return error.number();
        }
        return 0;
    };
    EXPECT_EQ(errorOf("nic", T, 1e5), RunTimeError::kInvalidCall);
    EXPECT_EQ(errorOf("ROGW", T, Numbers(std::vector{1.0, 2.0})), RunTimeError::kSubscript);
    EXPECT_EQ(errorOf("ROGW", T, Variant::missing()), RunTimeError::kTypeMismatch);
    smes.ZapisNslozky(2, 899);
    EXPECT_TRUE(smes.Tabulka("TENS", X, 300).isEmpty());
    EXPECT_NE(smes.PosledniHlaska(), "");
    EXPECT_TRUE(object.boxes.messages.empty());
}

}  // namespace
}  // namespace velor::test
