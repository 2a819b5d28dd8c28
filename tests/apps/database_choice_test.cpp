// Which database the command works with, and what it says where there is none.
#include "small_database.h"

namespace velor::test {
namespace {

// A copy of the command in a folder of its own, where no VELOR.CFG lies.
struct LonelyCommand : ::testing::Test {
    TemporaryFolder folder;
    std::string program = folder / "velor";

    void SetUp() override { std::filesystem::copy_file(kVelor, program); }
};

TEST(DatabaseChoiceTest, theUsualDatabaseIsBesideTheCommand) {
    const Outcome outcome = run({"vlastnost", "TENS", "--latky", "voda", "-T", "373.15", "--json"});
    ASSERT_EQ(outcome.exitCode, 0) << outcome.error;
    EXPECT_NEAR(outcome.json()["hodnoty"][0]["1"], 101325, 500);
}

TEST(DatabaseChoiceTest, theChosenOneMayStandBeforeOrBehindTheCommand) {
    const SmallDatabase database;
    for (const Words& words : {Words{"--baze", database.path(), "latka", "7", "--json"},
                               Words{"latka", "7", "--json", "--baze", database.path()}})
        EXPECT_EQ(run(words).json()["latka"]["nazev"], "Kobalt");
}

TEST(DatabaseChoiceTest, whatIsNoDatabaseIsRefused) {
    const TemporaryFolder folder;
    const struct {
        std::string path, phrase;
    } cases[] = {
        {folder / "nic", "soubor nenalezen (chyba 53)"},
        {folder / "nic/nic", "(chyba 76)"},
        {folder.path(), "(chyba 75)"},
        {"", "soubor nenalezen (chyba 53)"},
        {folder.write("prazdny", ""), "není databáze látek"},
        {folder.write("kratky", std::string(507, 'x')), "není databáze látek"},
        {folder.write("text", std::string(5080, 'x')), "není databáze látek"},
    };
    for (const auto& [path, phrase] : cases) expectFailure(run({"latka", "1", "--baze", path}), 3, phrase);
}

TEST_F(LonelyCommand, searchesNothingBySurprise) {
    const Outcome outcome = run({"latka", "1"}, program);
    expectFailure(outcome, 3, folder / "VELOR.CFG");
    expectMentions(outcome.error, "--baze");
}

TEST_F(LonelyCommand, saysThatTheConfigurationLeadsNowhere) {
    const std::string configuration = folder.write("VELOR.CFG", "poznamka\r\n/nikde/VELOR.DRC\r\n");
    const Outcome kept = run({"latka", "1"}, program);  // nobody answers the library's question
    expectFailure(kept, 3, "obsahuje odkaz na neexistující soubor VELOR.DRC");
    expectMentions(kept.error, configuration + " nevede k použitelné databázi");
    EXPECT_TRUE(std::filesystem::exists(configuration));
    run({"latka", "1"}, program, "a\n");
    EXPECT_FALSE(std::filesystem::exists(configuration));
}

}  // namespace
}  // namespace velor::test
