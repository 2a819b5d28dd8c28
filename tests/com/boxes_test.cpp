// What the component shows, read back from the native boxes.
#include <filesystem>
#include <fstream>

#include "com/box_watcher.h"
#include "com/com_client.h"
#include "support/sample_database.h"

namespace velor::test {
namespace {

namespace fs = std::filesystem;

void writeDatabase(const fs::path& path) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << acceptableDatabase({sampleSubstance(1, "Voda")});
}

// Drive D is set up with the prefix. Z holds the whole host system, so only searches that succeed are made.
TEST(Search, prefersTheFolderVelorOfAnyDrive) {
    const fs::path elsewhere = L"C:/jinde", proper = L"D:/VELOR", configuration = L"C:/nastavení";
    writeDatabase(elsewhere / "VELOR.DRC");
    writeDatabase(proper / "sub/VELOR.DRC");
    fs::create_directories(configuration);
    const Apartment apartment;
    BoxWatcher watcher;
    const auto smes = createSmes();
    smes->put_CFGPath(com::toBstr("C:\\nastavení").get());
    BSTR path = nullptr;
    EXPECT_EQ(smes->get_AdrVELOR(&path), S_OK);
    EXPECT_EQ(takeText(path), "D:\\VELOR\\sub\\VELOR.DRC");
    const Box notice{"Instalace VELOR",
                     "Budu nyní hledat datový soubor VELOR.DRC na všech pevných discích\r\nMůže to trvat i několik "
                     "minut! Stiskněte OK a vyčkejte."};
    EXPECT_EQ(watcher.boxes(), std::vector{notice});
    std::ifstream written(configuration / "VELOR.CFG", std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(written), {}};
    EXPECT_TRUE(content.ends_with("\r\nD:\\VELOR\\sub\\VELOR.DRC\r\n")) << content;
    written.close();
    // What the CFG file names is gone: one question, and Yes deletes the file.
    fs::remove_all(proper);
    smes->put_AdrVELOR(com::toBstr("").get());
    EXPECT_EQ(smes->get_AdrVELOR(&path), S_OK);
    EXPECT_EQ(takeText(path), "");
    EXPECT_EQ(watcher.boxes().size(), 2U);
    EXPECT_FALSE(fs::exists(configuration / "VELOR.CFG"));
    fs::remove_all(elsewhere);
    fs::remove_all(configuration);
}

TEST(Budget, endsTheBoxes) {
    const Apartment apartment;
    BoxWatcher watcher;
    const auto smes = createSmes();
    define(*smes, std::array{235, 1});
    smes->put_MaxErrHlas(3);
    OwnVariant value;
    for (int i = 0; i < 5; ++i) smes->FFce(Passed(300.0), 1, 99, value.get());
    short shown = 0;
    EXPECT_EQ(smes->get_PocHlasek(&shown), S_OK);
    EXPECT_EQ(shown, 3);
    ASSERT_EQ(watcher.boxes().size(), 3U);
    EXPECT_EQ(watcher.boxes()[0].title, "VELOR");
}

TEST(InputBox, givesTheTypedTextAndNothingOnStorno) {
    const Apartment apartment;
    for (const std::wstring typed : {L"ethyl", L""}) {
        BoxWatcher watcher(GetCurrentProcessId(), typed);
        const auto smes = createSmes();
        EXPECT_EQ(smes->SeznamShow(Passed(2)), S_OK);
        ASSERT_FALSE(watcher.boxes().empty());
        EXPECT_EQ(watcher.boxes()[0], (Box{"VELOR", "Vložte název nebo část názvu hledané látky (bez *, %):", true}));
    }
}

}  // namespace
}  // namespace velor::test
