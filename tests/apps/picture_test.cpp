// velor graf and velor rovnovaha --graf: the picture files.
#include <cstdlib>

#include "command.h"

namespace velor::test {
namespace {

bool isGnuplotInstalled() { return std::system("gnuplot --version >/dev/null 2>&1") == 0; }

struct PictureTest : ::testing::Test {
    TemporaryFolder folder;

    void SetUp() override {
        if (!isGnuplotInstalled()) GTEST_SKIP() << "gnuplot is not installed (package gnuplot-nox)";
    }

    Outcome graf(const std::string& line, const std::string& file) const {
        return run(words("graf " + line, {"--vystup", file}));
    }
};

TEST_F(PictureTest, svgHoldsCaptionsUnitsAndLegend) {
    const std::string file = folder / "obrázek 'a'.SVG";
    const std::pair<std::string, Words> cases[] = {
        {"TENS --latky voda,ethanol -T 280:400:5", {"TENS – tenze par", "p° [Pa]", "T [K]", "Voda", "Ethanol"}},
        {"RHGW --latky voda,ethanol --slozeni 0.4,0.6 -T 380:400:5 -P 1e5",
         {"RHGW – Entalpie (rg) při 100000 Pa", "h [J/kg]", "Voda 0.4, Ethanol 0.6"}},
    };
    for (const auto& [line, texts] : cases) {
        expectMentions(graf(line, file).out, file);
        const std::string svg = readFile(file);
        EXPECT_TRUE(svg.starts_with("<?xml") && svg.ends_with("</svg>\n\n")) << svg;
        for (const std::string& text : texts) expectMentions(svg, text);
    }
}

TEST_F(PictureTest, pngIsOneAndAFailureLeavesTheOldFile) {
    const std::string file = folder.write("stary.svg", "old");
    EXPECT_EQ(graf("SIGMA --latky methan --slozeni 1 -T 300:310:1", file).exitCode, 1);
    EXPECT_EQ(readFile(file), "old");
    run(words("rovnovaha --latky benzen,toluen --graf", {folder / "rovnovaha.png"}));
    EXPECT_TRUE(readFile(folder / "rovnovaha.png").starts_with("\x89PNG\r\n\x1a\n"));
    expectFailure(graf("TENS --latky voda -T 300:310:1", folder / "neni/a.svg"), 1, "nelze zapsat");
}

TEST(PictureWithoutGnuplotTest, isMissedInWords) {
    const TemporaryFolder folder;
    const Outcome outcome =
        runInShell("PATH=/neni " + kVelor + " graf TENS --latky voda -T 300:310:1 --vystup " + (folder / "a.svg"));
    expectFailure(outcome, 1, "gnuplot, který není nainstalován");
    EXPECT_FALSE(std::filesystem::exists(folder / "a.svg"));
}

}  // namespace
}  // namespace velor::test
