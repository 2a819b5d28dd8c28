// velor graf and velor rovnovaha --graf: the picture files.
#include <cstdlib>

#include "command.h"

namespace velor::test {
namespace {

struct PictureTest : ::testing::Test {
    TemporaryFolder folder;

    void SetUp() override {
        if (std::system("gnuplot --version >/dev/null 2>&1") != 0)
            GTEST_SKIP() << "gnuplot is not installed (package gnuplot-nox)";
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

}  // namespace
}  // namespace velor::test
