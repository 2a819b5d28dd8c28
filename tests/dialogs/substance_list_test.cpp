// The list of the database and SEZNAM.DAT, byte for byte.
#include "platform/system.h"
#include "support/sample_mixture.h"

namespace velor::test {
namespace {

TLatka substance(std::string_view name, std::string_view synonym, std::string_view formula, int registryNumber) {
    TLatka record;
    setText(record.Nazev, name);
    setText(record.Synonym, synonym);
    setText(record.Vzorec, formula);
    record.CAS = registryNumber;
    return record;
}

struct SubstanceListTest : ::testing::Test {
    TemporaryFolder folder;
    RecordingUserInterface boxes;
    Smes smes{boxes, {}};

    SubstanceListTest() { smes.CFGPath(folder.path()); }

    void useDatabase(const std::vector<TLatka>& records) {
        smes.AdrVELOR(folder.write("VELOR.DRC", databaseBytes(records)));
    }
};

std::string listingHeader(const std::string& count) {
    return "          SEZNAM L\xC1TEK DATAB\xC1ZE VELOR ke dni " + platform::shortDate() +
           "\r\n          Z\xE1znamy v b\xE1zi o " + count +
           " l\xE1tk\xE1"
           "ch\r\n";
}

TEST_F(SubstanceListTest, isWrittenByteForByte) {
    std::vector<TLatka> records(1234, blankRecord());
    records[0] = substance("Voda", "Aqua", "H2O", 7732185);
    records[2] = TLatka{};  // bytes of zero
    records[3] = substance("Šťavelová kyselina žlutá", "", "C2H2O4", 0);
    records[4] = substance(" x jeden", "", "C10H22O11N", -5);
    records[5] = substance("Éter", "", "C4H10O", 5);
    records[6] = substance("Zinek bílý a dlouhý název", "Synonym je taky dlouhý", "Zn", 2147483647);
    records[998] = substance("Železo", "ferrum", "Fe", 123);
    records[1233] = substance("ethanol", "líh", "C2H6O", 64175);
    useDatabase(records);
    folder.write("SEZNAM.DAT", std::string(5000, 'x'));
    smes.AkSeznam();

    // By the characters' codes, so that capitals come first and accented letters last.
    const std::string expected = listingHeader("7") +
                                 "005   x jeden                                  C10H22O11N  \r\n"
                                 "001  Voda                 Aqua                 H2O       [7732-18-5] \r\n"
                                 "007  Zinek b\xEDl\xFD a dlouh\xFD  Synonym je taky dlou Zn        [2147483-64-7 \r\n"
                                 "234  ethanol              l\xEDh                  C2H6O     [64-17-5] 1\r\n"
                                 "006  \xC9ter                                      C4H10O      \r\n"
                                 "004  \x8A\x9D"
                                 "avelov\xE1 kyselina \x9E                      C2H2O4      \r\n"
                                 "999  \x8E"
                                 "elezo               ferrum               Fe        [-12-3] \r\n";
    EXPECT_EQ(readFile(folder / "SEZNAM.DAT"), expected);
    EXPECT_EQ(smes.PocLatek(), 7);
    EXPECT_EQ(smes.SeznamLatek(7), "999  Železo               ferrum               Fe        [-12-3] ");
    EXPECT_EQ(errorNumber([&] { smes.SeznamLatek(8); }), 9);
    EXPECT_TRUE(boxes.messages.empty());
    // Slot 1 was the buffer of the reading.
    smes.ZapisNslozky(1, 1);
    EXPECT_EQ(smes.Nazev(1), Variant("ethanol                       "));
}

TEST_F(SubstanceListTest, hasRoomFor900AndShows800) {
    useDatabase(sampleSubstances(800));
    boxes.nextTexts = {"0"};
    smes.SeznamShow();
    useDatabase(sampleSubstances(900));
    smes.SeznamShow(3);
    EXPECT_EQ(smes.PocLatek(), 800);  // what is there is not built again
    smes.AkSeznam();
    EXPECT_EQ(smes.PocLatek(), 900);
    EXPECT_EQ(errorNumber([&] { smes.SeznamShow(); }), 9);
    useDatabase(sampleSubstances(901));
    EXPECT_EQ(errorNumber([&] { smes.AkSeznam(); }), 9);
    EXPECT_EQ(smes.PocLatek(), 900);
}

TEST_F(SubstanceListTest, mayBeEmpty) {
    useDatabase({blankRecord(), TLatka{}});
    smes.AkSeznam();
    EXPECT_EQ(readFile(folder / "SEZNAM.DAT"), listingHeader("0"));
}

}  // namespace
}  // namespace velor::test
