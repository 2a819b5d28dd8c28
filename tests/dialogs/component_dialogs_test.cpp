// The display of a component and its temporary change, opened from the composition as a user does.
#include <gtest/gtest.h>

#include <cmath>

#include "records/record_layout.h"
#include "rules/equations.h"
#include "support/sample_mixture.h"
#include "velor/component_forms.h"
#include "velor/forms.h"

namespace velor::test {
namespace {

struct ComponentDialogs : ::testing::Test {
    SampleMixture mixture{{sampleSubstance(1, "Voda"), sampleSubstance(2, "Éter")}};
    Smes& smes = mixture.smes;
    RecordingUserInterface& boxes = mixture.boxes;

    ComponentDialogs() { smes.DefSmes(2, Fractions({1, 2})); }

    void change(const std::function<void(F_Zmenaz&)>& names, const std::function<void(frmOprav&)>& data = {}) {
        boxes.nextChangeActions = {names};
        if (data) boxes.nextCorrectionActions = {data};
        smes.mSloz_ZobrazZ(2);
    }
    std::string complaint() {
        EXPECT_EQ(boxes.messages.size(), 1U);
        const Message message = boxes.messages.empty() ? Message{} : boxes.messages.back();
        boxes.messages.clear();
        EXPECT_EQ(message.icon, Icon::Exclamation);
        return message.text;
    }
};

TEST_F(ComponentDialogs, showsTheRecord) {
    frmLatka shown;
    boxes.nextDisplayActions = {[&](frmLatka& form) {
        shown = form;
        EXPECT_EQ(form.Hodnota, "299.2 Pa·s");  // y = 1 + T at 298.15 K
        form.selectProperty(8);
        form.setTemperature("400,5");
        form.keyInTemperature(kEnterKey);
        EXPECT_EQ(form.Hodnota, "409.5 Pa   Teplota je mimo rozsah platnosti korelace, hodnota je extrapolovaná.");
        form.setTemperature("0");
        form.clickC_Vypocet();
        EXPECT_EQ(form.Hodnota, "");
        EXPECT_EQ(complaint(), "Teplota: zadejte kladné číslo v kelvinech.");
    }};
    boxes.nextCompositionActions = {[](F_Sloz& form) { form.mouseOnName(1, 1); }};
    Variant n, X = Fractions({0, 0}), W = X;
    smes.ZadejSloz(n, X, W);
    EXPECT_EQ(shown.caption, " Zobrazení složky č. 2: Éter");
    EXPECT_EQ(shown.Nazev + "|" + shown.Synonym + "|" + shown.Vzorec + "|" + shown.CAS, "Éter|Sample|C2H6O|[64-17-5]");
    const auto constant = [&](std::size_t k) { return shown.Konstanty[k].value + " " + shown.Konstanty[k].unit; };
    EXPECT_EQ(constant(0) + "|" + constant(1) + "|" + constant(2) + "|" + constant(3),
              "0.04600 kg/mol|500.00 K|6000000.0 Pa|2.0000E-04 m³/mol");
    EXPECT_EQ(shown.Korelace[8].Vztah, "y = A1 + A2.T   přímka");
    EXPECT_EQ(shown.Korelace[8].A[0] + " " + shown.Korelace[8].range, "9.000 200 – 400 K");
}

TEST_F(ComponentDialogs, changesWhatWasTypedAndNothingElse) {
    const float before = smes.Bod(2, 1);
    change([](F_Zmenaz& form) {
        EXPECT_EQ(form.caption, " Dočasná změna složky č. 2: Éter");
        form.setText(F_Zmenaz::kNazev, " Líh ");
        form.setText(F_Zmenaz::kCAS, "[7732-18-5]");
        form.setText(F_Zmenaz::kFirstConstant + 1, "510,5");
        form.setText(F_Zmenaz::kFirstConstant + 2, "");
        form.clickC_OK();
    });
    EXPECT_EQ(smes.FFce(300, 2, 1).toDouble(), 301.0);  // a property, which must not load the record anew
    EXPECT_EQ(smes.ROLW(300, Fractions({0.5, 0.5})).kind(), Variant::Kind::Double);
    EXPECT_EQ(smes.Nazev(2).toText(), "Líh" + std::string(27, ' '));
    EXPECT_EQ(smes.Synonym(2).toText(), "Sample" + std::string(24, ' '));
    EXPECT_EQ(smes.CAS(2).toText(), "[ 7732-18-5]");
    EXPECT_EQ(smes.Bod(2, 1), before);
    EXPECT_EQ(smes.Bod(2, 2), 510.5F);
    EXPECT_EQ(smes.Bod(2, 3), -9999.0F);
    EXPECT_EQ(smes.Nazev(1).toText().substr(0, 4), "Voda");
    smes.DefSmes(2, Fractions({1, 2}));  // the file was not written
    smes.Inivlr();
    EXPECT_EQ(smes.Bod(2, 2), 500.0F);
}

TEST_F(ComponentDialogs, refuseFieldByField) {
    const std::string tooLong(31, 'a');
    // clang-format off
    const std::tuple<int, std::string, std::string> cases[] = {
        {F_Zmenaz::kNazev, "  ", "Pole „název“: název nesmí chybět."},
        {F_Zmenaz::kNazev, tooLong, "Pole „název“: text má 31 znaků, vejde se jich 30."},
        {F_Zmenaz::kVzorec, "H₂O", "Pole „vzorec“: znak „₂“ není v kódování Windows-1250."},
        {F_Zmenaz::kCAS, "64-17-6", "Pole „CAS“: zadejte platné číslo ve tvaru 64-17-5, nebo pole nechte prázdné."},
        {F_Zmenaz::kCAS, "abc", "Pole „CAS“: zadejte platné číslo ve tvaru 64-17-5, nebo pole nechte prázdné."},
        {F_Zmenaz::kFirstConstant, "", "Pole „molární hmotnost“: zadejte kladné číslo."},
        {F_Zmenaz::kFirstConstant + 1, "0", "Pole „kritická teplota“: zadejte kladné číslo, nebo pole nechte prázdné."},
        {F_Zmenaz::kFirstConstant + 1, "1e39", "Pole „kritická teplota“: zadejte kladné číslo, nebo pole nechte prázdné."},
        {F_Zmenaz::kFirstConstant + 1, "1e999", "Pole „kritická teplota“: zadejte kladné číslo, nebo pole nechte prázdné."},
        {F_Zmenaz::kFirstConstant + 4, "0.3x", "Pole „acentrický faktor“: zadejte číslo, nebo pole nechte prázdné."},
        {F_Zmenaz::kFirstConstant + 8, "-1", "Pole „dipólový moment“: zadejte nezáporné číslo, nebo pole nechte prázdné."},
    };
    // clang-format on
    for (const auto& [field, text, expected] : cases) {
        change([&, field = field, text = text](F_Zmenaz& form) {
            form.setText(F_Zmenaz::kSynonym, "changed");
            form.setText(field, text);
            form.clickC_Data();
            EXPECT_TRUE(form.visible);
            EXPECT_EQ(form.focus, (Focus{Focus::Control::Value, field}));
        });
        EXPECT_EQ(complaint(), expected);
        EXPECT_EQ(smes.Synonym(2).toText().substr(0, 6), "Sample");
    }
    const std::tuple<int, std::string, std::string> corrections[] = {
        {frmOprav::kTyp, "99",
         "TENS, Typ rovnice: zadejte číslo " + equationTypesText() + ", nebo pole nechte prázdné."},
        {frmOprav::kTyp, "1.5",
         "TENS, Typ rovnice: zadejte číslo " + equationTypesText() + ", nebo pole nechte prázdné."},
        {frmOprav::kFirstCoefficient + 1, "1e39", "TENS, A2: zadejte číslo; prázdné pole je nula."},
        {frmOprav::kTmin, "", "TENS, Tmin: zadejte celé číslo kelvinů, nejvýše 32767."},
        {frmOprav::kTmax, "32768", "TENS, Tmax: zadejte celé číslo kelvinů, nejvýše 32767."},
        {frmOprav::kTmax, "199", "TENS, Tmax: nesmí být nižší než Tmin."},
    };
    for (const auto& [field, text, expected] : corrections) {
        change([](F_Zmenaz& form) { form.clickC_Data(); },
               [&, field = field, text = text](frmOprav& form) {
                   form.selectProperty(8);
                   form.setText(field, text);
                   form.selectProperty(0);  // what was typed stays, and is found when all is confirmed
                   form.clickC_OK();
                   EXPECT_TRUE(form.visible);
                   EXPECT_EQ(form.L_Vlast.selected, 8);
                   EXPECT_EQ(form.T_Pole[static_cast<std::size_t>(field)].text, text);
                   EXPECT_EQ(form.focus, (Focus{Focus::Control::Value, field}));
               });
        EXPECT_EQ(complaint(), expected);
    }
    EXPECT_EQ(smes.VLRConst(2, 9, 10), 400.0F);
}

TEST_F(ComponentDialogs, showsValuesBeforeAndAfterACorrection) {
    change([](F_Zmenaz& form) { form.clickC_Data(); },
           [&](frmOprav& form) {
               form.setTemperature("300");
               form.selectProperty(8);
               EXPECT_EQ(form.HodnotaPred + "|" + form.HodnotaPo, "309.0 Pa|309.0 Pa");
               form.setText(frmOprav::kTyp, "2");
               EXPECT_EQ(form.Vztah, "y = A1 + A2.T + A3.T^2   parabola");
               form.setText(frmOprav::kFirstCoefficient + 2, "0,01");
               form.keyInTemperature(kEnterKey);
               EXPECT_EQ(form.HodnotaPred + "|" + form.HodnotaPo, "309.0 Pa|1209 Pa");
               form.setText(frmOprav::kTmin, "x");
               form.clickC_Vypocet();
               EXPECT_EQ(form.HodnotaPo, "");
               EXPECT_EQ(complaint(), "Tmin: zadejte celé číslo kelvinů, nejvýše 32767.");
               form.setText(frmOprav::kTmin, "100");
               form.selectProperty(0);
               form.setText(frmOprav::kTyp, "");                   // no longer given
               EXPECT_EQ(smes.FFce(300, 2, 9).toDouble(), 309.0);  // not before it is confirmed
               form.clickC_OK();
           });
    EXPECT_DOUBLE_EQ(smes.FFce(300, 2, 9).toDouble(), 309.0 + 0.01F * 90000.0);
    EXPECT_EQ(smes.VLRConst(2, 9, 9), 100.0F);
    EXPECT_EQ(smes.VLRConst(2, 1, 8), 0.0F);
    EXPECT_EQ(smes.VLRConst(2, 2, 1), 2.0F);  // the others keep theirs
    EXPECT_EQ(smes.VLRConst(1, 9, 3), 0.0F);
}

TEST_F(ComponentDialogs, findTheWayBackToTheDatabase) {
    for (const bool isBack : {false, true}) {
        change(
            [&](F_Zmenaz& form) {
                isBack ? form.clickC_Obnovit() : form.setText(F_Zmenaz::kFirstConstant + 1, "510");
                form.clickC_Data();
            },
            [&](frmOprav& form) {
                form.setTemperature("300");
                form.selectProperty(8);
                EXPECT_EQ(form.HodnotaPred + "|" + form.HodnotaPo, isBack ? "309.0 Pa|310.0 Pa" : "309.0 Pa|309.0 Pa");
                isBack ? form.clickC_Obnovit() : form.setText(frmOprav::kFirstCoefficient, "10");
                EXPECT_EQ(smes.VLRConst(2, 9, 1), isBack ? 10.0F : 9.0F);  // not before it is confirmed
                form.clickC_OK();
            });
        EXPECT_EQ(smes.Bod(2, 2), isBack ? 500.0F : 510.0F);
        EXPECT_EQ(smes.VLRConst(2, 9, 1), isBack ? 9.0F : 10.0F);
    }
}

}  // namespace
}  // namespace velor::test
