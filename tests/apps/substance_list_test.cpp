// velor seznam: which substances, in which order, in which form.
#include <algorithm>
#include <numeric>
#include <sstream>

#include "read_only_folder.h"
#include "runtime/text.h"
#include "small_database.h"

namespace velor::test {
namespace {

using Numbers = std::vector<int>;

Numbers numbersOf(const Outcome& outcome) {
    EXPECT_EQ(outcome.exitCode, 0) << outcome.error;
    EXPECT_EQ(outcome.error, "");
    const auto document = outcome.json();
    Numbers numbers;
    for (const auto& row : document["seznam"]) numbers.push_back(row["cislo"]);
    return numbers;
}

// What the list is sorted by.
std::string first15Characters(const std::string& name) {
    std::string_view rest = name;
    for (int i = 0; i < 15 && !rest.empty(); ++i) takeCodePoint(rest);
    return name.substr(0, name.size() - rest.size());
}

Numbers numbersInListing(const std::string& path) {
    std::istringstream listing(readFile(path));
    Numbers numbers;
    std::string line;
    for (int i = 0; std::getline(listing, line); ++i)
        if (i >= 2) numbers.push_back(std::stoi(line.substr(0, 3)));  // behind the headings
    return numbers;
}

struct SubstanceListTest : ::testing::Test {
    TemporaryFolder folder;
    SmallDatabase database;
};

TEST_F(SubstanceListTest, holdsEverySubstanceOnceInOrder) {
    const std::string copy = folder / "VELOR.DRC";
    std::filesystem::copy_file(VELOR_DATABASE, copy);
    Numbers all(480);
    std::iota(all.begin(), all.end(), 1);
    EXPECT_EQ(numbersOf(run({"seznam", "--podle", "cisel", "--json", "--baze", copy})), all);

    const Outcome byName = run({"seznam", "--json", "--baze", copy});
    Numbers numbers = numbersOf(byName);
    EXPECT_EQ(numbers, numbersInListing(folder / "SEZNAM.DAT"));
    std::vector<std::string> keys;
    const auto document = byName.json();
    for (const auto& row : document["seznam"]) keys.push_back(first15Characters(row["nazev"]));
    EXPECT_TRUE(std::is_sorted(keys.begin(), keys.end()));
    std::sort(numbers.begin(), numbers.end());
    EXPECT_EQ(numbers, all);

    const std::string text = run({"seznam", "--baze", copy}).out;
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 482);
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) EXPECT_LE(characterCount(line), 106U) << line;
}

TEST_F(SubstanceListTest, aTextChoosesTheLinesThatHoldIt) {
    const struct {
        Words words;
        Numbers numbers;
    } cases[] = {
        {{}, {5, 3, 8, 2, 7, 4, 6, 10, 11, 1}},
        {{""}, {5, 3, 8, 2, 7, 4, 6, 10, 11, 1}},
        {{"eth"}, {5, 3, 8, 2, 10}},  // names and synonyms, from 2,2-Dimethylpropan to Methylbenzen
        {{"eth", "--podle", "čísel"}, {2, 3, 5, 8, 10}},
        {{"ETHAN", "--podle", "nazvu"}, {8, 2}},
        {{"kyselina", "octova"}, {4}},  // several words, no diacritics
        {{" KYSELINA   OCTOVÁ "}, {4}},
        {{"uhelnaty\u0301"}, {6}},  // decomposed
        {{"c2h6o"}, {3, 2}},
        {{"H2O)"}, {1}},
        {{"64-1"}, {2, 4}},
        {{"115-10-6"}, {3}},
        {{"10"}, {3, 10}},  // a CAS number and a number
        {{"2,2-"}, {5}},
    };
    for (const auto& [words, numbers] : cases) {
        Words all{"seznam", "--json"};
        all.insert(all.end(), words.begin(), words.end());
        EXPECT_EQ(numbersOf(database.run(all)), numbers) << (words.empty() ? "" : words.front());
    }
    for (const char* text : {"xyzzy", "octova kyselina", "64175", "etanol"})
        expectFailure(database.run({"seznam", text}), 1, "Text „" + std::string(text) + "“ není v žádném řádku");
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

TEST_F(SubstanceListTest, numbersMayHaveFourDigits) {
    std::vector<TLatka> records(1234, blankRecord());
    records[33] = sampleSubstance(34, "C");
    records[233] = sampleSubstance(234, "B");
    records[1233] = sampleSubstance(1234, "A");
    const std::string path = folder.write("VELOR.DRC", databaseBytes(records));
    EXPECT_EQ(numbersOf(run({"seznam", "--json", "--baze", path})), (Numbers{1234, 234, 34}));
    for (int number = 1; number <= 901; ++number)
        records[static_cast<std::size_t>(number - 1)] = sampleSubstance(number, "Látka");
    folder.write("VELOR.DRC", databaseBytes(records));
    expectFailure(run({"seznam", "--baze", path}), 1, "Seznam látek nelze sestavit: ");
}

TEST_F(SubstanceListTest, theDatabaseMayHaveAnyNameAndPlace) {
    folder.write("sub/jiná báze.x", databaseBytes(awkwardSubstances()));
    for (const std::string& typed :
         {folder / "sub/jiná báze.x", std::string("sub/jiná báze.x"), std::string("./sub/jiná báze.x")}) {
        const Outcome outcome = run(
            {"-c", "cd " + folder.path() + " && " + kVelor + " seznam voda --json --baze '" + typed + "'"}, "/bin/sh");
        EXPECT_EQ(numbersOf(outcome), Numbers{1}) << typed;
        EXPECT_TRUE(std::filesystem::remove(folder / "sub/SEZNAM.DAT")) << typed;
    }
}

TEST_F(SubstanceListTest, aReadOnlyFolderIsNoObstacle) {
    if (!ReadOnlyFolder::isEffective()) GTEST_SKIP() << "root without setpriv may write everywhere";
    const ReadOnlyFolder readOnly;
    EXPECT_EQ(numbersOf(readOnly.run({"seznam", "--json"})).size(), 480U);
    EXPECT_EQ(numbersOf(readOnly.run({"seznam", "64-17-5", "--json"})), Numbers{235});
    EXPECT_FALSE(readOnly.holdsListing());
    const Outcome dialog = readOnly.run({"smes", "--dialog"}, "1\nok\n\n\nn\n");
    EXPECT_EQ(dialog.exitCode, 0) << dialog.error;
    EXPECT_FALSE(readOnly.holdsListing());
}

}  // namespace
}  // namespace velor::test
