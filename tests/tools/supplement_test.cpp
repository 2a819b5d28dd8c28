// What the supplement of the shipped database tells, and what becomes of the rest where it tells nothing.
#include "velor/supplement.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/temporary_folder.h"
#include "velor/smes.h"
#include "velor/substances.h"
#include "velor/table.h"
#include "velor/verdict.h"

namespace velor {
namespace {

constexpr int kOctacosane = 64;  // its vapour pressure is estimated by Ambrose and Walton's corresponding states

std::vector<int> numbersOf(const FoundSubstance& found) {
    std::vector<int> numbers;
    for (const Substance* const substance : found.candidates) numbers.push_back(substance->number);
    return numbers;
}

TEST(Supplement, substancesAreFoundByFurtherNames) {
    struct Case {
        const char* typed;
        Finding outcome;
        std::vector<int> numbers;
    };
    const SubstanceList substances = readSubstances(VELOR_DATABASE);
    // clang-format off
    const Case cases[] = {
        {"1-butanol", Finding::Found, {238}}, {"1 Butanol", Finding::Found, {238}}, {"VODNÍ PÁRA", Finding::Found, {1}},
        {"CH3OH", Finding::Found, {234}}, {"R1234ze", Finding::Found, {496}},
        {"butanol", Finding::Several, {238, 239, 240, 241}}, {"xylen", Finding::Several, {185, 186, 187}},
        {"2-buten", Finding::Several, {149, 150}},
        {"CO", Finding::Found, {12}}, {"ethan", Finding::Found, {38}}};  // what a record says comes first
    // clang-format on
    for (const auto& [typed, outcome, numbers] : cases) {
        const FoundSubstance found = searchSubstance(substances, typed);
        EXPECT_EQ(found.outcome, outcome) << typed;
        EXPECT_EQ(numbersOf(found), numbers) << typed;
    }
    for (const char* const typed : {"alkohol", "kyselina", "butandiol", "vodní pár", "nitro"})
        EXPECT_EQ(searchSubstance(substances, typed).outcome, Finding::Unknown) << typed;
}

TEST(Supplement, estimatesAreTold) {
    RecordingUserInterface boxes;
    Smes smes(boxes);
    smes.AdrVELOR(VELOR_DATABASE);
    smes.DefSlozky(List({1, kOctacosane}));
    ASSERT_EQ(smes.Inivlr().toInt16(), 2);
    EXPECT_EQ(smes.Zdroj(1, kROLW), "IAPWS");
    EXPECT_EQ(smes.Zdroj(2, kTENS), "Ambrose-Walton, odhad");
    EXPECT_GT(smes.Odchylka(1, kTENS).toDouble(), 0.0);
    EXPECT_TRUE(smes.Zdroj(3, kTENS).empty() && smes.Zdroj(1, 12).empty() && smes.Odchylka(0, kTENS).isEmpty());

    const int numbers[] = {1, kOctacosane};
    const PreparedMixture prepared(VELOR_DATABASE, numbers);
    const double T = 600, P = 1e5;
    struct Case {
        const char* property;
        std::vector<double> x;
        Standing standing;
    };
    const Case cases[] = {{"TENS", {0.5, 0.5}, Standing::Estimated},
                          {"TENS", {1.0, 0.0}, Standing::InRange},
                          {"SIGMA", {0.5, 0.5}, Standing::InRange}};
    for (const auto& [code, x, standing] : cases) {
        const MixtureProperty& property = *findMixtureProperty(code);
        double value = 0;
        Standing verdict{};
        evaluate(prepared, property, {&T, 1}, {&P, 1}, {x}, {&value, 1}, {&verdict, 1});
        const PropertyValue ofObject = mixtureValue(smes, property, T, P, Fractions(x)).result;
        EXPECT_EQ(verdict, standing) << code;
        EXPECT_EQ(ofObject.standing, standing) << code;
        EXPECT_NEAR(value, ofObject.value, 1e-12 * value) << code;
    }
}

TEST(Supplement, withoutItEverythingElseWorks) {
    const std::string whole = test::readFile(Supplement::pathFor(VELOR_DATABASE));
    const auto changed = [&](std::size_t at) {
        std::string text = whole;
        text[at] ^= 1;
        return text;
    };
    const std::pair<Supplement::State, std::string> cases[] = {
        {Supplement::State::Read, whole},
        {Supplement::State::Missing, ""},
        {Supplement::State::OtherVersion, "VELOR.DOP 2" + whole.substr(11)},
        {Supplement::State::Damaged, changed(whole.size() / 2)},
        {Supplement::State::Damaged, changed(whole.size() - 2)},
        {Supplement::State::Damaged, whole.substr(0, whole.size() / 2)},
        {Supplement::State::Damaged, "PK\x03\x04"},
    };
    for (const auto& [state, text] : cases) {
        const test::TemporaryFolder folder;
        const std::string database = folder / "MOJE.DRC";
        std::filesystem::copy_file(VELOR_DATABASE, database);
        if (!text.empty()) folder.write("MOJE.DOP", text);
        EXPECT_EQ(Supplement::of(database).state(), state);
        RecordingUserInterface boxes;
        Smes smes(boxes);
        smes.AdrVELOR(database);
        smes.DefSlozky(List({1}));
        EXPECT_NEAR(smes.FFce(373.15, 1, kTENS).toDouble(), 101325.0, 100.0);
        const bool isRead = state == Supplement::State::Read;
        EXPECT_EQ(smes.Zdroj(1, kROLW), isRead ? "IAPWS" : smes.supplement().note());
        EXPECT_EQ(smes.Zdroj(1, kROLW).starts_with("Doplněk báze VELOR.DOP "), !isRead);
        EXPECT_EQ(smes.Odchylka(1, kROLW).isEmpty(), !isRead);
        EXPECT_EQ(readSubstances(database)[0].furtherNames.empty(), !isRead);
    }
}

}  // namespace
}  // namespace velor
