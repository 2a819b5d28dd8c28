// Entering a mixture's composition.
#include "support/sample_test.h"
#include "velor/forms.h"

namespace velor::test {
namespace {

using Texts = std::vector<std::string>;

struct Entry : SampleTest {
    static std::vector<TLatka> substances() {
        std::vector<TLatka> records = sampleSubstances(4);
        records[0].Mv = 0.125F, records[1].Mv = 0.25F, records[2].Mv = 0.5F, records[3].Mv = 0.0F;
        return records;
    }
    RecordingUserInterface& boxes = mixture.boxes;
    Variant n, X = Fractions({0.1, 0.2, 0.7}), W = Fractions({0.3, 0.3, 0.4});

    Entry() : SampleTest(substances()) {}
    void enterNext(const Texts& values, bool molar = true) {
        boxes.nextCompositionActions.push_back([values, molar](F_Sloz& form) {
            molar ? form.clickO_Mol() : form.clickO_Hmot();
            for (std::size_t i = 0; i < values.size(); ++i) form.setText(static_cast<int>(i), values[i]);
            form.clickC_OK();
        });
    }
    int enter(const Texts& values, bool molar = true) {
        enterNext(values, molar);
        return errorNumber([&] { smes.ZadejSloz(n, X, W); });
    }
};

TEST_F(Entry, convertsTheEnteredValues) {
    struct Case {
        std::vector<double> numbers;
        Texts values;
        bool molar;
        std::vector<double> entered, mole, mass;
    };
    const double sum = 1.00011, molar = 0.50011 / sum;  // normalised beyond a deviation of 1e-4
    // clang-format off
    const Case cases[] = {  // molar masses 1/8, 1/4 and 1/2
        {{1, 2, 3}, {"2", "1", "1"}, true, {0.5, 0.25, 0.25}, {0.5, 0.25, 0.25}, {0.25, 0.25, 0.5}},
        {{1, 2, 3}, {"1", "1", "2"}, false, {0.25, 0.25, 0.5}, {0.5, 0.25, 0.25}, {0.25, 0.25, 0.5}},
        {{1, 2}, {"0.50009", "0.5"}, true, {0.50009, 0.5}, {0.50009, 0.5}, {0.50009 / 1.50009, 1 / 1.50009}},
        {{1, 2}, {"0.50011", "0.5"}, true, {molar, 0.5 / sum}, {molar, 0.5 / sum}, {0.50011 / 1.50011, 1 / 1.50011}},
        // One component: what was entered stays as it is, the computed fraction is 1.
        {{3}, {"5"}, true, {5}, {5}, {1}}, {{3}, {"0.2"}, false, {0.2}, {1}, {0.2}}};
    // clang-format on
    for (const Case& c : cases) {
        smes.DefSmes(static_cast<int>(c.numbers.size()), Fractions(c.numbers));
        EXPECT_EQ(enter(c.values, c.molar), 0);
        for (std::size_t at = 0; at < c.numbers.size(); ++at) {
            const int i = static_cast<int>(at) + 1;
            EXPECT_NEAR(smes.ZadaneSlozeni(i).toDouble(), c.entered[at], 1e-15) << c.values[at];
            EXPECT_NEAR(smes.MolZlomky(i).toDouble(), c.mole[at], 1e-15) << c.values[at];
            EXPECT_NEAR(smes.HmotZlomky(i).toDouble(), c.mass[at], 1e-15) << c.values[at];
            EXPECT_EQ(X.at(i), smes.MolZlomky(i));
            EXPECT_EQ(W.at(i), smes.HmotZlomky(i));
        }
    }
    EXPECT_EQ(X.at(3), Variant(0.25));  // elements behind the components stay
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(Entry, refusesWhatCannotBeAComposition) {
    smes.DefSmes(3, Fractions({1, 2, 3}));
    enter({"1", "1", "2"});
    const Variant before[] = {X, W, smes.MolZlomky(1)};
    enterNext({"1", "-0.5", "-1"});
    EXPECT_EQ(raised([&] { smes.ZadejSloz(n, X, W); }),
              (Raised{RunTimeError::kRaisedToHost, "ZadejSloz", "2. složení je záporné!"}));
    EXPECT_EQ(enter({"1e999", "0", "0"}), 6);
    smes.ChyboveHlasky(2);  // no message, and no second chance
    EXPECT_EQ(enter({"", "", ""}), 11);
    smes.DefSmes(2, Fractions({1, 4}));
    EXPECT_EQ(enter({"1", "1"}, false), 11);
    EXPECT_TRUE(boxes.messages.empty());
    EXPECT_TRUE(X == before[0] && W == before[1] && smes.MolZlomky(1) == before[2]);
    smes.DefSmes(3, Fractions({1, 2, 3}));
    X = Fractions({1, 0});  // too short
    EXPECT_EQ(enter({"1", "1", "2"}), 9);
}

}  // namespace
}  // namespace velor::test
