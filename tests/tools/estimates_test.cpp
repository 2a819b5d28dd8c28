// Estimates against worked examples: those of Joback and Reid's method for acetone, of Poling, Prausnitz and
// O'Connell's book (5th ed.), and measured values where the book tells how close the method comes.
#include "baze/estimates.h"

#include <gtest/gtest.h>

#include <cmath>

#include "rules/equations.h"
#include "velor/properties.h"

namespace velor::baze {
namespace {

double value(const EstimatedSubstance& substance, Property property, double T) {
    const TKorelace& block = substance.record.Korelace[static_cast<std::size_t>(property - 1)];
    return evaluateEquation(block.Typ, block.A, T);
}

TEST(Estimates, followJobackAndReid) {
    const EstimatedSubstance acetone = estimated(readGroups("CH3:2 CO:1").groups, {});
    const EstimatedSubstance ethylphenol =
        estimated(readGroups("CH3 CH2 r=CH:4 r=C:2 ArOH").groups, {477.67, 0, 0, 0, 0});
    struct Case {
        double found, published, tolerance;
    };
    const Case cases[] = {{acetone.record.Tnbv, 322.11, 0.01},      {acetone.record.Tkr, 500.559, 0.01},
                          {acetone.record.Pkr, 48.025e5, 100},      {acetone.record.Vkr, 209.5e-6, 1e-9},
                          {acetone.record.Ttani, 173.5, 0.01},      {acetone.record.Htani, 5125, 1},
                          {acetone.record.Mv, 0.05808, 1e-5},       {value(acetone, kCPG, 300), 75.3264, 0.01},
                          {value(acetone, kDHV, 322.11), 29018, 5}, {value(acetone, kETAL, 300), 2.942e-4, 1e-7},
                          {ethylphenol.record.Tkr, 698.1, 0.1},     {ethylphenol.record.Pkr, 44.09e5, 1e3},
                          {ethylphenol.record.Vkr, 341.5e-6, 1e-9}};
    for (const auto& [found, published, tolerance] : cases) EXPECT_NEAR(found, published, tolerance);
    EXPECT_EQ(acetone.correlations.size(), 10U);
    for (const CorrelationRow& row : acetone.correlations)
        EXPECT_TRUE(row.isEstimate && !row.source.empty() && row.block.Tmin < row.block.Tmax) << row.property;
}

TEST(Estimates, followTheirMethods) {
    struct Case {
        const char* what;
        double found, published, tolerance;  // the last relative
    };
    const Case cases[] = {
        {"Lee-Kesler, isopropylbenzene", leeKeslerAcentric(425.6 / 631.1, 32.1e5), 0.325, 0.004},
        {"Brock-Bird, ethanethiol", brockBirdTension(303, 308.15, 499, 54.9e5), 22.36e-3, 0.002},
        // Measured.
        {"Ambrose-Walton, ethylbenzene", ambroseWaltonPressure(347.25, 617.15, 36.09e5, 0.304), 13332, 0.01},
        {"Ambrose-Walton, ethylbenzene", ambroseWaltonPressure(460, 617.15, 36.09e5, 0.304), 332.5e3, 0.01},
        {"Letsou-Stiel, propane", letsouStielViscosity(295.9, 0.0440956, 369.89, 42.512e5, 0.152), 98e-6, 0.05},
        {"Lucas, nitrogen", lucasViscosity(300, 0.0280134, 126.192, 33.958e5), 17.89e-6, 0.02},
        {"Rowlinson-Bondi, heptane", rowlinsonBondiCapacity(298.15, 165.2, 540.2, 0.349), 224.7, 0.03},
        {"Sato-Riedel, toluene", satoRiedelConductivity(298.15, 0.0921384, 383.75, 591.75), 0.1311, 0.1}};
    for (const auto& [what, found, published, tolerance] : cases)
        EXPECT_NEAR(found / published, 1.0, tolerance) << what << ' ' << found;
    const EstimatedSubstance hexane = estimated(readGroups("CH3:2 CH2:4").groups, {341.88, 507.82, 3.044e6, 0, 0.3});
    EXPECT_NEAR(value(hexane, kTENS, 341.88) / 101325, 1.0, 0.01);
    EXPECT_NEAR(value(hexane, kROLW, 298.15) / 655, 1.0, 0.02);
    EXPECT_NEAR(value(hexane, kSIGMA, 298.15) / 17.9e-3, 1.0, 0.05);
}

TEST(Estimates, groupsThatAreNoneAreNamed) {
    for (const char* const text : {"", "  ", "CH4:1", "CH3:0", "CH3:x", "CH3:-2", "CH3:1e9", "CH3:", "CH3:2,CH2:1"})
        EXPECT_FALSE(readGroups(text).fault.empty()) << text;
}

}  // namespace
}  // namespace velor::baze
