// The native forms as their users meet them: keys and mouse from another thread, results in the mixture.
#include "velor/forms.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "pictures/user.h"
#include "runtime/text.h"
#include "velor/component_forms.h"
#include "velor/run_time_error.h"
#include "velor/smes.h"
#include "views/windows/form_ids.h"

namespace velor::test {

namespace {

using namespace pictures;

constexpr Look kList{"VELOR", SEZN_L_SEZN};
constexpr Look kChoice{" SEZNAM LÁTEK - definice složek směsi", SEZNAM_C_OK};
constexpr Look kComposition{" Zadání složení směsi", SLOZ_C_OK};
constexpr Look kDisplay{" Zobrazení složky č. ", LATKA_C_VYPOCET};
constexpr Look kChange{" Dočasná změna složky č. ", ZMENAZ_C_DATA};
constexpr Look kCorrection{" Dočasná změna vlastností složky č. ", OPRAV_C_VYPOCET};

class NativeForms : public testing::Test {
  protected:
    Smes smes;
    Variant n, X = Fractions(std::vector<double>(20, 0.0)), W = X;

    NativeForms() { smes.AdrVELOR(VELOR_DATABASE); }

    void define(const std::vector<int>& numbers) {
        smes.DefSlozky(List(numbers));
        ASSERT_EQ(smes.Inivlr().toInt16(), static_cast<int>(numbers.size()));
    }
    void enterComposition() { smes.ZadejSloz(n, X, W, "", 1); }
};

TEST_F(NativeForms, componentsAreChosenByMouseAndByKeys) {
    together([&] { smes.ZadejSmes(); },
             [&] {
                 const Window form(kChoice);
                 EXPECT_EQ(form.text(SEZNAM_NADPIS_1), "SEZNAM LÁTEK DATABÁZE  V E L O R");
                 EXPECT_EQ(form.text(SEZNAM_OPTION2), "&Výběrem ze seznamu látek");
                 EXPECT_EQ(form.text(SEZNAM_LBLDATAFILE), smes.AdrVELOR());
                 EXPECT_FALSE(form.isVisible(SEZNAM_T_SMES + 1));
                 form.click(SEZNAM_C_OK);
                 const Window nothing(kMessageBox);
                 EXPECT_EQ(nothing.text(kMessageText),
                           "Nezadána žádná látka nebo po zadání čísla látky nebyl stisknut Enter!");
                 nothing.press(IDOK, VK_SPACE);
                 nothing.expectGone();
                 const int third = std::stoi(smes.SeznamLatek(3)), fourth = std::stoi(smes.SeznamLatek(4));
                 form.doubleClickLine(SEZNAM_L_SEZNAM, 2);
                 form.expectText(SEZNAM_T_SMES, std::to_string(third));
                 form.press(SEZNAM_L_SEZNAM, VK_DOWN);
                 form.press(SEZNAM_L_SEZNAM, VK_RETURN);
                 form.expectText(SEZNAM_T_SMES + 1, std::to_string(fourth));
                 form.pressAlt(SEZNAM_L_SEZNAM, L'h');  // by name, without regard to case and diacritics
                 form.expectFocus(SEZNAM_HLEDAT);
                 form.type(SEZNAM_HLEDAT, "MRAVEN");
                 form.expectText(SEZNAM_NALEZENO, "4 z " + std::to_string(smes.PocLatek()));
                 form.press(SEZNAM_HLEDAT, VK_DOWN);
                 form.press(SEZNAM_HLEDAT, VK_RETURN);
                 form.expectText(SEZNAM_T_SMES + 2, "320");
                 form.pressAlt(SEZNAM_L_SEZNAM, L'z');  // again from the start
                 form.expectText(SEZNAM_T_SMES, "");
                 form.expectFocus(SEZNAM_T_SMES);
                 form.type(SEZNAM_T_SMES, "5");
                 form.expectText(SEZNAM_T_SMES, "5");
                 form.type(SEZNAM_T_SMES, "x");  // no number, so that the box is emptied
                 form.expectText(SEZNAM_T_SMES, "");
                 form.press(SEZNAM_T_SMES, '5');
                 form.expectText(SEZNAM_T_SMES, "5");
                 form.press(SEZNAM_T_SMES, '7');
                 form.expectText(SEZNAM_T_SMES, "57");
                 form.press(SEZNAM_T_SMES, VK_RETURN);
                 form.expectFocus(SEZNAM_T_SMES + 1);
                 form.type(SEZNAM_T_SMES + 1, "1");
                 form.press(SEZNAM_T_SMES + 1, VK_RETURN);
                 form.expectFocus(SEZNAM_T_SMES + 2);
                 form.click(SEZNAM_C_OK);
                 form.expectGone();
             });
    EXPECT_EQ(smes.Inivlr().toInt16(), 2);
    EXPECT_EQ(smes.Nslozky(1).toInt16(), 57);
    EXPECT_EQ(smes.Nslozky(2).toInt16(), 1);
}

TEST_F(NativeForms, compositionIsTyped) {
    define({1, 57, 100});
    together([&] { enterComposition(); },
             [&] {
                 const Window form(kComposition);
                 form.expectFocus(SLOZ_T_S);
                 EXPECT_EQ(form.text(SLOZ_L_J), smes.Nazev(1).toText());
                 EXPECT_FALSE(form.isVisible(SLOZ_T_S + 3));
                 form.click(SLOZ_O_HMOT);
                 form.expectFocus(SLOZ_T_S);
                 form.replaceText(SLOZ_T_S, "2");
                 form.press(SLOZ_T_S, VK_RETURN);
                 form.expectFocus(SLOZ_T_S + 1);
                 form.type(SLOZ_T_S + 1, "1,0");  // the box was selected when it got the focus
                 form.expectText(SLOZ_T_S + 1, "1,0");
                 form.pressAlt(SLOZ_T_S, L'p');
             });
    EXPECT_EQ(n.toInt16(), 3);
    EXPECT_DOUBLE_EQ(W.at(1).toDouble(), 0.5);
    EXPECT_DOUBLE_EQ(W.at(3).toDouble(), 0.25);
    EXPECT_NE(X.at(1).toDouble(), 0.5);
}

TEST_F(NativeForms, componentIsShown) {
    define({57, 1});
    together([&] { enterComposition(); },
             [&] {
                 const Window composition(kComposition);
                 composition.clickName(SLOZ_L_J + 1, WM_LBUTTONDOWN, WM_LBUTTONUP);
                 const Window form(kDisplay);
                 EXPECT_FALSE(IsWindowEnabled(composition.get()));
                 EXPECT_EQ(GetWindow(form.get(), GW_OWNER), composition.get());
                 EXPECT_TRUE(smes.Nazev(2).toText().starts_with(form.text(LATKA_NAZEV)));
                 EXPECT_EQ(form.text(LATKA_KONSTANTY_POPIS + 14), "normální teplota varu");
                 form.press(LATKA_L_VLAST, VK_END);
                 form.press(LATKA_L_VLAST, VK_UP);
                 form.replaceText(LATKA_T_TEPLOTA, "350");
                 form.press(LATKA_T_TEPLOTA, VK_RETURN);
                 const std::string pressure = Smes::GFormat(smes.FFce(350.0, 2, 9));
                 form.expectText(LATKA_HODNOTA, std::string(trimBlanks(pressure)) + " Pa");
                 form.replaceText(LATKA_T_TEPLOTA, "-1");
                 form.click(LATKA_C_VYPOCET);
                 const Window message(kMessageBox);
                 EXPECT_EQ(GetWindow(message.get(), GW_OWNER), form.get());
                 EXPECT_EQ(message.text(kMessageText), "Teplota: zadejte kladné číslo v kelvinech.");
                 message.click(IDOK);
                 message.expectGone();
                 form.pressAlt(LATKA_T_TEPLOTA, L'z');
                 form.expectGone();
                 composition.click(SLOZ_C_OK);
             });
    EXPECT_DOUBLE_EQ(X.at(1).toDouble(), 0.5);
}

TEST_F(NativeForms, componentIsChangedForTheTime) {
    define({1, 57});
    together([&] { enterComposition(); },
             [&] {
                 const Window composition(kComposition);
                 composition.clickName(SLOZ_L_J, WM_RBUTTONDOWN, WM_RBUTTONUP);
                 const Window names(kChange);
                 names.expectFocus(ZMENAZ_T_POLE);
                 names.type(ZMENAZ_T_POLE, "Mrtvá voda");
                 names.pressAlt(ZMENAZ_T_POLE, L'o');  // back to the database
                 names.expectText(ZMENAZ_T_POLE, std::string(trimBlanks(smes.Nazev(1).toText())));
                 names.replaceText(ZMENAZ_T_POLE, "Živá voda");
                 names.replaceText(ZMENAZ_T_POLE + F_Zmenaz::kFirstConstant, "nic");
                 names.click(ZMENAZ_C_DATA);
                 const Window message(kMessageBox);
                 EXPECT_EQ(message.text(kMessageText), "Pole „molární hmotnost“: zadejte kladné číslo.");
                 message.close();
                 names.expectFocus(ZMENAZ_T_POLE + F_Zmenaz::kFirstConstant);
                 names.type(ZMENAZ_T_POLE + F_Zmenaz::kFirstConstant, "0,02");
                 names.click(ZMENAZ_C_DATA);
                 const Window data(kCorrection);
                 data.expectFocus(OPRAV_T_POLE);
                 data.press(OPRAV_L_VLAST, VK_DOWN);  // gas heat capacity; the focus stays in the list
                 data.expectFocus(OPRAV_L_VLAST);
                 data.replaceText(OPRAV_T_POLE, "1");
                 data.expectText(OPRAV_VZTAH, "y = A1 + A2.T   přímka");
                 data.click(OPRAV_C_OBNOVIT);
                 data.expectText(OPRAV_T_POLE, std::to_string(static_cast<int>(smes.VLRConst(1, 2, 7))));
                 data.replaceText(OPRAV_T_POLE, "1");
                 data.press(OPRAV_T_POLE, VK_RETURN);
                 data.expectFocus(OPRAV_T_POLE + 1);
                 data.type(OPRAV_T_POLE + 1, "77");
                 data.replaceText(OPRAV_T_POLE + 2, "0");
                 data.click(OPRAV_C_VYPOCET);
                 data.expectText(OPRAV_PO, "77.00 J/(mol·K)");
                 data.click(OPRAV_C_OK);
                 data.expectGone();
                 composition.expectText(SLOZ_L_J, smes.Nazev(1).toText());
                 composition.click(SLOZ_C_OK);
             });
    ASSERT_FALSE(HasFailure());
    EXPECT_TRUE(smes.Nazev(1).toText().starts_with("Živá voda"));
    EXPECT_FLOAT_EQ(smes.Bod(1, 1), 0.02F);
    EXPECT_EQ(smes.FFce(300.0, 1, 2).toDouble(), 77.0);
}

TEST_F(NativeForms, listIsFoundAndClosed) {
    struct Case {
        const char* name;
        void (*close)(const Window& form);
    };
    for (const Case& way : {
             Case{"Esc", [](const Window& form) { form.press(SEZN_L_SEZN, VK_ESCAPE); }},
             Case{"Enter", [](const Window& form) { form.press(SEZN_L_SEZN, VK_RETURN); }},
             Case{"a character", [](const Window& form) { form.type(SEZN_L_SEZN, "x"); }},
             Case{"a click",
                  [](const Window& form) {
                      PostMessageW(form.get(), WM_LBUTTONDOWN, 0, 0);
                      PostMessageW(form.get(), WM_LBUTTONUP, 0, 0);
                  }},
             Case{"the cross", [](const Window& form) { form.close(); }},
         }) {
        SCOPED_TRACE(way.name);
        together([&] { smes.SeznamShow(2); },
                 [&] {
                     const Window question(kInputBox);
                     question.type(kInputText, "kyselina máselná");
                     question.press(kInputText, VK_RETURN);
                     const Window form(kList);
                     EXPECT_EQ(form.text(SEZN_NADPIS_2), "k zadání nalezeno 1 látek");
                     form.press(SEZN_L_SEZN, VK_DOWN);  // moves and closes nothing
                     form.press(SEZN_L_SEZN, VK_HOME);
                     way.close(form);
                     form.expectGone();
                 });
    }
}

TEST_F(NativeForms, everyOtherFormGoesBack) {
    struct Form {
        Look look;
        int focus, back;  // controls
        WPARAM key;       // in the component's value, in place of the mouse on its name
    };
    constexpr Form kForms[] = {
        {kComposition, SLOZ_T_S, SLOZ_C_ZPET, 0},
        {kDisplay, LATKA_L_VLAST, LATKA_C_ZPET, VK_F2},
        {kChange, ZMENAZ_T_POLE, ZMENAZ_C_ZPET, VK_F3},
        {kCorrection, OPRAV_T_POLE, OPRAV_C_ZPET, VK_F3},
    };
    for (const Form& form : kForms) {
        for (const bool byKey : {true, false}) {
            SCOPED_TRACE(form.look.caption);
            define({1, 57});
            together([&] { enterComposition(); },
                     [&] {
                         if (form.key != 0) Window(kComposition).press(SLOZ_T_S, form.key);
                         if (form.look.caption == kCorrection.caption) Window(kChange).click(ZMENAZ_C_DATA);
                         const Window window(form.look);
                         byKey ? window.press(form.focus, VK_ESCAPE) : window.click(form.back);
                         window.expectGone();
                         if (form.key != 0) Window(kComposition).close();
                     });
            EXPECT_EQ(smes.Nsloz().toInt16(), 0);
        }
    }
}

// The host gets what a form's object throws; the window is gone by then.
TEST_F(NativeForms, errorReachesTheHost) {
    const auto choose = [&] {
        together([&] { smes.ZadejSmes(); },
                 [&] {
                     const Window form(kChoice);
                     form.type(SEZNAM_T_SMES, "99999");
                     form.press(SEZNAM_T_SMES, VK_RETURN);
                     form.click(SEZNAM_C_OK);
                     form.expectGone();
                 });
    };
    EXPECT_THROW(choose(), RunTimeError);
}

TEST_F(NativeForms, endOfTheHostIsBack) {
    define({1, 57});
    const HWND host = CreateWindowExW(0, L"STATIC", L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 100, 100, 400, 300,
                                      nullptr, nullptr, nullptr, nullptr);
    SetActiveWindow(host);
    together([&] { enterComposition(); },
             [&] {
                 const Window composition(kComposition);
                 EXPECT_EQ(GetWindow(composition.get(), GW_OWNER), host);
                 composition.clickName(SLOZ_L_J, WM_RBUTTONDOWN, WM_RBUTTONUP);
                 const Window form(kChange);
                 EXPECT_FALSE(IsWindowEnabled(host));
                 form.type(ZMENAZ_T_POLE, "Ztraceno");
                 PostMessageW(host, WM_CLOSE, 0, 0);
                 form.expectGone();
             });
    EXPECT_FALSE(IsWindow(host));
    EXPECT_EQ(smes.Nsloz().toInt16(), 0);
}

TEST_F(NativeForms, layoutFollowsSizeAndResolution) {
    together([&] { smes.ZadejSmes(); },
             [&] {
                 const Window form(kChoice);
                 const RECT list = form.place(SEZNAM_L_SEZNAM), button = form.place(SEZNAM_ZPET);
                 RECT outer;
                 GetWindowRect(form.get(), &outer);
                 const auto resize = [&](LONG width, LONG height) {
                     SetWindowPos(form.get(), nullptr, 0, 0, width, height, SWP_NOZORDER | SWP_NOMOVE);
                 };
                 const LONG width = outer.right - outer.left, height = outer.bottom - outer.top;
                 resize(width + 100, height + 50);
                 EXPECT_EQ(form.place(SEZNAM_L_SEZNAM).right, list.right + 100);
                 EXPECT_EQ(form.place(SEZNAM_L_SEZNAM).bottom, list.bottom + 50);
                 EXPECT_EQ(form.place(SEZNAM_ZPET).left, button.left + 100);
                 EXPECT_EQ(form.place(SEZNAM_ZPET).top, button.top + 50);
                 MINMAXINFO limits{};
                 SendMessageW(form.get(), WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
                 EXPECT_EQ(limits.ptMinTrackSize.x, width);
                 resize(width, height);
                 EXPECT_EQ(form.place(SEZNAM_L_SEZNAM).bottom, list.bottom);
                 // The window moves to a screen of half as high a resolution again.
                 const RECT box = form.place(SEZNAM_T_SMES + 19);
                 const LRESULT line = SendMessageW(form.control(SEZNAM_L_SEZNAM), LB_GETITEMHEIGHT, 0, 0);
                 outer.right += width / 2;
                 outer.bottom += height / 2;
                 SendMessageW(form.get(), WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&outer));
                 EXPECT_EQ(form.place(SEZNAM_T_SMES + 19).right, MulDiv(box.right, 3, 2));
                 EXPECT_NEAR(static_cast<double>(SendMessageW(form.control(SEZNAM_L_SEZNAM), LB_GETITEMHEIGHT, 0, 0)),
                             static_cast<double>(line) * 1.5, 2.0);
                 form.close();
             });
}

}  // namespace

}  // namespace velor::test
