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
    EXPECT_EQ(database.run(words("vlastnost sigma --latky 4,10,2 -T 300;450")).out,
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

TEST_F(OutputTest, anOutputThatCannotBeWrittenIsNoCrash) {
    const std::string command = kVelor + " vlastnost TENS --latky 1 -T 1:9999:1";
    expectFailure(runInShell(command + " >/dev/full"), 1, "nepodařilo zapsat");
    // Nobody reads the whole of it.
    const Outcome broken = run({"-c", command + " | head -c 1; exit ${PIPESTATUS[0]}"}, "/bin/bash");
    EXPECT_EQ(broken.exitCode, 1);
    EXPECT_EQ(broken.error, "");
}

}  // namespace
}  // namespace velor::test
