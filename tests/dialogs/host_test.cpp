// What a host relies on around the dialogs.
#include "support/sample_test.h"
#include "velor/forms.h"

namespace velor::test {
namespace {

struct HostOfDialogs : SampleTest {
    HostOfDialogs() : SampleTest({sampleSubstance(1, "Voda"), sampleSubstance(2, "Ozon")}) {}
};

// A redefinition reads nothing at once; the dialog is about the new mixture all the same.
TEST_F(HostOfDialogs, composesTheMixtureDefinedLast) {
    smes.DefSmes(1, Fractions({1}));
    smes.Inivlr();
    smes.DefSmes(1, Fractions({2}));
    std::string name;
    mixture.boxes.nextCompositionActions = {[&](F_Sloz& form) { name = form.L_J[0]; }};
    Variant n, X = Fractions({0}), W = Fractions({0});
    smes.ZadejSloz(n, X, W);
    EXPECT_EQ(name.substr(0, 4), "Ozon");
}

TEST_F(HostOfDialogs, sortsElementsAsTheyAre) {
    Variant elements = List({3, "2", 1.5});
    smes.QuickSort(elements, 0, 2);
    EXPECT_EQ(elements, List({1.5, "2", 3}));
}

// The list is complete when SEZNAM.DAT cannot be written; a folder of that name is in its way.
TEST_F(HostOfDialogs, showsTheListThatCannotBeWritten) {
    mixture.folder.write("SEZNAM.DAT/inside", "");
    std::size_t lines = 0;
    mixture.boxes.nextListActions = {[&](F_Sezn& form) { lines = form.L_Sezn.items.size(); }};
    mixture.boxes.nextTexts = {"0"};
    smes.SeznamShow();
    EXPECT_EQ(lines, 2u);
    EXPECT_EQ(errorNumber([&] { smes.AkSeznam(); }), RunTimeError::kPathFileAccess);
}

TEST_F(HostOfDialogs, isToldThatTheRecordsCannotBeRead) {
    smes.AdrVELOR(mixture.folder / "nowhere.drc");
    EXPECT_EQ(errorNumber([&] { smes.mZadSmes_SZavrit({1, 1}); }), RunTimeError::kFileNotFound);
    ASSERT_EQ(messages.size(), 1u);
    EXPECT_EQ(messages[0].text, "Nemohu načíst z VELOR.DRC!");
}

}  // namespace
}  // namespace velor::test
