// Which database the command works with, and what it says where there is none.
#include "small_database.h"

namespace velor::test {
namespace {

TEST(DatabaseChoiceTest, whatIsNoDatabaseIsRefused) {
    const TemporaryFolder folder;
    const std::pair<std::string, const char*> cases[] = {
        {"", "soubor nenalezen (chyba 53)"},
        {folder / "nic/nic", "(chyba 76)"},
        {folder.path(), "(chyba 75)"},
        {folder.write("kratky", std::string(507, 'x')), "není databáze látek"},
        {folder.write("text", std::string(5080, 'x')), "není databáze látek"},
    };
    for (const auto& [path, phrase] : cases) expectFailure(run({"latka", "1", "--baze", path}), 3, phrase);
}

// A copy of the command in a folder of its own.
TEST(DatabaseChoiceTest, aLonelyCommandSearchesNothingBySurprise) {
    const TemporaryFolder folder;
    const std::string program = folder / "velor";
    std::filesystem::copy_file(kVelor, program);
    const Outcome lonely = run({"latka", "1"}, program);
    expectFailure(lonely, 3, folder / "VELOR.CFG");
    expectMentions(lonely.error, "--baze");

    const std::string configuration = folder.write("VELOR.CFG", "poznamka\r\n/nikde/VELOR.DRC\r\n");
    // The library's offer to delete the file is not passed on, whatever is typed.
    expectFailure(run({"latka", "1"}, program, "a\n"), 3, configuration + " nevede k použitelné databázi");
    EXPECT_TRUE(std::filesystem::exists(configuration));
}

}  // namespace
}  // namespace velor::test
