// Own substances: what is added or changed, and what is said of tables that cannot be used.
#include "baze/own_tables.h"

#include <gtest/gtest.h>

#include <string>

#include "records/record_layout.h"
#include "support/temporary_folder.h"

namespace velor::baze {
namespace {

const std::string kSubstance =
    "Nazev,CAS,Mv,Tkr,Pkr,Vkr,Acent,Tnbv\n"
    "Cyklohexylamin,108-91-8,0.09918,615,4.2e6,3.6e-4,0.36,407\n";
const std::string kCorrelation =
    "CAS,vlastnost,Typ,A1,A2,A3,A4,A5,A6,Tmin,Tmax,zdroj,odhad\n"
    "108-91-8,TENS,6,21,-3300,-60,,,,300,500,\"Brock, Bird\",odhad\n";
const std::string kTables = kSubstance + "\n" + kCorrelation;

Addition added(const std::string& text, LineFaults& faults) {
    return addOwnSubstances(test::readFile(VELOR_DATABASE), Supplement::of(VELOR_DATABASE), text, faults);
}

TLatka recordOf(const Addition& addition, int number) {
    const auto place = static_cast<std::size_t>(number - 1) * kRecordSize;
    return decodeRecord(std::span<const char, kRecordSize>(addition.bytes.data() + place, kRecordSize));
}

TEST(OwnTables, addAndChange) {
    const std::string before = test::readFile(VELOR_DATABASE);
    const int next = static_cast<int>(before.size() / kRecordSize) + 1;
    LineFaults faults;
    // As a worksheet leaves it, with water's vapour pressure in the same table.
    const std::string text =
        "\xEF\xBB\xBF" + kSubstance + ",,,,,,,\r\n" + kCorrelation + "7732-18-5,TENS,1,1,2,,,,,300,400,,,,,\r\n";
    const Addition addition = added(text, faults);
    ASSERT_TRUE(faults.empty()) << faults.front().reason;
    EXPECT_EQ(addition.added, 1);
    EXPECT_EQ(addition.changed, 1);
    EXPECT_EQ(addition.bytes.size(), before.size() + kRecordSize);
    EXPECT_EQ(addition.bytes.substr(kRecordSize, before.size() - kRecordSize), before.substr(kRecordSize));
    EXPECT_EQ(recordOf(addition, next).CAS, 108918);
    EXPECT_EQ(recordOf(addition, next).Korelace[kTENS - 1].A[1], -3300.0F);
    EXPECT_EQ(recordOf(addition, 1).Korelace[kTENS - 1].Typ, 1);
    EXPECT_EQ(recordOf(addition, 1).Mv, 0.01801528F);
    const Supplement supplement(addition.supplement);
    EXPECT_EQ(supplement.provenance("108-91-8", kTENS)->source, "Brock, Bird");
    EXPECT_TRUE(supplement.estimates("108-91-8").test(kTENS));
    EXPECT_FALSE(supplement.provenance("7732-18-5", kTENS));
    EXPECT_EQ(supplement.provenance("7732-18-5", kROLW)->source, "IAPWS");
    EXPECT_EQ(supplement.groups("7732-18-5"), "16:1");
}

TEST(OwnTables, theTemplateCanBeUsedAsItIs) {
    LineFaults faults;
    EXPECT_EQ(added(ownTablesTemplate(), faults).changed, 1);
    EXPECT_TRUE(faults.empty());
}

TEST(OwnTables, whatCannotBeUsedIsNamedByLineAndColumn) {
    struct Case {
        std::string from, to;  // in the two tables; nothing to be replaced: the whole text
        int line;
        std::string_view reason;
    };
    // clang-format off
    const Case cases[] = {
        {"", "", 1, "žádnou tabulku"}, {"", "\n,,,\n", 1, "žádnou tabulku"}, {"", std::string("\0\x01\xFF", 3), 1, "záhlaví není"},
        {"", "Nazev;CAS;Mv\nA;1;2\n", 1, "středník"}, {"", "ahoj\n", 1, "záhlaví není tabulka"},
        {"", "\"Nazev", 1, "není ukončeno"}, {"Nazev,CAS", "Nazev,Cas", 1, "neznámý sloupec „Cas“"},
        {"108-91-8,0.09918", ",0.09918", 2, "CAS: registrační číslo chybí"},
        {"108-91-8,0.09918", "108-91-9,0.09918", 2, "CAS: kontrolní číslice"},
        {"0.09918", "99,18", 2, "polí je 9"}, {"0.09918", "99.18", 2, "Mv: 99.18 není v rozmezí"},
        {"0.09918", "1e999", 2, "Mv: „1e999“"}, {"0.09918", "nan", 2, "Mv: „nan“"}, {"615", "-615", 2, "Tkr: -615"},
        {"615", "300", 2, "Tnbv: má být pod kritickou"}, {"3.6e-4", "", 2, "Vkr: hodnota chybí"},
        {"Cyklohexylamin", "voda", 2, "Nazev: tak se už jmenuje látka 1"}, {"Cyklohexylamin", "=CMD()\x07", 2, "Nazev: řídicí"},
        {"Cyklohexylamin", std::string(5000, 'a'), 2, "Nazev: text má 5000 znaků"},
        {"108-91-8,TENS", "50-00-1,TENS", 5, "CAS: kontrolní číslice"}, {"108-91-8,TENS", "13463-67-7,TENS", 5, "CAS: látka v bázi ani"},
        {"108-91-8,TENS", ",TENS", 5, "Cislo: hodnota chybí"}, {"TENS,6", "TLAK,6", 5, "vlastnost: „TLAK“"},
        {"TENS,6", "TENS,20", 5, "Typ: typ rovnice má být 1 až 19"}, {"-60", "", 5, "A3: rovnice typu 6"},
        {"300,500", "500,300", 5, "Tmax: má být větší"}, {"Bird\",odhad\n", "Bird\",asi\n", 5, "odhad: má být prázdné"},
        {"Bird\",odhad\n", "Bird\",odhad\n108-91-8,TENS,1,1,1,,,,,300,400,,\n", 6, "vlastnost: TENS téže látky"},
        {"0.36,407\n", "0.36,407\nJina,108-91-8,0.1,615,4e6,3e-4,0.3,407\n", 3, "CAS: 108-91-8 už je na řádku 2"}};
    // clang-format on
    for (const auto& [from, to, line, reason] : cases) {
        SCOPED_TRACE(from + " -> " + to.substr(0, 80));
        std::string text = from.empty() ? to : kTables;
        if (!from.empty()) text.replace(text.find(from), from.size(), to);
        LineFaults faults;
        EXPECT_TRUE(added(text, faults).bytes.empty());
        ASSERT_FALSE(faults.empty());
        EXPECT_EQ(faults.front().line, line);
        EXPECT_NE(faults.front().reason.find(reason), std::string::npos) << faults.front().reason;
    }
}

}  // namespace
}  // namespace velor::baze
