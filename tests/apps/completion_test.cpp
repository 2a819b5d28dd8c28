// Completion in real bash: the candidates of a typed line, and Tab pressed at a terminal.
#include <poll.h>
#include <pty.h>

#include <algorithm>
#include <chrono>
#include <sstream>

#include "small_database.h"

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
        {"velor latka --csv --c|", {}},
        {"velor smes --h|", {"--help", "--hmotove"}},
        {"velor flash -T|", {"-T"}},
        {"velor smes --hmotove --latky vod|", {"Voda"}},
        {"velor seznam --podle |", {"cisel", "nazvu"}},
        {"velor vlastnost ten|", {"TENS"}},
        {"velor graf rhg|", {"rhg", "rhgW"}},
        {"velor vlastnost TENS --limit |", {}},
        // a name of several words, quoted or not, without diacritics, by a part of it
        {"velor latka kys|", {"Kyselina\\ octová"}},
        {"velor latka OCT|", {"Kyselina\\ octová"}},
        {"velor latka 'kys|", {"Kyselina octová"}},
        {"velor latka kyselina oct|", {"octová"}},
        {"velor latka kyselina\\ oct|", {"Kyselina\\ octová"}},
        {"velor latka \"kyselina oct\"|", {"\"Kyselina octová\""}},
        {"velor latka dme|", {"DME"}},
        {"velor latka Kyselina\\ OCTOVÁ|", {"Kyselina\\ octová"}},
        {"velor latka 4|", {}},
        // several names: nothing that is typed goes away
        {"velor latka ET|", {"EThan", "EThanol"}},
        // lists
        {"velor smes --latky voda,kys|", {"voda,Kyselina\\ octová"}},
        {"velor smes --latky voda,et|", {"voda,ethan", "voda,ethanol"}},
        {"velor smes --latky ethan,et|", {"ethan,Ethanol"}},
        {"velor smes --latky 'voda, kys|", {"voda, Kyselina octová"}},
        {"velor smes --latky 'voda;kys|", {"voda;Kyselina octová"}},
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

TEST(CompletionTest, files) {
    const TemporaryFolder folder;
    for (const char* name : {"a.svg", "a b.PNG", "a.txt", ".a.svg", "as (1)/b.svg"}) folder.write(name, "");
    const std::string& path = folder.path();
    const struct {
        std::string line;
        Words expected;
    } cases[] = {
        {"velor graf TENS --vystup " + path + "a|", {path + "a.svg", path + "a\\ b.PNG", path + "as\\ \\(1\\)/"}},
        {"velor rovnovaha --graf='" + path + "a|", {path + "a b.PNG", path + "a.svg", path + "as (1)/"}},
        {"velor rovnovaha --graf=\"" + path + "as (1)/|", {path + "as (1)/b.svg"}},
        {"velor --baze " + path + "a.|", {path + "a.svg", path + "a.txt"}},
        {"velor seznam --csv >" + path + "a.t|", {path + "a.txt"}},
        {"velor graf TENS --vystup " + path + ".|", {path + ".a.svg"}},
        {"velor graf TENS --vystup " + path + "nic/|", {}},
    };
    for (const auto& [line, expected] : cases) EXPECT_EQ(candidates(line), expected) << line;
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

// Every substance has a name to offer, and the command takes it.
TEST(CompletionTest, everyOfferedNameIsUnderstood) {
    const Words names = candidates("velor latka |", kUsualBreaks, "63");
    EXPECT_EQ(names.size(), run({"seznam", "--json"}).json()["seznam"].size());
    constexpr std::size_t kMostAtOnce = 20;
    for (std::size_t first = 0; first < names.size(); first += kMostAtOnce) {
        const std::size_t count = std::min(kMostAtOnce, names.size() - first);
        std::string list;
        for (std::size_t i = first; i < first + count; ++i) list += (i == first ? "" : ";") + names[i];
        const Outcome outcome = run({"vlastnost", "TENS", "--latky", list, "-T", "300", "--meze", "--json"});
        EXPECT_EQ(outcome.exitCode, 0) << outcome.error;
        EXPECT_EQ(outcome.json()["latky"].size(), count) << list;
    }
}

// A bash at a terminal of its own.
class Terminal {
  public:
    explicit Terminal(const std::string& startFile) {
        process_ = forkpty(&terminal_, nullptr, nullptr, nullptr);
        if (process_ == 0) {
            setenv("TERM", "dumb", 1);
            execl("/bin/bash", "bash", "--noprofile", "--rcfile", startFile.c_str(), "-i", nullptr);
            _exit(127);
        }
        awaitPrompt();
    }
    ~Terminal() {
        send("exit\n");
        close(terminal_);
        waitpid(process_, nullptr, 0);
    }
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    // What the terminal shows until the next prompt.
    std::string type(const std::string& line) {
        send(line + "\n");
        return awaitPrompt();
    }

    static constexpr const char* kPrompt = "<hotovo>";

  private:
    void send(const std::string& keys) { EXPECT_EQ(write(terminal_, keys.data(), keys.size()), ssize_t(keys.size())); }

    std::string awaitPrompt() {
        constexpr int kPatience = 30'000;  // ms, for a loaded machine
        std::string shown;
        char bytes[4096];
        while (!shown.ends_with(kPrompt)) {
            pollfd ready{terminal_, POLLIN, 0};
            const ssize_t count = poll(&ready, 1, kPatience) == 1 ? read(terminal_, bytes, sizeof bytes) : 0;
            if (count <= 0) {
                ADD_FAILURE() << "no prompt: " << shown;
                break;
            }
            shown.append(bytes, static_cast<std::size_t>(count));
        }
        return shown;
    }

    pid_t process_ = -1;
    int terminal_ = -1;
};

TEST(CompletionTest, completedLinesRun) {
    const SmallDatabase database;
    const TemporaryFolder folder;
    const struct {
        const char* typed;  // behind the database
        const char* phrase;
    } cases[] = {
        {"lat\tkys\t", "Kyselina octová"},
        {"latka kyselina OCT\t--lim\t5", "Kyselina octová"},
        {"latka \"kyselina o\t", "Kyselina octová"},
        {"prehled --latky=2,2-d\t", "2,2-Dimethylpropan"},
        {"prehled --latky 'oxid\t", "Oxid uhelnatý"},
        {"vl\tten\t--latky voda,ky\t -T 300", "Kyselina octová"},
    };
    for (const char* setting : {"", "source /usr/share/bash-completion/bash_completion\n"}) {
        Terminal terminal(folder.write("bashrc", setting +
                                                     ("source '" + kScript + "'\nPATH='" VELOR_PROGRAMS "':$PATH\n") +
                                                     "PS1='" + Terminal::kPrompt + "'\n"));
        for (const auto& [typed, phrase] : cases) {
            const std::string shown = terminal.type("velor --ba\t" + database.path() + " " + typed + " >" +
                                                    (folder / "out") + "; echo $? >" + (folder / "kod"));
            EXPECT_EQ(readFile(folder / "kod"), "0\n") << shown;
            expectMentions(readFile(folder / "out"), phrase);
        }
    }
}

}  // namespace
}  // namespace velor::test
