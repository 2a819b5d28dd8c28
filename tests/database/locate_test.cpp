// Finding the database: every question and message to the letter, nothing deleted without a Yes.
#include <gtest/gtest.h>
#ifndef _WIN32
#include <unistd.h>
#endif

#include <filesystem>

#include "platform/file_system.h"
#include "platform/system.h"
#include "support/sample_mixture.h"

namespace velor::test {
namespace {

namespace fs = std::filesystem;

const std::string kDatabase = acceptableDatabase({sampleSubstance(1, "Voda")});

struct LocateTest : ::testing::Test {
    TemporaryFolder folder;
    RecordingUserInterface boxes;
    Smes smes{boxes, {folder / "c", folder / "d"}};
    std::string configuration = folder / "VELOR.CFG";

    LocateTest() {
        smes.CFGPath(folder.path());
        fs::create_directories(folder / "c");
        fs::create_directories(folder / "d");
    }

    void configure(const std::string& path) { folder.write("VELOR.CFG", "komentář\r\n" + path + "\r\n"); }
    Message missingQuestion(const std::string& name = "VELOR.DRC") const {
        return {"Soubor VELOR.CFG nejspíše v adresáři " + folder.path() +
                    "\r\n obsahuje odkaz na neexistující soubor " + name +
                    "!!!\r\nSmažte soubor VELOR.CFG a znovu spusťte program.\r\nMám ho smazat sám? (Y/N)",
                Icon::Exclamation, "VELOR", Buttons::YesNo};
    }
};

TEST_F(LocateTest, readsThePathInEveryForm) {
    const std::string path = folder.write("báze, nová/VELOR.DRC", kDatabase);
    const std::string plain = folder.write("plain/velor.drc", kDatabase);
    const std::pair<std::string, std::string> forms[] = {
        {"komentář\r\n\"" + path + "\"\r\n", path},
        {"komentář\n   " + plain + "   \n", plain},
        {"komentář\r" + plain, plain},
        {"komentář," + plain + ",další", plain},
        {"\"v uvozovkách, s čárkou\" ,  \"" + path + "\"", path},
        {"\"neuzavřená\"\r\n\"" + path, path},
    };
    for (const auto& [content, expected] : forms) {
        folder.write("VELOR.CFG", platform::toSystemText(content));
        smes.AdrVELOR("");
        EXPECT_EQ(smes.AdrVELOR(), expected) << content;
        EXPECT_TRUE(boxes.messages.empty()) << content;
    }
}

// The file name is taken from the first "." of the whole path on, as built: with a dot in a folder it holds that
// folder.
TEST_F(LocateTest, adoptsAnotherFileNameMarkedByACross) {
    const std::string path = folder.write("other.bin", kDatabase);
    configure(path + "#");
    EXPECT_EQ(smes.AdrVELOR(), path);
    EXPECT_EQ(smes.DataFileName(), "other.bin");
    EXPECT_TRUE(boxes.messages.empty());
    configure(folder.write("v1.0/other.bin", kDatabase) + "#");
    smes.AdrVELOR("");
    EXPECT_EQ(smes.AdrVELOR(), "");
    const std::string name = std::string("v1.0") + platform::kPathSeparator + "other.bin";
    EXPECT_EQ(smes.DataFileName(), name);
    EXPECT_EQ(boxes.messages, std::vector{missingQuestion(name)});
}

TEST_F(LocateTest, asksBeforeItDeletesTheConfiguration) {
    folder.write("other.bin", kDatabase);
    for (const std::string& path : {folder / "gone/VELOR.DRC", folder / "other.bin", folder.path(), std::string("\"\""),
                                    std::string("\"VELOR.DRC\0x\"", 13)}) {
        for (const Answer answer : {Answer::No, Answer::Yes}) {
            configure(path);
            boxes.messages.clear();
            boxes.nextAnswers = {answer};
            EXPECT_EQ(smes.AdrVELOR(), "") << path;
            EXPECT_EQ(boxes.messages, std::vector{missingQuestion()}) << path;
            EXPECT_EQ(fs::exists(configuration), answer == Answer::No);
        }
    }
}

TEST_F(LocateTest, refusesAShortDatabase) {
    using Case = std::tuple<std::size_t, Answer, bool, bool>;
    for (const auto& [size, answer, accepted, kept] :
         {Case{4000, Answer::No, true, true}, Case{3999, Answer::No, false, true},
          Case{0, Answer::Yes, false, false}}) {
        const std::string path = folder.write("VELOR.DRC", std::string(size, ' '));
        configure(path);
        boxes.messages.clear();
        boxes.nextAnswers = {answer};
        smes.AdrVELOR("");
        EXPECT_EQ(smes.AdrVELOR(), accepted ? path : "");
        if (!accepted) {
            EXPECT_EQ(boxes.messages,
                      (std::vector<Message>{{"Soubor " + path + "má příliš malou délku (" + std::to_string(size) +
                                                 ") nebo je nulový.\r\nSmazat ho ? (Y/N)",
                                             Icon::None, "VELOR", Buttons::YesNo}}));
        }
        EXPECT_EQ(fs::exists(path), kept);
    }
}

TEST_F(LocateTest, searchesTheDrivesInTwoPasses) {
    const Message notice{
        "Budu nyní hledat datový soubor VELOR.DRC na všech pevných discích\r\nMůže to trvat i několik "
        "minut! Stiskněte OK a vyčkejte.",
        Icon::Information, "Instalace VELOR"};
    const Message regret{
        "Lituji, ale nemáte nikde na dostupných discích\r\nnainstalován datový soubor báze "
        "VELOR.DRC\r\nZajistěte jeho nainstalování!\r\nBez něho je báze nefunkční!",
        Icon::Critical, "VELOR"};
    // Nothing anywhere; links are not followed.
    const std::string elsewhere = folder.write("elsewhere/VELOR.DRC", kDatabase);
#ifndef _WIN32  // where making one takes a privilege
    fs::create_directory_symlink(folder / "elsewhere", folder / "c/VELOR");
    fs::create_symlink(elsewhere, folder / "c/VELOR.DRC");
#endif
    EXPECT_EQ(smes.AdrVELOR(), "");
    EXPECT_EQ(boxes.messages, (std::vector{notice, regret}));
    EXPECT_FALSE(fs::exists(configuration));

    // A copy on the first drive, and one in a folder VELOR of the second, which the first pass finds.
    const std::string outside = folder.write("c/data/deep/VELOR.DRC", kDatabase);
    const std::string inside = folder.write("d/VELOR/sub/velor.drc", kDatabase);
    boxes.messages.clear();
    EXPECT_EQ(smes.AdrVELOR(), inside);
    EXPECT_EQ(boxes.messages, std::vector{notice});
    EXPECT_EQ(readFile(configuration),
              platform::toSystemText("Soubor obsahuje na 2.ř. cestu k datovému souboru báze.\r\n" + inside + "\r\n"));

    fs::remove(inside);
    fs::remove(configuration);
    smes.AdrVELOR("");
    EXPECT_EQ(smes.AdrVELOR(), outside);

    // A path with a comma survives the way through the file.
    fs::remove(outside);
    fs::remove(configuration);
    const std::string comma = folder.write("c/VELOR,1/VELOR.DRC", kDatabase);
    smes.AdrVELOR("");
    EXPECT_EQ(smes.AdrVELOR(), comma);
    smes.AdrVELOR("");
    boxes.messages.clear();
    EXPECT_EQ(smes.AdrVELOR(), comma);
    EXPECT_TRUE(boxes.messages.empty());
}

TEST_F(LocateTest, searchesWhereTheFolderOfTheConfigurationIsMissing) {
    const std::string path = folder.write("c/VELOR/VELOR.DRC", kDatabase);
    smes.CFGPath(folder / "gone");
    EXPECT_EQ(smes.AdrVELOR(), path);  // found, though the CFG file cannot be written there
    ASSERT_EQ(boxes.messages.size(), 2U);
    EXPECT_EQ(boxes.messages[1], (Message{"Chyba č. 76 : Path not found", Icon::Exclamation, "VELOR Adrvlr"}));
}

TEST_F(LocateTest, reportsOtherFileErrors) {
    for (const int mode : {0, 2, -1}) {
        smes.ChyboveHlasky(mode);
        for (const char* content : {"jediný řádek\r\n", "", "a,   "}) {
            folder.write("VELOR.CFG", content);
            boxes.messages.clear();
            EXPECT_EQ(errorNumber([&] { smes.Adrvlr(); }), mode == -1 ? RunTimeError::kRaisedToHost : 0);
            EXPECT_EQ(
                boxes.messages,
                (std::vector<Message>{{"Chyba č. 62 : Input past end of file", Icon::Exclamation, "VELOR Adrvlr"}}));
        }
    }
    smes.ChyboveHlasky(0);
    smes.CFGName("c");  // a folder
    boxes.messages.clear();
    EXPECT_EQ(smes.AdrVELOR(), "");
    EXPECT_EQ(boxes.messages,
              (std::vector<Message>{{"Chyba č. 75 : Path/File access error", Icon::Exclamation, "VELOR Adrvlr"}}));
}

#ifndef _WIN32  // rights are another matter there
TEST_F(LocateTest, reportsWhatItMayNotRead) {
    configure(folder / "VELOR.DRC");
    fs::permissions(configuration, fs::perms::none);
    const uid_t user = geteuid();
    if (user == 0) {  // who may read everything
        ASSERT_EQ(seteuid(65534), 0);
    }
    EXPECT_EQ(smes.AdrVELOR(), "");
    EXPECT_EQ(seteuid(user), 0);
    EXPECT_EQ(boxes.messages,
              (std::vector<Message>{{"Chyba č. 70 : Permission denied", Icon::Exclamation, "VELOR Adrvlr"}}));
}
#endif

TEST(OpenFile, hasTheClassicErrors) {
    const TemporaryFolder folder;
    const std::pair<std::string, int> cases[] = {{"", 53},
                                                 {folder / "gone", 53},
                                                 {folder / "gone/VELOR.DRC", 76},
                                                 {folder.path(), 75},
                                                 {folder.write("file", "x") + "/y", 76}};
    for (const auto& [path, number] : cases) {
        RecordingUserInterface boxes;
        Smes smes(boxes, {});
        smes.CFGPath(folder.path());
        smes.AdrVELOR(path);
        smes.ZapisNslozky(1, 1);
        EXPECT_EQ(errorNumber([&] { smes.Inivlr(); }), number) << path;
        EXPECT_EQ(boxes.messages.size(), path.empty() ? 2U : 0U);  // the search and its failure
    }
}

TEST_F(LocateTest, findFilesFillsAGrowingArray) {
    std::vector<std::string> expected;
    for (int n = 10; n < 22; ++n)
        expected.push_back(folder.write("c/s" + std::to_string(n) + "/Data." + std::to_string(n), ""));
    folder.write("c/other.txt", "");
    Variant hits;
    smes.FindFiles(folder / "c", "*", "DATA.1?", hits);
    EXPECT_EQ(hits.at(0), Variant("10"));
    EXPECT_EQ(hits.upperBound(), 10);
    smes.FindFiles(folder / "c", "Data*", "*.2*", hits);  // goes on behind the hits that are there
    EXPECT_EQ(hits.at(0), Variant("12"));
    EXPECT_EQ(hits.upperBound(), 20);
    for (int i = 1; i <= 12; ++i) EXPECT_EQ(hits.at(i), Variant(expected[static_cast<std::size_t>(i - 1)]));
    Variant none;
    smes.FindFiles(folder / "gone", "*", "*", none);
    EXPECT_EQ(none.upperBound(), 10);
    EXPECT_EQ(none.at(0).toText(), "");
    smes.FindFiles(folder / "c", "data*", "*", none);  // the mask minds the case
    EXPECT_EQ(none.at(0).toText(), "");
    EXPECT_EQ(Smes::TrimNulls(std::string("ab\0c", 4)), "ab");
    EXPECT_EQ(Smes::TrimNulls("abc"), "abc");
}

}  // namespace
}  // namespace velor::test
