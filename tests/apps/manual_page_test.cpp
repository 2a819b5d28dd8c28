// The manual page: clean for the typesetter, and nothing of the help is missing in it.
#include <sstream>

#include "command.h"

namespace velor::test {
namespace {

struct ManualPageTest : ::testing::Test {
    TemporaryFolder folder;
    std::string page = folder.write("velor.1", run({"prirucka"}).out);

    Outcome typeset(const std::string& command) const {
        return run({"-c", "export LC_ALL=C.UTF-8; " + command, "bash", page}, "/bin/bash");
    }
};

// A word of the help and the rest of its line, for each line that defines an option, a value or a command.
std::vector<std::string> definedNames(const std::string& help) {
    std::vector<std::string> names;
    std::istringstream lines(help);
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with("  ") || line[2] == ' ') continue;
        const std::string name = line.substr(2, line.find("  ", 2) - 2);
        names.push_back(name.substr(0, name.find(" (")));
    }
    return names;
}

std::vector<std::string> examples(const std::string& help) {
    std::vector<std::string> found;
    std::istringstream lines(help.substr(std::min(help.find("Příklad"), help.size())));
    for (std::string line; std::getline(lines, line);) found.push_back(line.substr(line.find("velor ")));
    return found;
}

TEST_F(ManualPageTest, isTypesetWithoutWarnings) {
    for (const char* command :
         {"groff -k -man -Tutf8 -ww \"$1\" >/dev/null", "man --warnings=w -l \"$1\" | cat >/dev/null",
          "LC_ALL=C man --warnings=w -l \"$1\" | grep 'vypise jen radky' >/dev/null", "lexgrog \"$1\" >/dev/null"}) {
        const Outcome outcome = typeset(command);
        EXPECT_EQ(outcome.exitCode, 0) << command;
        EXPECT_EQ(outcome.error, "") << command;
    }
}

TEST_F(ManualPageTest, saysWhatTheHelpSays) {
    const std::string text = typeset("groff -k -man -Tutf8 -P-cbou \"$1\"").out;
    const std::size_t shared = text.find("\nPŘEPÍNAČE");
    std::size_t commands = 0;
    for (const std::string& name : definedNames(run({"--help"}).out)) {
        expectMentions(text, name.starts_with("-h,") ? "-h, --help" : name);
        const std::size_t section = text.find("   velor " + name + "\n");
        if (section == std::string::npos) continue;
        ++commands;
        const std::string help = run({name, "--help"}).out;
        const std::string own = text.substr(section, text.find("\n   velor ", section) - section) + text.substr(shared);
        for (std::string value : definedNames(help)) {
            if (const std::size_t comma = value.find(','); comma != std::string::npos) value.insert(comma + 1, " ");
            expectMentions(own, value);
        }
        for (const std::string& example : examples(help)) expectMentions(own, example);
    }
    EXPECT_EQ(commands, 9U);
}

}  // namespace
}  // namespace velor::test
