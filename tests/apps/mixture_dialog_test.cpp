// velor smes --dialog: whole sessions over a pipe, the end of input at any point.
#include "command.h"

namespace velor::test {
namespace {

struct MixtureDialogTest : ::testing::Test {
    TemporaryFolder folder;
    std::string dialog = kVelor + " smes --dialog --baze " + (folder / "VELOR.DRC") + " ";

    void SetUp() override { std::filesystem::copy_file(VELOR_DATABASE, folder / "VELOR.DRC"); }

    Outcome answers(const std::string& lines, const std::string& more = "") const {
        return runInShell("printf '" + lines + "' | " + dialog + more);
    }
};

const std::string kMixture = R"(hexan\n41\n42\n43\nok\n0,3\n0.3\n0,4\n\n)";  // pentane, hexane, heptane

Outcome smes(const std::string& more) { return run(words("smes --latky pentan,hexan,heptan --slozeni " + more)); }

TEST_F(MixtureDialogTest, describesWhatWasChosen) {
    const std::tuple<std::string, std::string, const char*> cases[] = {
        {kMixture + "ne\\n", "-P 2e5", "0.3,0.3,0.4 -P 2e5"},
        {kMixture + "co?\\nN\\n", "--csv", "0.3,0.3,0.4 --csv"},
        {R"(1\nz\n41\n42\n43\nok\nh\n3\n3\n4\n\nn\n)", "--json", "0.3,0.3,0.4 --hmotove --json"},
        // A sum that the dialog lets pass and the properties would refuse.
        {R"(41\n42\n43\nok\n0.3333\n0.3333\n0.3333\n\nn\n)", "", "1,1,1 --normalizovat"},
    };
    for (const auto& [input, options, sameAs] : cases)
        EXPECT_EQ(answers(input, options).out, smes(sameAs).out) << input;
}

TEST_F(MixtureDialogTest, describesTheDataThatWereChanged) {
    const std::string change = R"(d 1\n1 = Moje voda\n3 = X\n5 = 0.1\nd\nSIGMA\n1 =\nok\n)";
    const auto document = answers(R"(1\n41\nok\n)" + change + R"(0.5\n0.5\n\nn\n)", "--json").json();
    EXPECT_EQ(document["slozeni"][0]["nazev"], "Moje voda");
    EXPECT_EQ(document["slozeni"][0]["vzorec"], "X");
    EXPECT_NEAR(document["pseudokriticke"]["MSm"]["hodnota"].get<double>(), 0.5 * (0.1 + 0.07214878), 1e-7);
    EXPECT_EQ(document["zmeny"][2], nlohmann::json::parse(R"({"udaj": "1.Mv", "latka": "Voda", "popis":
        "molární hmotnost", "v_databazi": 0.01801528, "nyni": 0.1, "jednotka": "kg/mol"})"));
    EXPECT_EQ(document["zmeny"][3]["udaj"], "1.SIGMA.typ");
    EXPECT_TRUE(document["zmeny"][3]["nyni"].is_null());
}

TEST_F(MixtureDialogTest, slipsOfTypingAreAskedAgain) {
    const std::pair<const char*, const char*> cases[] = {
        {R"(ok\n1\nok\n\n\nn\n)", "Nezadána žádná látka"},
        {R"(70000\nok\nz\n1\nok\n\n\nn\n)", "přetečení"},
        {R"(999\nok\n\n\nz\n1\nok\n\n\nn\n)", "Látka č.  999 není v bázi!"},
        {R"(1\nok\n-1\n\n1\n\nn\n)", "1. složení je záporné!"},
        {R"(1\nok\nnic\n\n1\n\nn\n)", "Je třeba zadat složení směsi!"},
    };
    for (const auto& [input, phrase] : cases) {
        const Outcome outcome = answers(input);
        EXPECT_EQ(outcome.out, run(words("smes --latky 1")).out) << input << outcome.error;
        expectMentions(outcome.error, phrase);
    }
    expectFailure(answers(R"(1\n2\nk\n)"), 1, "Nebyly zadány složky směsi.");
    expectFailure(answers(R"(1\n2\nok\n1\n1\nz\n)"), 1, "Složení nebylo zadáno, směs zůstala bez složek.");
}

TEST_F(MixtureDialogTest, theEndOfInputIsSaidWhereverItComes) {
    for (const std::string session : {"41\n42\n43\nok\n0,3\n0.3\n0,4\n\na\n0\n101325\n0.3 0.3 0.4\n",
                                      "999\nok\n1\n\nz\n1\nok\n-1\n\n0\n\n",  // mistakes, which are asked again
                                      "70000\nok\nz\n1\nok\n"}) {
        std::size_t end = 0;
        do {
            const std::string typed = session.substr(0, end);
            const Outcome outcome = run(words(dialog.substr(kVelor.size())), kVelor, typed);
            EXPECT_EQ(outcome.exitCode, 1) << typed << outcome.error;
            EXPECT_TRUE(outcome.error.find("Vstup skončil dříve") != std::string::npos ||
                        outcome.error.find("čtení za koncem vstupu") != std::string::npos)
                << typed << outcome.error;
            end = session.find('\n', end) + 1;
        } while (end != 0);
    }
}

}  // namespace
}  // namespace velor::test
