// Which tables compile, and what is said of those that do not.
#include "baze/compile.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "baze/csv.h"
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

TEST(Compile, storesEveryCellWhereTheLibraryLooksForIt) {
    const Compilation result = compile(kSubstances, kCorrelations, Checks::Full);
    ASSERT_TRUE(result.succeeded());

    TLatka water = test::blankRecord();
    water.Cislo = 1;
    test::setText(water.Nazev, "Voda");
    test::setText(water.Synonym, "Water");
    test::setText(water.Vzorec, "H2O");
    water.CAS = 7732185;
    for (int i = 1; i <= 15; ++i) water.*constantMember(i) = -9999.0F;
    water.Mv = 0.018F;
    water.Tkr = 647.1F;
    water.Pkr = 2.2e7F;
    water.Vkr = 5.6e-05F;
    water.Acent = 0.344F;
    water.Htani = 6001.0F;
    water.Ttani = 273.15F;
    water.Tnbv = 373.15F;
    water.Korelace[8] = {{23.2F, -3816.0F, -46.1F}, 6, 1, 290, 440};
    EXPECT_EQ(result.bytes.substr(0, kRecordSize), test::databaseBytes({{water}}));

    const TLatka blank = test::blankRecord();
    ASSERT_EQ(result.bytes.size(), 8 * kRecordSize);
    for (std::size_t i = 1; i < 7; ++i)
        EXPECT_EQ(result.bytes.substr(i * kRecordSize, kRecordSize), test::databaseBytes({{blank}})) << i + 1;
    EXPECT_EQ(result.bytes.substr(7 * kRecordSize + 2, 16), "Kyselina, \x9Elut\xE1 ");
}

enum class Of { Form, Content };

struct FaultCase {
    std::string_view from;  // in either table
    std::string_view to;
    Of kind;
    int line;
    std::string_view reason;
};

const std::string kLongName(31, 'x');

