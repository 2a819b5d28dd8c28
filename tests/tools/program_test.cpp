// velor-baze as a user runs it: exit codes, messages, and what is left on the disk.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "database/configuration_file.h"
#include "support/temporary_folder.h"

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

    // A copy of the real tables, the substances changed at one place.
    void copyData(const std::string& from, const std::string& to) const {
        std::string substances = test::readFile(VELOR_DATA "/latky.csv");
        substances.replace(substances.find(from), from.size(), to);
        folder.write("data/latky.csv", substances);
        folder.write("data/korelace.csv", test::readFile(VELOR_DATA "/korelace.csv"));
    }

    test::TemporaryFolder folder;
};

TEST_F(Program, aFaultLeavesTheOldDatabaseAndNamesFileAndLine) {
    copyData("7732-18-5", "7732-18-6");
    const std::string database = folder.write("VELOR.DRC", "old");
    const Outcome compiled = run("sestav " + (folder / "data") + " " + database);
    EXPECT_EQ(compiled.exitCode, 1);
    EXPECT_TRUE(compiled.errors.starts_with((folder / "data/latky.csv") + ":2: CAS: ")) << compiled.errors;
    EXPECT_EQ(test::readFile(database), "old");
    EXPECT_EQ(run("sestav " + (folder / "data") + " " + database + " --bez-kontroly").exitCode, 0);
    EXPECT_EQ(test::readFile(database).size(), test::readFile(VELOR_DATABASE).size());
}

TEST_F(Program, theConfigurationFileNamesTheDatabaseInFull) {
    const std::string arguments =
        "sestav " VELOR_DATA " " + folder.path() + "./VELOR.DRC --cfg " + (folder / "VELOR.CFG");
    EXPECT_EQ(run(arguments).exitCode, 0);
    EXPECT_EQ(readConfiguredPath(folder / "VELOR.CFG"), folder / "VELOR.DRC");
}

TEST_F(Program, decompilingOverwritesNoTables) {
    const std::string arguments = "rozloz " VELOR_DATABASE " " + (folder / "new/text");
    EXPECT_EQ(run(arguments).exitCode, 0);
    EXPECT_EQ(run("sestav " + (folder / "new/text") + " " + (folder / "again.DRC")).exitCode, 0);
    EXPECT_TRUE(test::readFile(folder / "again.DRC") == test::readFile(VELOR_DATABASE));
    EXPECT_EQ(run(arguments).exitCode, 1);
}

TEST_F(Program, aRefusedDatabaseLeavesNothing) {
    const std::string database = folder.write("VELOR.DRC", std::string(509, ' '));
    EXPECT_EQ(run("rozloz " + database + " " + (folder / "text")).exitCode, 1);
    EXPECT_FALSE(std::filesystem::exists(folder / "text"));
}

TEST_F(Program, wrongCommandLinesAreToldApartFromFaults) {
    for (const char* arguments : {"", "neco", "sestav", "sestav a", "sestav a b c", "rozloz a b --bez-kontroly"}) {
        const Outcome result = run(arguments);
        EXPECT_EQ(result.exitCode, 2) << arguments;
        EXPECT_NE(result.errors.find("velor-baze --help"), std::string::npos) << arguments;
    }
    EXPECT_EQ(run("--help").exitCode, 0);
    EXPECT_EQ(run("sestav --help").exitCode, 0);
}

}  // namespace
}  // namespace velor
