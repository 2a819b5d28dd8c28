// Completion in real bash: the candidates of a typed line, and Tab pressed at a terminal.
#include <algorithm>
#include <sstream>

#include "small_database.h"
#include "views/terminal/tmux.h"

namespace velor::test {
namespace {

const std::string kScript = std::string(VELOR_SOURCES) + "/apps/velor/velor.bash";
const std::string kUsualBreaks = " \t\n\"'@><=;|&(:";

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
}

// What bash would be given for the line with the cursor at "|".
Words candidates(const std::string& line, const std::string& wordBreaks = kUsualBreaks, const std::string& type = "9") {
    const std::size_t cursor = line.find('|');
    const Outcome outcome =
        run({"-c",
             "source \"$1\"; COMP_LINE=$2$3 COMP_POINT=${#2} COMP_WORDBREAKS=$4 COMP_TYPE=$5\n"
             "_velor \"$6\"; [ ${#COMPREPLY[@]} = 0 ] || printf '%s\\n' \"${COMPREPLY[@]}\"",
             "bash", kScript, line.substr(0, cursor), line.substr(cursor + 1), wordBreaks, type, kVelor},
            "/bin/bash");
    EXPECT_EQ(outcome.error, "") << line;
    EXPECT_EQ(outcome.exitCode, 0) << line;
    Words words = linesOf(outcome.out);
    std::ranges::sort(words);
    return words;
}

// Lines of a table are completed on the small database, which is named behind the cursor.
Words onSmallDatabase(const SmallDatabase& database, const std::string& line,
                      const std::string& breaks = kUsualBreaks) {
    return candidates(line + " --baze " + database.path(), breaks);
}

TEST(CompletionTest, candidatesOfALine) {
    const SmallDatabase database;
    const struct {
        const char* line;
        Words expected;
    } cases[] = {
        {"velor s|", {"seznam", "smes"}},
        {"velor --csv --limit 5 rov|", {"rovnovaha"}},
        {"velor latka --c|", {"--csv"}},
        {"velor smes --h|", {"--help", "--hmotove"}},
        {"velor smes --hmotove --latky vod|", {"Voda"}},
        {"velor seznam --podle |", {"cisel", "nazvu"}},
        {"velor vlastnost ten|", {"TENS"}},
        {"velor vlastnost TENS --limit |", {}},
        // a name of several words, quoted or not, without diacritics, by a part of it
        {"velor latka kys|", {"Kyselina\\ octová"}},
        {"velor latka 'kys|", {"Kyselina octová"}},
        {"velor latka kyselina oct|", {"octová"}},
        {"velor latka \"kyselina oct\"|", {"\"Kyselina octová\""}},
        {"velor latka dme|", {"DME"}},
        {"velor latka 4|", {}},
        // several names: nothing that is typed goes away
        {"velor latka ET|", {"EThan", "EThanol"}},
        // lists
        {"velor smes --latky voda,kys|", {"voda,Kyselina\\ octová"}},
        {"velor smes --latky voda,et|", {"voda,ethan", "voda,ethanol"}},
        {"velor smes --latky ethan,et|", {"ethan,Ethanol"}},
        {"velor smes --latky 'voda, kys|", {"voda, Kyselina octová"}},
        {"velor smes --latky voda,2,2-d|", {"voda,2,2-Dimethylpropan"}},
        {"velor smes --latky voda,2,'2-d|", {"2-Dimethylpropan"}},
        {"velor smes --latky 2,2-dimethylpropan,vo|", {"2,2-dimethylpropan,Voda"}},
        {"velor smes --latky=voda,tol|", {"voda,Toluen"}},
        {"velor smes --latky=|",
         {"2,2-Dimethylpropan", "Dimethylether", "Ethan", "Ethanol", "Kobalt", "Kyselina\\ octová", "Oxid\\ uhelnatý",
          "Toluen", "Vadný\\ prvek", "Voda"}},
    };
    for (const auto& [line, expected] : cases) EXPECT_EQ(onSmallDatabase(database, line), expected) << line;
    // Where a comma begins a new word, or "=" does not.
    EXPECT_EQ(onSmallDatabase(database, "velor smes --latky voda,2,2-d|", kUsualBreaks + ","),
              Words{"2-Dimethylpropan"});
    EXPECT_EQ(onSmallDatabase(database, "velor smes --latky=voda,tol|", " \t\n"), Words{"--latky=voda,Toluen"});
    // A list to be read is not quoted.
    EXPECT_EQ(candidates("velor smes --latky voda,kys| --baze " + database.path(), kUsualBreaks, "63"),
              Words{"Kyselina octová"});
}

// An escaped character is replaced with its backslash; otherwise the backslash would escape the one put before it, and
// bash would run what stands in the name.
TEST(CompletionTest, aNameStaysAName) {
    const TemporaryFolder folder;
    const std::string at = folder.path();
    folder.write("$(touch PWN).DRC", "");
    folder.write("(kopie) VELOR.DRC", "");
    EXPECT_EQ(candidates("velor seznam --baze \"" + at + "\\$|"), Words{at + "\\$(touch PWN).DRC"});
    EXPECT_EQ(candidates("velor seznam --baze " + at + "\\$|"), Words{at + "\\$\\(touch\\ PWN\\).DRC"});
    EXPECT_EQ(candidates("velor seznam --baze " + at + "\\(|"), Words{at + "\\(kopie\\)\\ VELOR.DRC"});
}

// Nor is anything run that stands in a database: Tab and Enter at a terminal show the substance of that name.
TEST(CompletionTest, tabRunsNothing) {
    const TemporaryFolder folder;
    const std::string names[] = {"$(touch PWN)", "`touch PWN`", "\"touch PWN\" a", "x\ntouch PWN"};
    std::vector<TLatka> records{sampleSubstance(1, "Voda")};
    for (const std::string& name : names)
        records.push_back(sampleSubstance(static_cast<int>(records.size()) + 1, name));
    for (const char* file : {"VELOR.DRC", "$(touch PWN).DRC", "(kopie) VELOR.DRC"})
        folder.write(file, databaseBytes(records));
    Tmux terminal{120, 24};
    terminal.type("cd " + folder.path() + "; . " + kScript + "; PATH=" + VELOR_PROGRAMS + ":$PATH");
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"1 --baze \"\\$", "--baze \"\\$(touch PWN).DRC\"", "Voda"},
        {"1 --baze \\(", "--baze \\(kopie\\)\\ VELOR.DRC", "Voda"},
        {"--baze VELOR.DRC \\$", "\\$\\(touch\\ PWN\\)", "$(touch PWN)"},
        {"--baze VELOR.DRC \"\\$", "\"\\$(touch PWN)\"", "$(touch PWN)"},
        {"--baze VELOR.DRC \\`", "\\`touch\\ PWN\\`", "`touch PWN`"},
        {"--baze VELOR.DRC \\\"", "\\\"touch\\ PWN\\\"\\ a", "\"touch PWN\" a"},
        {"--baze VELOR.DRC x", "x\\?touch\\ PWN", "x?touch PWN"},
    };
    for (const auto& [typed, completed, shown] : cases) {
        terminal.press("Enter");
        terminal.type(std::string("clear; velor latka ") + typed);
        terminal.press("Tab");
        terminal.waitFor(completed);
        terminal.type(" | head -1");
        terminal.press("Enter");
        terminal.waitFor(shown + std::string("\n$"));
    }
    EXPECT_FALSE(std::filesystem::exists(folder / "PWN"));
}

TEST(CompletionTest, isSilentWithoutADatabase) {
    const TemporaryFolder folder;
    EXPECT_EQ(candidates("velor --baze " + (folder / "nic") + " latka v|"), Words{});
    const std::string configuration = folder.write("VELOR.CFG", "poznamka\r\n/nikde/VELOR.DRC\r\n");
    std::filesystem::copy_file(kVelor, folder / "velor");
    const Outcome outcome = run({"doplneni", "--", " ", "velor latka v"}, folder / "velor", "a\n");
    EXPECT_EQ(outcome.out, "\n");
    EXPECT_EQ(outcome.error, "");
    EXPECT_TRUE(std::filesystem::exists(configuration));
}

}  // namespace
}  // namespace velor::test