const std::vector<FaultCase> kFaultCases{
    // the text as such
    {"Voda", "Vo\"da", Of::Form, 2, "uvozovky uvnitř"},
    {"\"Kyselina, žlutá\"", "\"Kyselina\" x", Of::Form, 3, "za koncovými uvozovkami"},
    {"\"Kyselina, žlutá\"", "\"Kyselina", Of::Form, 3, "není ukončeno"},
    {"Voda", "Vod\xE1", Of::Form, 2, "UTF-8"},
    {"1,Voda", "\n1,Voda", Of::Form, 2, "prázdný řádek"},
    {"1,Voda", "1,1,Voda", Of::Form, 2, "polí je 22, záhlaví jich má 21"},
    {"290,440,", "290,440,,", Of::Form, 2, "polí je 14, záhlaví jich má 13"},
    {"Synonym,", "Synonym,Jmeno,", Of::Form, 1, "neznámý sloupec „Jmeno“"},
    {"Synonym,", "Synonym,Nazev,", Of::Form, 1, "sloupec Nazev je v záhlaví dvakrát"},
    {"Tmin,", "Priznak,", Of::Form, 1, "v záhlaví chybí sloupec Tmin"},
    // numbers of substances
    {"1,Voda", ",Voda", Of::Form, 2, "Cislo: hodnota chybí"},
    {"1,Voda", "0,Voda", Of::Form, 2, "Cislo: číslo látky má být 1 až 32767, ne 0"},
    {"8,\"", "32768,\"", Of::Form, 3, "Cislo: „32768“ se nevejde do 16 bitů"},
    {"8,\"", "1,\"", Of::Form, 3, "Cislo: 1 už je na řádku 2"},
    // texts
    {"Voda", "", Of::Content, 2, "Nazev: název chybí"},
    {"Voda", " Voda", Of::Content, 2, "Nazev: text začíná mezerou"},
    {"Voda", "Vo\\x07da", Of::Content, 2, "Nazev: řídicí"},
    {"Voda", "\"kyselina, ŽLUTÁ\"", Of::Content, 3, "už je na řádku 2"},
    {"Voda", kLongName, Of::Form, 2, "Nazev: text má 31 znaků, vejde se jich 30"},
    {"H2O", kLongName, Of::Form, 2, "Vzorec: text má 31 znaků, vejde se jich 20"},
    {"Water", "α-Water", Of::Form, 2, "Synonym: znak „α“ není v kódování Windows-1250"},
    {"Water", "Wa\\ter", Of::Form, 2, "Synonym: „\\ter“"},
    // registry numbers
    {"7732-18-5", "7732-18-4", Of::Content, 2, "CAS: kontrolní číslice"},
    {"7732-18-5", "7732185", Of::Content, 2, "CAS: „7732185“ nemá tvar"},
    {"7732-18-5", "7732-185", Of::Form, 2, "CAS: „7732-185“ nemá tvar"},
    {"7732-18-5", "9999999-99-5", Of::Form, 2, "CAS: „9999999995“ se nevejde do 32 bitů"},
    // constants
    {"647.1", "647,1", Of::Form, 2, "polí je"},
    {"647.1", "\"647,1\"", Of::Form, 2, "Tkr: „647,1“ není číslo (desetinná"},
    {"647.1", "647.1K", Of::Form, 2, "Tkr: „647.1K“ není číslo"},
    {"647.1", " 647.1", Of::Form, 2, "Tkr: „ 647.1“ není číslo"},
    {"647.1", "nan", Of::Form, 2, "Tkr: „nan“ není konečné"},
    {"2.2e7", "1e39", Of::Form, 2, "Pkr: „1e39“ se nevejde"},
    {"2.2e7", "1e-60", Of::Form, 2, "Pkr: „1e-60“ se nevejde"},
    {"6001", "#7FC00000", Of::Content, 2, "Htani: hodnota není konečné číslo"},
    {"6001", "#3F800000", Of::Form, 2, "Htani: za # má být"},
    {"0.018", "", Of::Content, 2, "Mv: hodnota chybí"},
    {"0.018", "18", Of::Content, 2, "Mv: 18 není v rozmezí"},
    {"2.2e7", "-2.2e7", Of::Content, 2, "Pkr: -2.2e+07 není v rozmezí"},
    {"0.344", "-1", Of::Content, 2, "Acent: -1 není v rozmezí"},
    {"1.7,", "-9999,", Of::Content, 3, "Dipol: -9999 není v rozmezí"},
    {"373.15\n", "647.1\n", Of::Content, 2, "Tnbv: má být pod kritickou teplotou"},
    // correlations
    {"8,SIGMA", "7,SIGMA", Of::Form, 3, "Cislo: látka 7 není v tabulce látek"},
    {"8,SIGMA", "1,TENS", Of::Form, 3, "vlastnost: TENS látky 1 už je na řádku 2"},
    {"SIGMA", "SIGM", Of::Form, 3, "vlastnost: „SIGM“ není vlastnost"},
    {"TENS,6", "TENS,0", Of::Content, 2, "Typ: typ rovnice má být 1 až 19, ne 0"},
    {"TENS,6", "TENS,20", Of::Content, 2, "Typ: typ rovnice má být 1 až 19, ne 20"},
    {"TENS,6", "TENS,", Of::Form, 2, "Typ: hodnota chybí"},
    {"-46.1", "", Of::Content, 2, "A3: rovnice typu 6"},
    {"591.9", "", Of::Content, 3, "A6: rovnice typu 16"},
    {"290,440", "440,440", Of::Content, 2, "Tmax: má být větší než Tmin"},
    {"290,440", "0,440", Of::Content, 2, "Tmin: teplota má být kladná"},
    {"290,440", "290.5,440", Of::Form, 2, "Tmin: „290.5“ není celé číslo"},
    {"290,440", "290,", Of::Form, 2, "Tmax: hodnota chybí"},
};

