// The forms of the output, and outputs that cannot be written.
#include "runtime/text.h"
#include "small_database.h"

namespace velor::test {
namespace {

struct OutputTest : ::testing::Test {
    SmallDatabase database;
};

TEST_F(OutputTest, csvIsOneTableOfExactNumbers) {
    EXPECT_EQ(database.run(words("vlastnost TENS --latky 5;10 -T 300.1,400,600 --csv")).out,
              "T [K],\"2,2-Dimethylpropan [Pa]\",\"2,2-Dimethylpropan – stav\",Toluen [Pa],Toluen – stav\n"
              "300.1,309.1,v rozsahu,,bez hodnoty\n"
              "400,409,v rozsahu,,bez hodnoty\n"
              "600,499,0.98 Tkr,,bez hodnoty\n");
}

TEST_F(OutputTest, textIsAlignedByCharacters) {
    EXPECT_EQ(database.run(words("vlastnost sigma --latky 4,10,2 -T 300,450")).out,
              "Látky\n"
              "  č.  látka            vzorec  Tmin [K]  Tmax [K]  typ  vztah\n"
              "   4  Kyselina octová  C2H4O2       200       400    1  y = A1 + A2.T   přímka\n"
              "  10  Toluen           C7H8           –         –    –  –\n"
              "   2  Ethanol          C2H6O        200       400    1  y = A1 + A2.T   přímka\n"
              "\n"
              "SIGMA – povrchové napětí\n"
              "  T [K]  Kyselina octová [N/m]    Toluen [N/m]    Ethanol [N/m]\n"
              "    300                    310               – n            310\n"
              "    450                    460 *             – n            460 *\n"
              "\n"
              "  *  Teplota je mimo rozsah platnosti korelace, hodnota je extrapolovaná.\n"
              "  n  Vlastnost není pro látku v bázi dána.\n");
}

TEST_F(OutputTest, wideTablesGoOnBelow) {
    const Outcome outcome = run({"latka", "voda"});  // the usual one has long equations
    for (std::size_t begin = 0, end; (end = outcome.out.find('\n', begin)) != std::string::npos; begin = end + 1)
        EXPECT_LE(characterCount(outcome.out.substr(begin, end - begin)), 106U);
    expectMentions(outcome.out, "\n  zkratka  vztah");
}

TEST_F(OutputTest, anOutputThatCannotBeWrittenIsNoCrash) {
    const TemporaryFolder folder;
    const auto exitCode = [&](auto setOutput) {
        FileActions streams;
        setOutput(streams);
        streams.open(STDERR_FILENO, folder / "err", O_WRONLY | O_CREAT | O_TRUNC);
        return exitCodeOf(kVelor, words("vlastnost TENS --latky 1 -T 1:9999:1"), streams);
    };
    EXPECT_EQ(exitCode([](FileActions& streams) { streams.open(STDOUT_FILENO, "/dev/full", O_WRONLY); }), 1);
    expectMentions(readFile(folder / "err"), "nepodařilo zapsat");

    int ends[2] = {};
    ASSERT_EQ(pipe2(ends, O_CLOEXEC), 0);
    close(ends[0]);  // nobody reads
    EXPECT_EQ(exitCode([&](FileActions& streams) { streams.duplicate(ends[1], STDOUT_FILENO); }), 1);
    EXPECT_EQ(readFile(folder / "err"), "");
    close(ends[1]);
}

}  // namespace
}  // namespace velor::test
