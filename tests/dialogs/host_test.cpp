// What a host relies on around the dialogs.
#include "support/methods.h"
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

// Whatever is called: nothing is shown or asked, and the last text tells what would have been.
TEST_F(HostOfDialogs, mayHaveNobodyInFrontOfIt) {
    Variant T = 375, P = 380, n = 2, X = Fractions({0.4, 0.6}), mole = X, mass = X;
    // clang-format off
    std::vector<std::function<void()>> tacit{
        [&] { smes.ResetujSmes(); }, [&] { smes.DefSlozky(List({1, 2})); }, [&] { smes.ZapisNslozky(2, 2); },
        [&] { smes.Inivlr(); }, [&] { smes.AkSeznam(); }, [&] { smes.SeznamShow(3); }, [&] { smes.ZadejSmes(); },
        [&] { smes.mZadSmes_SZavrit({1, 1}); }, [&] { smes.DefSmes(2, Fractions({1, 2})); },
        [&] { smes.mSloz_ZobrazL(2); }, [&] { smes.mSloz_ZobrazZ(2); }, [&] { smes.Bod(1, 1, 1); },
        [&] { smes.VLRConst(1, 1, 1, 1); }, [&] { smes.FFce(300, 1, 2); }, [&] { smes.Vlastnost("CPG", X, 300, 1); },
        [&] { smes.FLASH(1, T, P, X); }, [&] { smes.AdrVELOR(); }, [&] { smes.Adrvlr(); }};
    const std::pair<std::function<void()>, std::string> telling[] = {
        {[&] { smes.SeznamShow(0); }, "0 - podle abecedy"}, {[&] { smes.FLASH(-1, T, P, X); }, "FLASH  0-izotermní"},
        {[&] { smes.PseudShow(X); }, "Pseudokritické"}, {[&] { smes.Vlastnost("CPQ", X, 300, 1); }, "Neznámá nebo"},
        {[&] { smes.VLRConst(1, 1, 7, 0), smes.Vlastnost("ETAG", X, 300, 1); }, "FFce: Typ.korel.vzt."},
        {[&] { smes.ZapisNslozky(1, 44), smes.Inivlr(); }, "INIVLR: Látka č.  44"}};
    // clang-format on
    mixture.folder.write("VELOR.CFG", "komentář\r\n" + smes.AdrVELOR());
    mixture.boxes.nextCompositionActions = {[](F_Sloz& form) { form.clickC_OK(); }};
    smes.Tichy(-1);
    smes.MaxErrHlas(32767);
    for (const Method& method : kMethods) tacit.push_back([&] { method.call(smes, 350, 380, X); });
    for (const auto& call : tacit) {
        smes.VLRConst(0, 0, 0, 0);
        EXPECT_NE(smes.PosledniHlaska(), "");
        call();
        EXPECT_EQ(smes.PosledniHlaska(), "") << &call - tacit.data();
    }
    for (const auto& [call, text] : telling) {
        EXPECT_EQ(errorNumber(call), &call < &telling[2].first ? 62 : 0) << text;
        EXPECT_EQ(smes.PosledniHlaska().substr(0, text.size()), text);
    }
    smes.ZadejSloz(n, mole, mass);
    EXPECT_EQ(smes.Nsloz().toInt16(), 0);  // Back
    EXPECT_EQ(mixture.boxes.nextCompositionActions.size(), 1u);
    EXPECT_TRUE(messages.empty() && mixture.boxes.requests.empty());
}

}  // namespace
}  // namespace velor::test