TEST(Compile, reportsEachFaultOnItsLine) {
    for (const FaultCase& item : kFaultCases) {
        SCOPED_TRACE(std::string(item.from) + " -> " + std::string(item.to));
        const bool ofSubstance = kSubstances.find(item.from) != std::string_view::npos;
        const std::string substances =
            ofSubstance ? replaced(kSubstances, item.from, item.to) : std::string(kSubstances);
        const std::string correlations =
            ofSubstance ? std::string(kCorrelations) : replaced(kCorrelations, item.from, item.to);

        const Compilation result = compile(substances, correlations, Checks::Full);
        const LineFaults& faults = ofSubstance ? result.substanceFaults : result.correlationFaults;
        const LineFaults& others = ofSubstance ? result.correlationFaults : result.substanceFaults;
        EXPECT_TRUE(others.empty()) << others.front().reason;
        EXPECT_TRUE(result.bytes.empty());
        ASSERT_EQ(faults.size(), 1U);
        EXPECT_EQ(faults.front().line, item.line);
        EXPECT_NE(faults.front().reason.find(item.reason), std::string::npos) << faults.front().reason;

        EXPECT_EQ(compile(substances, correlations, Checks::FormOnly).succeeded(), item.kind == Of::Content);
    }
}

TEST(Compile, reportsAllFaultsInOneRun) {
    const std::string substances =
        replaced(replaced(replaced(kSubstances, "647.1", "x"), "7732-18-5", "7732-18-6"), "592", "0");
    const std::string correlations = replaced(replaced(kCorrelations, "TENS", "TENZ"), "8,SIGMA", "9,SIGMA");
    const Compilation result = compile(substances, correlations, Checks::Full);
    const auto lines = [](const LineFaults& faults) {
        std::vector<int> numbers;
        for (const LineFault& fault : faults) numbers.push_back(fault.line);
        return numbers;
    };
    EXPECT_EQ(lines(result.substanceFaults), (std::vector{2, 2, 3}));
    EXPECT_EQ(lines(result.correlationFaults), (std::vector{2, 3}));
}

TEST(Compile, aFaultySubstanceDoesNotMakeItsCorrelationsFaulty) {
    const std::string withoutHeader(kSubstances.substr(kSubstances.find('\n') + 1));
    for (const std::string& substances :
         {replaced(kSubstances, "8,\"", "?,\""), replaced(kSubstances, "8,\"", "8,8,\""),
          replaced(kSubstances, "647.1", "x"), withoutHeader, std::string()}) {
        const Compilation result = compile(substances, kCorrelations, Checks::Full);
        EXPECT_FALSE(result.substanceFaults.empty());
        EXPECT_TRUE(result.correlationFaults.empty());
    }
}

TEST(Compile, refusesADatabaseThatTheLibraryWouldTakeForBroken) {
    const std::string substances = replaced(kSubstances, "8,\"", "7,\"");
    const std::string correlations = replaced(kCorrelations, "8,SIGMA", "7,SIGMA");
    EXPECT_FALSE(compile(substances, correlations, Checks::Full).succeeded());
    EXPECT_EQ(compile(substances, correlations, Checks::FormOnly).bytes.size(), 7 * kRecordSize);
}

TEST(Compile, takesWhatASpreadsheetMakesOfTheText) {
    std::string substances = "\xEF\xBB\xBF";
    for (const char c : kSubstances) substances += c == '\n' ? "\r\n" : std::string(1, c);
    const Compilation result = compile(substances, kCorrelations, Checks::Full);
    EXPECT_EQ(result.bytes, compile(kSubstances, kCorrelations, Checks::Full).bytes);
    EXPECT_TRUE(result.succeeded());
}

TEST(Csv, writtenRowsReadBack) {
    const std::vector<std::vector<std::string>> rows{
        {"a", "", "c"}, {",", "\"", "\"\""}, {"\n", "a\r\nb", "\r"}, {" a ", "a\"b,c", "žluť"}};
    std::string text;
    for (const auto& row : rows) appendCsvRow(text, row);
    LineFaults faults;
    const auto read = readCsv(text, faults);
    EXPECT_TRUE(faults.empty());
    ASSERT_EQ(read.size(), rows.size());
    for (std::size_t i = 0; i < rows.size(); ++i) EXPECT_EQ(read[i].cells, rows[i]) << i;
    // The third row holds two line breaks.
    EXPECT_EQ(read[2].line, 3);
    EXPECT_EQ(read[3].line, 6);
}

}  // namespace
}  // namespace velor::baze
