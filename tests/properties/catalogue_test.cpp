// The catalogue against the object: each row's method answers to its code, and mixes what the row says.
#include <gtest/gtest.h>

#include <set>

#include "support/real_mixture.h"
#include "velor/properties.h"
#include "velor/verdict.h"

namespace velor::test {
namespace {

constexpr double kT = 360, kP = 2e5;

// Ethanol, benzene and toluene, with a correlation of the first one moved by a thousandth.
struct Moved : RealMixture {
    const Variant X = Fractions({0.3, 0.3, 0.4});

    explicit Moved(int k = 0) : RealMixture({64175, 71432, 108883}) {
        smes.Inivlr();
        if (k == 0) return;
        TLatka record = smes.record(1);
        record.Korelace[static_cast<std::size_t>(k - 1)].A[0] *= 1.001F;
        smes.record(1, record);
    }
    double value(const MixtureProperty& property) { return property.method(smes, kT, kP, X).toDouble(); }
};

TEST(CatalogueTest, aMethodDependsOnTheCorrelationsOfItsRow) {
    for (const MixtureProperty& property : mixtureProperties()) {
        const double before = Moved().value(property);
        for (const PureProperty& pure : pureProperties()) {
            // The real gas takes the heat of vaporisation at the boiling point, whatever T.
            if (pure.number == kDHV && property.phase == Phase::Gas) continue;
            const bool isMixed = property.correlations.contains(pure.number) ||
                                 (pure.number == kROLW && property.correlations.contains(kReducedROLW));
            EXPECT_EQ(Moved(pure.number).value(property) != before, isMixed) << property.code << " of " << pure.code;
        }
    }
}

TEST(CatalogueTest, aRowReadsWhatItNeeds) {
    const Variant none = "žádná";
    for (const MixtureProperty& property : mixtureProperties()) {
        Moved object;
        const Variant T = property.needsTemperature ? Variant(kT) : none,
                      P = property.needsPressure ? Variant(kP) : none;
        const double value = Moved().value(property);
        EXPECT_EQ(property.method(object.smes, T, P, object.X), value) << property.code;
        // By name the enthalpy of a cold liquid counts as none.
        const Variant byName = object.smes.Vlastnost(std::string(property.code), object.X, kT, kP);
        EXPECT_TRUE(byName == value || property.isIntegral) << property.code;
    }
}

TEST(CatalogueTest, aMissingCorrelationIsNamed) {
    Moved object;
    TLatka record = object.smes.record(2);
    record.Korelace[kROLW - 1].Priznak = 0;
    object.smes.record(2, record);
    for (const MixtureProperty& property : mixtureProperties()) {
        const bool isMixed = property.correlations.contains(kROLW) || property.correlations.contains(kReducedROLW);
        const MixtureVerdict verdict = mixtureValue(object.smes, property, kT, kP, object.X);
        EXPECT_EQ(verdict.result.standing == Standing::NotGiven, isMixed) << property.code;
        EXPECT_EQ(verdict.property != nullptr, isMixed) << property.code;
        EXPECT_EQ(verdict.slot, isMixed ? 2 : 0) << property.code;
    }
}

// Where a value means less than its number says, or nothing.
TEST(CatalogueTest, theVerdictKnowsWhatTheStateIs) {
    constexpr int kHydrogen = 1333740, kNitrogen = 7727379, kSteam = 7732185;
    struct Case {
        std::vector<int> substances;
        const char* code;
        double T, P;
        Standing standing;
    };
    const Case cases[] = {
        {{kSteam, kHydrogen},
         "TRB",
         0,
         101325,
         Standing::Diverged},  // rests at 0.95 of hydrogen's critical temperature
        {{kSteam, kNitrogen}, "DHV", 350, 0, Standing::LeftOut},
        {{kSteam}, "RROGW", 300, 1e5, Standing::Metastable},
        {{kSteam}, "RROGW", 400, 1e5, Standing::InRange},
        {{kSteam, kNitrogen}, "RHG", 370, 1e5, Standing::InRange},  // half the pressure is nitrogen's
        {{kSteam}, "ROLW", 25, 0, Standing::Failed},                // the equation gives a negative density
        {{108883}, "RUG", 500, 1e5, Standing::InRange},
    };
    for (const Case& point : cases) {
        RealMixture object(point.substances);
        object.smes.Inivlr();
        const std::vector<double> parts(point.substances.size(), 1.0 / static_cast<double>(point.substances.size()));
        const MixtureVerdict verdict =
            mixtureValue(object.smes, *findMixtureProperty(point.code), point.T, point.P, Fractions(parts));
        EXPECT_EQ(standingWord(verdict.result.standing), standingWord(point.standing)) << point.code << point.T;
    }
}

TEST(CatalogueTest, captionsHaveTheirPlaces) {
    Smes smes;
    smes.inivlast();
    std::set<int> places;
    for (const MixtureProperty& property : mixtureProperties()) {
        if (property.captionNumber == 0) continue;
        places.insert(property.captionNumber);
        EXPECT_EQ(smes.PopisVlastnosti(property.captionNumber), property.caption);
    }
    EXPECT_EQ(places.size(), 34U);
    EXPECT_EQ(*places.rbegin(), 34);
}

}  // namespace
}  // namespace velor::test
