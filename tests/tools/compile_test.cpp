// Which tables compile, and what is said of those that do not.
#include "baze/compile.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "support/sample_database.h"
#include "support/temporary_folder.h"

namespace velor::baze {
namespace {

constexpr std::string_view kSubstances =
    "Cislo,Nazev,Synonym,Vzorec,CAS,skupina,Mv,Tkr,Pkr,Vkr,Acent,Gyr,Nlomu,TNlomu,Dipol,TDipol,Permit,TPermit,Htani,"
    "Ttani,Tnbv\n"
    "1,Voda,Water,H2O,7732-18-5,voda,0.018,647.1,2.2e7,5.6e-05,0.344,,,,,,,,6001,273.15,373.15\n"
    "8,\"Kyselina, žlutá\",Acid,C2H4O2,64-19-7,kyselina,0.06,592,5.8e6,0.00018,0.46,,,,1.7,,,,,289.8,391\n";

constexpr std::string_view kCorrelations =
    "Cislo,vlastnost,Typ,A1,A2,A3,A4,A5,A6,Tmin,Tmax,zdroj,odchylka\n"
    "1,TENS,6,23.2,-3816,-46.1,,,,290,440,Poling,0.1\n"
    "8,SIGMA,16,0.1,1,2,3,,591.9,290,500,VDI,\n";

std::string replaced(std::string_view text, std::string_view from, std::string_view to) {
    std::string result(text);
    const std::size_t at = result.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return result.replace(at, from.size(), to);
}

TEST(Compile, reportsEachFaultOnItsLine) {
    enum Of { Form, Content };
    struct Fault {
        std::string from, to;  // in either table
        Of kind;
        int line;
        std::string_view reason;
    };
    const std::string kLongName(31, 'x');
    // clang-format off
    const Fault faultCases[] = {
        {"Voda", "Vo\"da", Form, 2, "uvozovky uvnitř"},
        {"\"Kyselina, žlutá\"", "\"Kyselina\" x", Form, 3, "za koncovými uvozovkami"},
        {"\"Kyselina, žlutá\"", "\"Kyselina", Form, 3, "není ukončeno"}, {"Voda", "Vod\xE1", Form, 2, "UTF-8"},
        {"1,Voda", "\n1,Voda", Form, 2, "prázdný řádek"},
        {"290,440,", "290,440,,", Form, 2, "polí je 14, záhlaví jich má 13"},
        {"Synonym,", "Synonym,Jmeno,", Form, 1, "neznámý sloupec „Jmeno“"},
        {"Synonym,", "Synonym,Nazev,", Form, 1, "sloupec Nazev je v záhlaví dvakrát"},
        {"Tmin,", "Priznak,", Form, 1, "v záhlaví chybí sloupec Tmin"},
        {"1,Voda", ",Voda", Form, 2, "Cislo: hodnota chybí"},
        {"1,Voda", "0,Voda", Form, 2, "Cislo: číslo látky má být 1 až 32767, ne 0"},
        {"8,\"", "32768,\"", Form, 3, "Cislo: „32768“ se nevejde do 16 bitů"},
        {"8,\"", "1,\"", Form, 3, "Cislo: 1 už je na řádku 2"}, {"Voda", "", Content, 2, "Nazev: název chybí"},
        {"Voda", " Voda", Content, 2, "Nazev: text začíná mezerou"}, {"Voda", "Vo\\x07da", Content, 2, "Nazev: řídicí"},
        {"Voda", "\"kyselina, ŽLUTÁ\"", Content, 3, "už je na řádku 2"},
        {"Voda", kLongName, Form, 2, "Nazev: text má 31 znaků, vejde se jich 30"},
        {"Water", "α-Water", Form, 2, "Synonym: znak „α“ není v kódování Windows-1250"},
        {"Water", "Wa\\ter", Form, 2, "Synonym: „\\ter“"},
        {"7732-18-5", "7732-18-4", Content, 2, "CAS: kontrolní číslice"},
        {"7732-18-5", "7732185", Content, 2, "CAS: „7732185“ nemá tvar"},
        {"7732-18-5", "7732-185", Form, 2, "CAS: „7732-185“ nemá tvar"},
        {"7732-18-5", "9999999-99-5", Form, 2, "CAS: „9999999995“ se nevejde do 32 bitů"},
        {"647.1", "647,1", Form, 2, "polí je"}, {"647.1", "\"647,1\"", Form, 2, "Tkr: „647,1“ není číslo (desetinná"},
        {"647.1", " 647.1", Form, 2, "Tkr: „ 647.1“ není číslo"}, {"647.1", "nan", Form, 2, "Tkr: „nan“ není konečné"},
        {"2.2e7", "1e39", Form, 2, "Pkr: „1e39“ se nevejde"}, {"2.2e7", "1e-60", Form, 2, "Pkr: „1e-60“ se nevejde"},
        {"6001", "#7FC00000", Content, 2, "Htani: hodnota není konečné číslo"},
        {"6001", "#3F800000", Form, 2, "Htani: za # má být"}, {"0.018", "", Content, 2, "Mv: hodnota chybí"},
        {"0.018", "18", Content, 2, "Mv: 18 není v rozmezí"},
        {"0.344", "-1", Content, 2, "Acent: -1 není v rozmezí"},
        {"1.7,", "-9999,", Content, 3, "Dipol: -9999 není v rozmezí"},
        {"373.15\n", "647.1\n", Content, 2, "Tnbv: má být pod kritickou teplotou"},
        {"8,SIGMA", "7,SIGMA", Form, 3, "Cislo: látka 7 není v tabulce látek"},
        {"8,SIGMA", "1,TENS", Form, 3, "vlastnost: TENS látky 1 už je na řádku 2"},
        {"SIGMA", "SIGM", Form, 3, "vlastnost: „SIGM“ není vlastnost"},
        {"TENS,6", "TENS,0", Content, 2, "Typ: typ rovnice má být 1 až "},
        {"TENS,6", "TENS,", Form, 2, "Typ: hodnota chybí"}, {"-46.1", "", Content, 2, "A3: rovnice typu 6"},
        {"591.9", "", Content, 3, "A6: rovnice typu 16"},
        {"290,440", "440,440", Content, 2, "Tmax: má být větší než Tmin"},
        {"290,440", "0,440", Content, 2, "Tmin: teplota má být kladná"},
    };
    // clang-format on
    for (const auto& [from, to, kind, line, reason] : faultCases) {
        SCOPED_TRACE(from + " -> " + to);
        std::string substances(kSubstances), correlations(kCorrelations);
        const bool ofSubstance = kSubstances.find(from) != std::string_view::npos;
        std::string& table = ofSubstance ? substances : correlations;
        table = replaced(table, from, to);
        const Compilation result = compile(substances, correlations, Checks::Full);
        const LineFaults& faults = ofSubstance ? result.substanceFaults : result.correlationFaults;
        EXPECT_TRUE((ofSubstance ? result.correlationFaults : result.substanceFaults).empty());
        EXPECT_TRUE(result.bytes.empty());
        ASSERT_EQ(faults.size(), 1U);
        EXPECT_EQ(faults.front().line, line);
        EXPECT_NE(faults.front().reason.find(reason), std::string::npos) << faults.front().reason;
        EXPECT_EQ(compile(substances, correlations, Checks::FormOnly).succeeded(), kind == Content);
    }
}

TEST(Compile, takesWhatASpreadsheetMakesOfTheText) {
    std::string substances = "\xEF\xBB\xBF";
    for (const char c : kSubstances) substances += c == '\n' ? "\r\n" : std::string(1, c);
    const Compilation result = compile(substances, kCorrelations, Checks::Full);
    EXPECT_EQ(result.bytes, compile(kSubstances, kCorrelations, Checks::Full).bytes);
    EXPECT_TRUE(result.succeeded());
}

}  // namespace
}  // namespace velor::baze
