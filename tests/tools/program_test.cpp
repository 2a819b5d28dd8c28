// velor-baze as a user runs it: exit codes, messages, and what is left on the disk.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "object/configuration_file.h"
#include "support/shipped_database.h"
#include "support/temporary_folder.h"
#include "velor/properties.h"
#include "velor/smes.h"

namespace velor {
namespace {

struct Outcome {
    int exitCode;
    std::string errors;
};

class Program : public testing::Test {
  protected:
    Outcome run(const std::string& arguments) const {
        const std::string errors = folder / "stderr";
        const std::string command =
            VELOR_PROGRAMS "/velor-baze " + arguments + " >" + (folder / "stdout") + " 2>" + errors;
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, test::readFile(errors)};
    }

    test::TemporaryFolder folder;
};

TEST_F(Program, aFaultLeavesTheOldDatabaseAndNamesFileAndLine) {
    std::string substances = test::readFile(VELOR_DATA "/latky.csv");
    substances.replace(substances.find("7732-18-5"), 9, "7732-18-6");
    folder.write("data/latky.csv", substances);
    folder.write("data/korelace.csv", test::readFile(VELOR_DATA "/korelace.csv"));
    const std::string database = folder.write("VELOR.DRC", "old");
    const Outcome compiled = run("sestav " + (folder / "data") + " " + database);
    EXPECT_EQ(compiled.exitCode, 1);
    EXPECT_TRUE(compiled.errors.starts_with((folder / "data/latky.csv") + ":2: CAS: ")) << compiled.errors;
    EXPECT_EQ(test::readFile(database), "old");
    EXPECT_EQ(run("sestav " + (folder / "data") + " " + database + " --bez-kontroly").exitCode, 0);
    EXPECT_EQ(test::readFile(database).size(), test::readFile(VELOR_DATABASE).size());
}

TEST_F(Program, decompilingOverwritesNoTables) {
    const std::string arguments = "rozloz " VELOR_DATABASE " " + (folder / "new/text");
    EXPECT_EQ(run(arguments).exitCode, 0);
    EXPECT_EQ(
        run("sestav " + (folder / "new/text") + " " + (folder / "./again.DRC") + " --cfg " + (folder / "C")).exitCode,
        0);
    EXPECT_EQ(readConfiguredPath(folder / "C"), folder / "again.DRC");  // in full
    EXPECT_TRUE(test::readFile(folder / "again.DRC") == test::readFile(VELOR_DATABASE));
    EXPECT_EQ(run(arguments).exitCode, 1);
    const std::string database = folder.write("VELOR.DRC", std::string(509, ' '));
    EXPECT_EQ(run("rozloz " + database + " " + (folder / "text")).exitCode, 1);
    EXPECT_FALSE(std::filesystem::exists(folder / "text"));
}

TEST_F(Program, anOwnSubstanceGivesItsNumbers) {
    const std::string table = folder / "moje.csv", database = folder / "MOJE.DRC";
    ASSERT_EQ(run("sablona " + table).exitCode, 0);
    EXPECT_EQ(run("sablona " + table).exitCode, 1);  // what was typed there would be lost
    std::string text = test::readFile(table);
    for (const auto& [from, to] :
         {std::pair{"Voda,Water (H2O)", "Moje,"}, {"7732-18-5", "108-91-8"}, {"7732-18-5", "108-91-8"}})
        text.replace(text.find(from), std::string_view(from).size(), to);
    folder.write("moje.csv", text);
    const Outcome added = run("pridej " VELOR_DATABASE " " + table + " -o " + database);
    ASSERT_EQ(added.exitCode, 0) << added.errors;
    RecordingUserInterface boxes;
    Smes smes(boxes);
    smes.AdrVELOR(database);
    smes.DefSlozky(List({test::shippedSubstances() + 1}));
    EXPECT_NEAR(smes.FFce(373.15, 1, kTENS).toDouble(), 101325, 200);  // Antoine's constants of water
    EXPECT_EQ(smes.Zdroj(1, kTENS), "vlastní měření");
}

}  // namespace
}  // namespace velor
