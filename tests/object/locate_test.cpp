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
        {"komentář\r\n\"" + path + "\"\r\n", path}, {"komentář\n   " + plain + "   \n", plain},
        {"komentář," + plain + ",další", plain},    {"\"v uvozovkách, s čárkou\" ,  \"" + path + "\"", path},
        {"\"neuzavřená\"\r\n\"" + path, path},
    };
    for (const auto& [content, expected] : forms) {
        folder.write("VELOR.CFG", platform::toSystemText(content));
        smes.AdrVELOR("");
        EXPECT_EQ(smes.AdrVELOR(), expected) << content;
        EXPECT_TRUE(boxes.messages.empty()) << content;
    }
}

// A CFG file can call any file the database; asked twice, it must not be deleted.
TEST_F(LocateTest, offersNoOtherFileForDeletion) {
    const std::string thesis = folder.write("thesis.drc", "short");
    configure(thesis + "#");
    boxes.nextAnswers = {Answer::Yes, Answer::Yes};
    for (int time = 0; time < 2; ++time) EXPECT_EQ(smes.AdrVELOR(), "");
    EXPECT_TRUE(fs::exists(thesis));
    for (const Message& message : boxes.messages) EXPECT_EQ(message.buttons, Buttons::Ok) << message.text;
}

TEST_F(LocateTest, asksBeforeItDeletesTheConfiguration) {
    folder.write("other.bin", kDatabase);
    for (const std::string& path :
         {folder / "gone/VELOR.DRC", folder / "other.bin", folder.path(), std::string("\"VELOR.DRC\0x\"", 13)})
        for (const Answer answer : {Answer::No, Answer::Yes}) {
            configure(path);
            boxes.messages.clear();
            boxes.nextAnswers = {answer};
            EXPECT_EQ(smes.AdrVELOR(), "") << path;
            EXPECT_EQ(boxes.messages, std::vector{missingQuestion()}) << path;
            EXPECT_EQ(fs::exists(configuration), answer == Answer::No);
        }
    smes.Tichy(1);
    configure(folder.path());
    smes.Adrvlr();
    EXPECT_EQ(smes.PosledniHlaska(), missingQuestion().text);
    EXPECT_TRUE(fs::exists(configuration));
}

TEST_F(LocateTest, refusesAShortDatabase) {
    const std::string path = folder.write("VELOR.DRC", std::string(4000, ' '));
    configure(path);
    EXPECT_EQ(smes.AdrVELOR(), path);
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        folder.write("VELOR.DRC", std::string(3999, ' '));
        smes.AdrVELOR("");
        boxes.messages.clear();
        boxes.nextAnswers = {answer};
        EXPECT_EQ(smes.AdrVELOR(), "");
        EXPECT_EQ(boxes.messages,
                  (std::vector<Message>{
                      {"Soubor " + path + "má příliš malou délku (3999) nebo je nulový.\r\nSmazat ho ? (Y/N)",
                       Icon::None, "VELOR", Buttons::YesNo}}));
        EXPECT_EQ(fs::exists(path), answer == Answer::No);
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
    smes.Tichy(1);  // nobody would wait for it
    EXPECT_EQ(smes.AdrVELOR(), "");
    EXPECT_EQ(smes.PosledniHlaska(), regret.text);
    smes.Tichy(0);
    EXPECT_EQ(smes.AdrVELOR(), inside);
    EXPECT_EQ(boxes.messages, std::vector{notice});
    EXPECT_EQ(readFile(configuration),
              platform::toSystemText("Soubor obsahuje na 2.ř. cestu k datovému souboru báze.\r\n" + inside + "\r\n"));

    // A path with a comma survives the way through the file.
    fs::remove(inside);
    fs::remove(outside);
    fs::remove(configuration);
    const std::string comma = folder.write("c/VELOR,1/VELOR.DRC", kDatabase);
    for (int time = 0; time < 2; ++time) {
        smes.AdrVELOR("");
        EXPECT_EQ(smes.AdrVELOR(), comma);
    }
    EXPECT_EQ(boxes.messages.size(), 2U);
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
    EXPECT_EQ(boxes.messages.back().text, "Chyba č. 70 : Permission denied");
}
#endif

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
    smes.FindFiles(folder / "c", "data*", "*", hits);  // the mask minds the case
    EXPECT_EQ(hits.at(0), Variant("12"));
    EXPECT_EQ(Smes::TrimNulls(std::string("ab\0c", 4)), "ab");
}

}  // namespace
}  // namespace velor::test
