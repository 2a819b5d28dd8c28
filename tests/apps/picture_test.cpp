// velor graf and velor rovnovaha --graf: the picture files.
#include <cstdlib>

#include "command.h"

namespace velor::test {
namespace {

bool isGnuplotInstalled() { return std::system("gnuplot --version >/dev/null 2>&1") == 0; }

// Every element that is opened is closed, in order.
bool isWellFormed(const std::string& xml) {
    std::vector<std::string> open;
    for (std::size_t begin = xml.find('<'); begin != std::string::npos; begin = xml.find('<', begin + 1)) {
        const std::size_t end = xml.find('>', begin);
        if (end == std::string::npos) return false;
        const std::string tag = xml.substr(begin + 1, end - begin - 1);
        if (tag.starts_with('?') || tag.starts_with('!') || tag.ends_with('/')) continue;
        const std::string name = tag.substr(tag.starts_with('/') ? 1 : 0, tag.find_first_of(" \t\r\n") - 0);
        if (!tag.starts_with('/')) {
            open.push_back(name);
        } else {
            if (open.empty() || open.back() != name) return false;
            open.pop_back();
        }
    }
    return open.empty() && xml.find("<svg") != std::string::npos;
}

struct PictureTest : ::testing::Test {
    TemporaryFolder folder;

    void SetUp() override {
        if (!isGnuplotInstalled()) GTEST_SKIP() << "gnuplot is not installed (package gnuplot-nox)";
    }

    Outcome graf(const Words& words, const std::string& file) const {
        Words all{"graf"};
        all.insert(all.end(), words.begin(), words.end());
        all.insert(all.end(), {"--vystup", file});
        return run(all);
    }
};

TEST_F(PictureTest, svgHoldsCaptionsUnitsAndLegend) {
    const std::string file = folder / "obrázek 'a'.SVG";
    const struct {
        Words words;
        Words texts;
    } cases[] = {
        {{"TENS", "--latky", "voda,ethanol", "-T", "280:400:5"},
         {"TENS – tenze par", "p° [Pa]", "T [K]", "Voda", "Ethanol"}},
        {{"RHGW", "--latky", "voda,ethanol", "--slozeni", "0.4,0.6", "-T", "380:400:5", "-P", "1e5"},
         {"RHGW – Entalpie (rg) při 100000 Pa", "h [J/kg]", "Voda 0.4, Ethanol 0.6"}},
    };
    for (const auto& [words, texts] : cases) {
        const Outcome outcome = graf(words, file);
        ASSERT_EQ(outcome.exitCode, 0) << outcome.error;
        expectMentions(outcome.out, file);
        const std::string svg = readFile(file);
        EXPECT_TRUE(isWellFormed(svg));
        for (const std::string& text : texts) expectMentions(svg, text);
    }
}

TEST_F(PictureTest, pngIsOne) {
    const std::string file = folder / "rovnovaha.png";
    const Outcome outcome = run({"rovnovaha", "--latky", "benzen,toluen", "--graf", file});
    ASSERT_EQ(outcome.exitCode, 0) << outcome.error;
    const std::string png = readFile(file);
    EXPECT_TRUE(png.starts_with("\x89PNG\r\n\x1a\n"));
    EXPECT_GT(png.size(), 5000U);
}

TEST_F(PictureTest, aFailureLeavesTheOldFile) {
    const std::string file = folder.write("stary.svg", "old");
    EXPECT_EQ(graf({"SIGMA", "--latky", "methan", "--slozeni", "1", "-T", "300:310:1"}, file).exitCode, 1);
    EXPECT_EQ(readFile(file), "old");
    expectFailure(graf({"TENS", "--latky", "voda", "-T", "300:310:1"}, folder / "neni/a.svg"), 1, "nelze zapsat");
}

TEST(PictureWithoutGnuplotTest, isMissedInWords) {
    const TemporaryFolder folder;
    const Outcome outcome =
        run({"-c", "PATH=/neni " + kVelor + " graf TENS --latky voda -T 300:310:1 --vystup " + folder.path() + "a.svg"},
            "/bin/sh");
    expectFailure(outcome, 1, "gnuplot, který není nainstalován");
    EXPECT_FALSE(std::filesystem::exists(folder / "a.svg"));
}

}  // namespace
}  // namespace velor::test
