// The full-screen dialogs as a person uses them: real keys on a real terminal.
#include <signal.h>

#include <cstdlib>
#include <filesystem>

#include "runtime/text.h"
#include "support/shipped_database.h"
#include "views/terminal/tmux.h"

namespace velor::test {
namespace {

const std::string kVelor = std::string(VELOR_PROGRAMS) + "/velor";
const std::string kSubstances = std::to_string(shippedSubstances());
const std::string kOfAll = " z " + kSubstances;
const std::string kListIsThere = "Počet látek je " + kSubstances;

struct Views : ::testing::Test {
    TemporaryFolder folder;
    std::string database = folder / "VELOR.DRC";
    Tmux terminal{80, 24};

    void SetUp() override { std::filesystem::copy_file(VELOR_DATABASE, database); }

    void start(const std::string& command, const std::string& more = "") {
        terminal.type(kVelor + " " + command + " --baze " + database + " " + more);
        terminal.press("Enter");
    }
    // What is typed, the keys pressed after it, and what the screen has to show then.
    struct Step {
        const char *typed, *keys, *shown;
    };
    void follow(std::initializer_list<Step> steps) {
        for (const Step& step : steps) {
            if (*step.typed) terminal.type(step.typed);
            if (*step.keys) terminal.press(step.keys);
            if (*step.shown) terminal.waitFor(step.shown);
        }
    }
    // What a command prints where there is no terminal.
    std::string printed(const std::string& command) {
        const std::string file = folder / "printed";
        EXPECT_EQ(std::system((kVelor + " " + command + " >" + file).c_str()), 0);
        return readFile(file);
    }
    std::string content(const std::string& file) { return readFile(folder / file); }
};

TEST_F(Views, chooseComposeAndFlash) {
    start("smes --dialog", ">" + (folder / "vysledek"));
    terminal.waitFor(kListIsThere);
    // clang-format off
    follow({
        {"pentan", "", "pentan_"}, {"", "Enter", "41 "},  // a name typed into the box of numbers is searched for
        {"HEXAN", "Enter", "Pentan + Hexan"},  // another search, in any case
        {"xyzq", "", "Látka  XYZQ  nenalezena!!!"},
        {"", "C-u M-p", ""}, {"43", "Enter", "Pentan + Hexan + Heptan"},  // typing numbers
        {"", "M-s", "Zadání složení směsi"}, {"x0,3", "Home DC Enter", ""}, {"0.3", "Enter", ""},
        {"0.5", "BSpace", ""}, {"4", "Enter Enter", "Spočítat flash této směsi?"}, {"", "a", "0-izotermní"},
        {"", "Enter", "Zadat tlak"}, {"", "C-u", ""}, {"101325", "Enter", "0.3 0.3 0.4"},
        {"", "Enter", "Bod varu"}, {"", "C-u", ""}, {"66,85", "Enter", ""}});
    // clang-format on
    terminal.waitUntilGone("Bod varu");
    const std::string mixture = " --latky pentan,hexan,heptan --slozeni 0.3,0.3,0.4 ";
    EXPECT_EQ(content("vysledek"), printed("smes" + mixture) + "\n" + printed("flash" + mixture + "-T 340"));
    EXPECT_EQ(terminal.modes(), "010");
}

TEST_F(Views, displayAndChangeAComponent) {
    start("smes --dialog");
    terminal.waitFor(kListIsThere);
    // clang-format off
    follow({
        {"1", "Enter M-s", "1. Voda"}, {"1", "F2", "Zobrazení složky č. 1: Voda"},
        {"", "Down Down Down", "ROLW: 997.0 kg/m³"},
        {"", "Tab C-u Enter", "Teplota: zadejte kladné číslo v kelvinech."}, {"", "Enter", ""},
        {"373,15", "Enter", "ROLW: 958."}, {"", "Escape", "1. Voda"},
        {"", "F3", "Dočasná změna složky č. 1: Voda"}, {"Žluťoučká voda", "Enter Tab Tab C-u", ""},
        {"1-2-3", "M-u", "Pole „CAS“"},
        {"", "Enter C-u M-d", "Dočasná změna vlastností složky č. 1: Žluťoučká voda"}, {"", "End BTab BTab BTab BTab BTab C-u", ""},
        {"350", "Enter", "Po změně:     0.0636"}, {"", "Tab Tab Tab Tab Tab Tab", ""},
        {"99", "M-u", "SIGMA, Typ rovnice: zadejte číslo 1 až 19, nebo pole nechte prázdné."},
        {"", "Enter", ""}, {"1", "", "y = A1 + A2.T   přímka"}, {"", "M-u", "1. Žluťoučká voda"},
        {"", "Escape", "Zahodit zadané složky směsi?"}, {"", "n", "1. Žluťoučká voda"}, {"", "Tab", "složku č. 1"},
        {"", "F3", "Dočasná změna složky č. 1: Žluťoučká voda"}, {"", "M-o", "Voda"}, {"", "M-u", "1. Voda"},
        {"", "BTab BTab Enter", "Složení nebylo zadáno, směs zůstala bez složek."}});
    // clang-format on
    EXPECT_EQ(terminal.modes(), "010");
}

TEST_F(Views, takeTheMouse) {
    start("smes --dialog");
    terminal.waitFor(kListIsThere);
    follow({{"voda", "", "voda_"}});
    for (int clicks = 0; clicks < 2; ++clicks) terminal.click(terminal.rowOf("7732-18-5"), 10);
    terminal.waitFor("\n Voda\n");
    terminal.click(terminal.rowOf("Směs definována"), 5);
    terminal.waitFor("1. Voda");
    constexpr int kRightButton = 2;
    terminal.click(terminal.rowOf("1. Voda"), 4, kRightButton);
    terminal.waitFor("Dočasná změna složky č. 1");
    constexpr int kWheelDown = 65;
    terminal.click(5, 40, kWheelDown);
    terminal.waitFor("normální teplota varu");
    follow({{"", "Escape", "1. Voda"}});
    terminal.click(terminal.rowOf("1. Voda"), 4);
    terminal.waitFor("Zobrazení složky č. 1");
    terminal.click(terminal.rowOf("TENS"), 60);
    terminal.waitFor("TENS: 3171 Pa");
    follow({{"", "Escape", "1. Voda"}, {"", "Escape", "Zahodit"}, {"", "a", "Složení nebylo zadáno"}});
}

TEST_F(Views, fitEveryWindow) {
    start("smes --dialog");
    terminal.waitFor(kListIsThere);
    follow({{"1", "Enter", ""}});
    for (const auto& [columns, rows] : {std::pair{160, 40}, {40, 12}, {9, 3}, {60, 20}}) {
        terminal.resize(columns, rows);
        // The first line is the caption again, and the last one tells the keys: nothing was wrapped.
        terminal.waitFor(columns > 20 ? " SEZNAM LÁTEK - definice" : " SEZNAM");
        if (columns > 100)
            terminal.waitFor("1,1,1,2-Tetrafluorethan        R134a");  // more than the line's 20 characters
        EXPECT_EQ(terminal.rowOf(" SEZNAM"), 0) << terminal.screen();
        EXPECT_EQ(terminal.rowOf(" číslo l"), rows - 1) << terminal.screen();
    }
    // Columns stay aligned under their headings, Czech letters or not.
    terminal.type("kyselina m");
    terminal.waitFor("4 z " + kSubstances);
    terminal.waitFor("Formic");  // the list is drawn after the count
    const auto columnOf = [&](const std::string& line, const std::string& text) {
        return characterCount(line.substr(0, line.find(text)));
    };
    EXPECT_EQ(columnOf(terminal.line("Synonymum"), "Synonymum"), columnOf(terminal.line("mravenčí"), "Formic"));
}

TEST_F(Views, browseTheList) {
    start("seznam");
    terminal.waitFor("Počet zahrnutých látek  " + kSubstances);
    // clang-format off
    follow({
        {"", "NPage NPage", "1-Chlorpropan"}, {"", "End", ""}, {"ethanolamin", "", kOfAll.c_str()}, {"", "", "Triethanolamin"},
        {"", "Enter", "Látka č. "}, {"", "", "Teplota [K]:"}, {"", "Escape", kOfAll.c_str()}, {"", "x", "nenalezena!!!"}});
    // clang-format on
    terminal.press("Escape");
    terminal.waitUntilGone("nenalezena");
    EXPECT_EQ(terminal.modes(), "010");
    start("seznam --podle cisel");
    terminal.waitFor("\n 001  Voda");
    terminal.press("Escape");
    terminal.waitUntilGone("001  Voda");
    start("seznam kyselina");  // a table, which a pipe gets too
    terminal.waitFor("Látky s textem");
}

TEST_F(Views, giveTheTerminalBack) {
    const std::string pidFile = folder / "pid";
    const std::pair<const char*, int> waysOut[] = {{"Escape", 0},   {"C-c", 0},        {"TERM", SIGTERM},
                                                   {"HUP", SIGHUP}, {"SEGV", SIGSEGV}, {"ABRT", SIGABRT}};
    for (const auto& [name, signal] : waysOut) {
        terminal.type("sh -c \"echo \\$\\$ >" + pidFile + "; exec " + kVelor + " smes --dialog --baze " + database +
                      "\"");
        terminal.press("Enter");
        terminal.waitFor(kListIsThere);
        EXPECT_EQ(terminal.modes(), "111") << name;
        if (signal == 0) {
            terminal.press(name);
        } else {
            EXPECT_EQ(kill(std::stoi(content("pid")), signal), 0) << name;
        }
        terminal.waitUntilGone(kListIsThere);
        terminal.type("clear; stty -a | grep -oE -e \" -?icanon\" -e \" -?echo \"; echo hotovo $((1+1))");
        terminal.press("Enter");
        const std::string shown = terminal.waitFor("hotovo 2");
        EXPECT_NE(shown.find("\n echo"), std::string::npos) << name << shown;
        EXPECT_NE(shown.find(" icanon"), std::string::npos) << name << shown;
        EXPECT_EQ(terminal.modes(), "010") << name;
    }
}

// What a keyboard, a paste or another terminal may send.
TEST_F(Views, passOverWhatMeansNothing) {
    start("smes --dialog");
    terminal.waitFor(kListIsThere);
    const std::string long9(400, '9');
    // clang-format off
    follow({
        {"1", "Enter", ""}, {long9.c_str(), "Enter M-s", "chyba 6"}, {"", "Enter M-z", ""}, {"1", "Enter", ""},
        {"", "-H e9", ""}, {"", "-H 1b 5b 31 35 3b 32 7e", ""}, {"", "-H 1b 1b 5b 42", ""},
        {"", "-H 1b 5b 31 3b 33 42", ""}, {"", "-H 01 1f", ""}, {"hexan", "Enter", "Voda + Hexan"},
        {"", "M-s", "Zadání složení"}, {"", "Enter", ""}, {"-1", "M-p", "2. složení je záporné!"},
        {"", "Enter", "-1"},  // to be mended, not typed anew
        {"", "Down C-u", ""}, {"1", "M-p", "Spočítat flash této směsi?"}});
    terminal.resize(40, 15);
    follow({{"", "", "42  Hexan  C6H14  0.5  0.827093"}, {"", "NPage", "0.00021275  m³/mol"},
        {"", "Down Down Down Down", "rosný bod"}, {"", "Up Up Up Up", "0.0520953"}, {"", "a", "0-izotermní"},
        {"", "Escape", "Zadání bylo zrušeno"}});
    // clang-format on
    EXPECT_EQ(terminal.modes(), "010");
}

TEST_F(Views, giveWayToQuestionsWhereNothingCanBeDrawn) {
    terminal.type("export TERM=dumb; ");
    start("smes --dialog");
    terminal.waitFor("číslo  přidá látku do směsi");
    follow({{"k", "Enter", "Nebyly zadány složky směsi."}});
    terminal.type("clear; ");
    start("seznam", "| tail -1");
    terminal.waitFor("trans-2-Pentene");
}

}  // namespace
}  // namespace velor::test
