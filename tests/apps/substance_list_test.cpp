// velor seznam: which substances, in which order, in which form.
#include <algorithm>
#include <numeric>
#include <sstream>

#include "read_only_folder.h"
#include "runtime/text.h"
#include "small_database.h"
#include "support/shipped_database.h"

namespace velor::test {
namespace {

using Numbers = std::vector<int>;

Numbers numbersOf(const Outcome& outcome) {
    EXPECT_EQ(outcome.exitCode, 0) << outcome.error;
    Numbers numbers;
    const auto document = outcome.json();
    for (const auto& row : document["seznam"]) numbers.push_back(row["cislo"]);
    return numbers;
}

struct SubstanceListTest : ::testing::Test {
    TemporaryFolder folder;
    SmallDatabase database;
};

TEST_F(SubstanceListTest, holdsEverySubstanceOnce) {
    const std::string copy = folder / "VELOR.DRC";
    std::filesystem::copy_file(VELOR_DATABASE, copy);
    Numbers all(static_cast<std::size_t>(shippedSubstances()));
    std::iota(all.begin(), all.end(), 1);
    EXPECT_EQ(numbersOf(run(words("seznam --podle cisel --json --baze " + copy))), all);

    std::istringstream lines(run(words("seznam --baze " + copy)).out);
    for (std::string line; std::getline(lines, line);) EXPECT_LE(characterCount(line), 106U) << line;
}

TEST_F(SubstanceListTest, aTextChoosesTheLinesThatHoldIt) {
    // clang-format off
    const std::pair<Words, Numbers> cases[] = {
        {{""}, {5, 3, 8, 2, 7, 4, 6, 10, 11, 1}},
        {{"eth", "--podle", "čísel"}, {2, 3, 5, 8, 10}},  // names and synonyms, from Ethanol to Methylbenzen
        {{"ETHAN", "--podle", "nazvu"}, {8, 2}}, {{"kyselina", "octova"}, {4}},  // several words, no diacritics
        {{" KYSELINA   OCTOVÁ "}, {4}}, {{"uhelnaty\u0301"}, {6}},  // decomposed
        {{"c2h6o"}, {3, 2}}, {{"H2O)"}, {1}}, {{"64-1"}, {2, 4}}, {{"10"}, {3, 10}}};  // a CAS number and a number
    // clang-format on
    for (const auto& [text, numbers] : cases)
        EXPECT_EQ(numbersOf(database.run(words("seznam --json", text))), numbers) << text.front();
    for (const std::string text : {"octova kyselina", "64175", "etanol"})
        expectFailure(database.run({"seznam", text}), 1, "Text „" + text + "“ není v žádném řádku");
}

TEST_F(SubstanceListTest, hasTheSameColumnsInEveryForm) {
    EXPECT_EQ(database.run({"seznam", "dimethyl"}).out,
              "Látky s textem „dimethyl“ (2)\n"
              "  č.  název látky         synonymum             vzorec  CAS\n"
              "   5  2,2-Dimethylpropan  Neopentan             C5H12   463-82-1\n"
              "   3  Dimethylether       Dimethyl ether (DME)  C2H6O   115-10-6\n");
    EXPECT_EQ(database.run({"seznam", "tol", "--csv"}).out,
              "č.,název látky,synonymum,vzorec,CAS\n"
              "10,Toluen,\"Methylbenzen, Toluol\",C7H8,\n");
    EXPECT_EQ(database.run({"seznam", "ethyla", "--json"}).json(), nlohmann::json::parse(R"({"seznam": [{
        "cislo": 2, "nazev": "Ethanol", "synonym": "Ethylalkohol", "vzorec": "C2H6O", "CAS": "64-17-5"}]})"));
}

TEST_F(SubstanceListTest, aReadOnlyFolderIsNoObstacle) {
    if (!ReadOnlyFolder::isEffective()) GTEST_SKIP() << "root without setpriv may write everywhere";
    const ReadOnlyFolder readOnly;
    EXPECT_EQ(numbersOf(readOnly.run(words("seznam 64-17-5 --json"))), Numbers{235});
    EXPECT_EQ(readOnly.run(words("smes --dialog"), "1\nok\n\n\nn\n").exitCode, 0);
    EXPECT_FALSE(readOnly.holdsListing());
}

}  // namespace
}  // namespace velor::test
