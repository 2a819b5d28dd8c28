// The full-screen dialogs as a person uses them: real keys on a real terminal.
#include <signal.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "runtime/text.h"
#include "terminal/tmux.h"

namespace velor::test {
namespace {

const std::string kVelor = std::string(VELOR_PROGRAMS) + "/velor";

struct Views : ::testing::Test {
    TemporaryFolder folder;
    std::string database = folder / "VELOR.DRC";
    Tmux terminal{80, 24};

    void SetUp() override { std::filesystem::copy_file(VELOR_DATABASE, database); }

    void start(const std::string& command, const std::string& more = "") {
        terminal.type(kVelor + " " + command + " --baze " + database + " " + more);
        terminal.press("Enter");
    }
    void press(std::initializer_list<const char*> keys) {
        for (const char* key : keys) terminal.press(key);
    }
    // What a command prints where there is no terminal.
    std::string printed(const std::string& command) {
        const std::string file = folder / "printed";
        EXPECT_EQ(std::system((kVelor + " " + command + " >" + file).c_str()), 0);
        std::ostringstream text;
        text << std::ifstream(file).rdbuf();
        return text.str();
    }
    std::string content(const std::string& file) {
        std::ostringstream text;
        text << std::ifstream(folder / file).rdbuf();
        return text.str();
    }
};

TEST_F(Views, chooseComposeAndFlash) {
    start("smes --dialog", ">" + (folder / "vysledek"));
    terminal.waitFor("Počet látek je 480");
    terminal.type("pentan");  // a name typed into the box of numbers is searched for
    terminal.waitFor("pentan_");
    press({"Enter"});
    terminal.waitFor("41 ");
    terminal.type("HEXAN");  // another search, in any case
    press({"Enter"});
    terminal.waitFor("Pentan + Hexan");
    terminal.type("xyzq");
    terminal.waitFor("Látka  XYZQ  nenalezena!!!");
    press({"C-u", "M-p"});  // typing numbers
    terminal.type("43");
    press({"Enter"});
    terminal.waitFor("Pentan + Hexan + Heptan");
    press({"M-s"});
    terminal.waitFor("Zadání složení směsi");
    terminal.type("0,3");
    press({"Enter"});
    terminal.type("0.3");
    press({"Enter"});
    terminal.type("0.5");
    press({"BSpace"});
    terminal.type("4");
    press({"Enter", "Enter"});
    terminal.waitFor("Spočítat flash této směsi?");
    press({"a"});
    terminal.waitFor("0-izotermní");
    press({"Enter"});
    terminal.waitFor("Zadat tlak");
    press({"C-u"});
    terminal.type("101325");
    press({"Enter"});
    terminal.waitFor("0.3 0.3 0.4");
    press({"Enter"});
    terminal.waitFor("Bod varu");
    press({"C-u"});
    terminal.type("66,85");
    press({"Enter"});
    terminal.waitUntilGone("Bod varu");
    const std::string mixture = " --latky pentan,hexan,heptan --slozeni 0.3,0.3,0.4 ";
    EXPECT_EQ(content("vysledek"), printed("smes" + mixture) + "\n" + printed("flash" + mixture + "-T 340"));
    EXPECT_EQ(terminal.modes(), "010");
}

TEST_F(Views, displayAndChangeAComponent) {
    start("smes --dialog");
    terminal.waitFor("Počet látek je 480");
    terminal.type("1");
    press({"Enter", "M-s"});
    terminal.waitFor("1. Voda");
    terminal.type("1");
    press({"F2"});
    terminal.waitFor("Zobrazení složky č. 1: Voda");
    press({"Down", "Down", "Down"});
    terminal.waitFor("ROLW: 997.0 kg/m³");
    press({"Tab", "C-u", "Enter"});
    terminal.waitFor("Teplota: zadejte kladné číslo v kelvinech.");
    press({"Enter"});
    terminal.type("373,15");
    press({"Enter"});
    terminal.waitFor("ROLW: 958.");
    press({"Escape"});
    terminal.waitFor("1. Voda");

    press({"F3"});
    terminal.waitFor("Dočasná změna složky č. 1: Voda");
    terminal.type("Žluťoučká voda");
    press({"Enter", "Tab", "Tab", "C-u"});
    terminal.type("1-2-3");
    press({"M-u"});
    terminal.waitFor("Pole „CAS“");
    press({"Enter", "C-u", "M-d"});
    terminal.waitFor("Dočasná změna vlastností složky č. 1: Žluťoučká voda");
    press({"End", "Tab"});
    terminal.type("99");
    press({"M-u"});
    terminal.waitFor("SIGMA, Typ rovnice: zadejte číslo");
    press({"Enter"});
    terminal.type("1");
    terminal.waitFor("y = A1 + A2.T   přímka");
    press({"M-u"});
    terminal.waitFor("1. Žluťoučká voda");
    press({"Escape"});
    terminal.waitFor("Složení nebylo zadáno, směs zůstala bez složek.");
    EXPECT_EQ(terminal.modes(), "010");
}

TEST_F(Views, takeTheMouse) {
    start("smes --dialog");
    terminal.waitFor("Počet látek je 480");
    terminal.type("voda");
    terminal.waitFor("voda_");
    for (int clicks = 0; clicks < 2; ++clicks) terminal.click(terminal.rowOf("7732-18-5"), 10);
    terminal.waitFor("\n Voda\n");
    terminal.click(terminal.rowOf("Směs definována"), 5);
    terminal.waitFor("1. Voda");
    constexpr int kRightButton = 2;
    terminal.click(terminal.rowOf("1. Voda"), 4, kRightButton);
    terminal.waitFor("Dočasná změna složky č. 1");
    press({"Escape"});
    terminal.waitFor("1. Voda");
    terminal.click(terminal.rowOf("1. Voda"), 4);
    terminal.waitFor("Zobrazení složky č. 1");
    terminal.click(terminal.rowOf("TENS"), 60);
    terminal.waitFor("TENS: 3171 Pa");
}

TEST_F(Views, fitEveryWindow) {
    start("smes --dialog");
    terminal.waitFor("Počet látek je 480");
    terminal.type("1");
    press({"Enter"});
    for (const auto& [columns, rows] : {std::pair{120, 40}, {40, 12}, {9, 3}, {60, 20}}) {
        terminal.resize(columns, rows);
        // The first line is the caption again, and the last one tells the keys: nothing was wrapped.
        terminal.waitFor(columns > 20 ? " SEZNAM LÁTEK - definice" : " SEZNAM");
        EXPECT_EQ(terminal.rowOf(" SEZNAM"), 0) << terminal.screen();
        EXPECT_EQ(terminal.rowOf(" číslo l"), rows - 1) << terminal.screen();
    }
    // Columns stay aligned under their headings, Czech letters or not.
    terminal.type("kyselina m");
    terminal.waitFor("4 z 480");
    const auto columnOf = [&](const std::string& line, const std::string& text) {
        return characterCount(line.substr(0, line.find(text)));
    };
    EXPECT_EQ(columnOf(terminal.line("Synonymum"), "Synonymum"), columnOf(terminal.line("mravenčí"), "Formic"));
}

TEST_F(Views, browseTheList) {
    start("seznam");
    terminal.waitFor("Počet zahrnutých látek  480");
    press({"End"});
    terminal.type("ethanolamin");
    terminal.waitFor(" z 480");
    terminal.waitFor("Triethanolamin");
    press({"x"});
    terminal.waitFor("nenalezena!!!");
    press({"Enter"});
    terminal.waitUntilGone("nenalezena");
    EXPECT_EQ(terminal.modes(), "010");
    start("seznam --podle cisel");
    terminal.waitFor("\n 001  Voda");
    press({"Escape"});
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
        terminal.waitFor("Počet látek je 480");
        EXPECT_EQ(terminal.modes(), "111") << name;
        if (signal == 0) {
            terminal.press(name);
        } else {
            EXPECT_EQ(kill(std::stoi(content("pid")), signal), 0) << name;
        }
        terminal.waitUntilGone("Počet látek je 480");
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
    terminal.waitFor("Počet látek je 480");
    terminal.type("1");
    press({"Enter"});
    terminal.type(std::string(400, '9'));
    press({"Enter", "M-s"});
    terminal.waitFor("chyba 6");
    press({"Enter", "M-z"});
    terminal.type("1");
    press({"Enter"});
    for (const char* bytes : {"-H e9", "-H 1b 5b 31 35 3b 32 7e", "-H 1b 1b 5b 42", "-H 1b 5b 31 3b 33 42", "-H 01 1f"})
        terminal.press(bytes);
    terminal.type("hexan");
    press({"Enter"});
    terminal.waitFor("Voda + Hexan");
    press({"M-s"});
    terminal.waitFor("Zadání složení");
    press({"Enter"});
    terminal.type("-1");
    press({"M-p"});
    terminal.waitFor("2. složení je záporné!");
    press({"Enter"});
    const std::string again = terminal.waitFor("Zadání složení");
    EXPECT_NE(again.find("-1"), std::string::npos) << again;  // to be mended, not typed anew
    press({"Down", "C-u"});
    terminal.type("1");
    press({"M-p"});
    terminal.waitFor("Spočítat flash této směsi?");
    press({"a"});
    terminal.waitFor("0-izotermní");
    press({"Escape"});
    terminal.waitFor("Zadání bylo zrušeno, flash nebyl spočítán.");
    EXPECT_EQ(terminal.modes(), "010");
}

TEST_F(Views, giveWayToQuestionsWhereNothingCanBeDrawn) {
    terminal.type("export TERM=dumb; ");
    start("smes --dialog");
    terminal.waitFor("číslo  přidá látku do směsi");
    terminal.type("k");
    terminal.press("Enter");
    terminal.waitFor("Nebyly zadány složky směsi.");
    terminal.type("clear; ");
    start("seznam", "| tail -1");
    terminal.waitFor("trans-2-Pentene");
}

}  // namespace
}  // namespace velor::test
