// velor smes --dialog: whole sessions over a pipe, the end of input at any point.
#include <sstream>

#include "command.h"

namespace velor::test {
namespace {

struct MixtureDialogTest : ::testing::Test {
    TemporaryFolder folder;
    std::string database = folder / "VELOR.DRC";

    void SetUp() override { std::filesystem::copy_file(VELOR_DATABASE, database); }

    // In a shell, because the answers come from somebody else.
    Outcome talk(const std::string& typist, const std::string& more = "") const {
        return run({"-c", "(" + typist + ") | " + kVelor + " smes --dialog --baze " + database + " " + more},
                   "/bin/sh");
    }
    Outcome answers(const std::string& lines, const std::string& more = "") const {
        return talk("printf '" + lines + "'", more);
    }
};

const std::string kMixture = R"(hexan\n41\n42\n43\nok\n0,3\n0.3\n0,4\n\n)";  // pentane, hexane, heptane
const Words kSmes{"smes", "--latky", "pentan,hexan,heptan", "--slozeni"};

Outcome smes(const Words& more) {
    Words words = kSmes;
    words.insert(words.end(), more.begin(), more.end());
    return run(words);
}

TEST_F(MixtureDialogTest, describesWhatWasChosen) {
    const struct {
        std::string input, options;
        Words sameAs;
    } cases[] = {
        {kMixture + "n\\n", "", {"0.3,0.3,0.4"}},
        {kMixture + "ne\\n", "-P 2e5", {"0.3,0.3,0.4", "-P", "2e5"}},
        {kMixture + "co?\\nN\\n", "--csv", {"0.3,0.3,0.4", "--csv"}},
        {R"(1\nz\n41\n42\n43\nok\nh\n3\n3\n4\n\nn\n)", "--json", {"0.3,0.3,0.4", "--hmotove", "--json"}},
        {R"(41\n42\n43\nok\n\n\n\n\nn\n)", "", {"1,1,1", "--normalizovat"}},
        // A sum that the dialog lets pass and the properties would refuse.
        {R"(41\n42\n43\nok\n0.3333\n0.3333\n0.3333\n\nn\n)", "", {"1,1,1", "--normalizovat"}},
    };
    for (const auto& [input, options, sameAs] : cases) {
        const Outcome outcome = answers(input, options);
        EXPECT_EQ(outcome.exitCode, 0) << outcome.error;
        EXPECT_EQ(outcome.out, smes(sameAs).out) << input;
        for (const char* question : {"SEZNAM LÁTEK DATABÁZE", "Složky směsi: 41 42 43\n", "Složení: Molově",
                                     "Spočítat flash této směsi?\n[a/n] "})
            expectMentions(outcome.error, question);
    }
}

TEST_F(MixtureDialogTest, flashesOnRequest) {
    const std::string questions = R"(a\n0\n101325\n\n66.85\n)";  // an empty line takes the composition over
    const Words flash{"flash", "--latky", "pentan,hexan,heptan", "--slozeni", "0.3,0.3,0.4", "-T", "340"};
    const Outcome outcome = answers(kMixture + questions);
    EXPECT_EQ(outcome.exitCode, 0) << outcome.error;
    EXPECT_EQ(outcome.out, smes({"0.3,0.3,0.4"}).out + "\n" + run(flash).out);
    expectMentions(outcome.error, "[0.3 0.3 0.4] ");

    const Outcome other = answers(kMixture + R"(a\n0\n101325\n1 0 0\n10\n)", "--json");
    EXPECT_EQ(other.exitCode, 0) << other.error;
    const auto document = other.json();
    for (const char* section : {"slozeni", "pseudokriticke", "rovnovaha", "flash", "slozky"})
        EXPECT_TRUE(document.contains(section)) << section;
    EXPECT_EQ(document["slozky"][0]["z"], 1);
    EXPECT_EQ(document["flash"]["vysledek"], "vše kapalné");
}

TEST_F(MixtureDialogTest, slipsOfTypingAreAskedAgain) {
    const struct {
        const char *input, *phrase;
    } cases[] = {
        {R"(ok\n1\nok\n\n\nn\n)", "Nezadána žádná látka"},
        {R"(70000\nok\nz\n1\nok\n\n\nn\n)", "přetečení"},
        {R"(999\nok\n\n\nz\n1\nok\n\n\nn\n)", "Látka č.  999 není v bázi!"},
        {R"(1\nok\n-1\n\n\n\nn\n)", "1. složení je záporné!"},
        {R"(1\nok\nnic\n\n\n\nn\n)", "Je třeba zadat složení směsi!"},
    };
    for (const auto& [input, phrase] : cases) {
        const Outcome outcome = answers(input);
        EXPECT_EQ(outcome.exitCode, 0) << input << outcome.error;
        EXPECT_EQ(outcome.out, run({"smes", "--latky", "1"}).out);
        expectMentions(outcome.error, phrase);
    }
}

TEST_F(MixtureDialogTest, goingBackIsSaidInWords) {
    expectFailure(answers(R"(k\n)"), 1, "Nebyly zadány složky směsi.");
    expectFailure(answers(R"(1\n2\nk\n)"), 1, "Nebyly zadány složky směsi.");
    expectFailure(answers(R"(1\n2\nok\nz\n)"), 1, "Složení nebylo zadáno, směs zůstala bez složek.");
    expectFailure(answers(R"(1\n2\nok\n1\n1\nz\n)"), 1, "Složení nebylo zadáno, směs zůstala bez složek.");
}

TEST_F(MixtureDialogTest, theEndOfInputIsSaidWhereverItComes) {
    const std::string sessions[] = {
        "41\n42\n43\nok\n0,3\n0.3\n0,4\n\na\n0\n101325\n0.3 0.3 0.4\n",
        "999\nok\n1\n\nz\n1\nok\n-1\n\n0\n\n",  // mistakes, which are asked again
        "70000\nok\nz\n1\nok\n",
    };
    for (const std::string& session : sessions) {
        for (std::size_t end = 0; end != std::string::npos; end = session.find('\n', end)) {
            if (end != 0) ++end;
            const Outcome outcome =
                run({"smes", "--dialog", "--baze", database, "--limit", "20"}, kVelor, session.substr(0, end));
            EXPECT_EQ(outcome.exitCode, 1) << session.substr(0, end) << outcome.error;
            const bool isSaid = outcome.error.find("Vstup skončil dříve") != std::string::npos ||
                                outcome.error.find("čtení za koncem vstupu") != std::string::npos;
            EXPECT_TRUE(isSaid) << session.substr(0, end) << outcome.error;
        }
    }
}

TEST_F(MixtureDialogTest, thinkingIsNotLimited) {
    // Each pause is longer than the limit; the first one follows a message within a form.
    const Outcome outcome =
        talk("echo ok; sleep 1.4; echo 1; echo ok; sleep 1.4; echo; echo; sleep 1.4; echo n", "--limit 1");
    EXPECT_EQ(outcome.exitCode, 0) << outcome.error;
}

}  // namespace
}  // namespace velor::test
