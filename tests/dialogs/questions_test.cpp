// The forms as questions and answers: whole sessions, and the end of input at any point.
#include <gtest/gtest.h>

#include <sstream>

#include "platform/system.h"
#include "support/sample_mixture.h"

namespace velor {
namespace {

using test::sampleSubstance;

struct QuestionsTest : ::testing::Test {
    test::TemporaryFolder folder;
    std::string database =
        folder.write("VELOR.DRC", test::acceptableDatabase({sampleSubstance(1, "Voda"), sampleSubstance(2, "Éter")}));
    Variant n, X = Fractions({0, 0}), W = Fractions({0, 0});

    // What a person sees who answers so.
    template <class Body>
    std::string session(const std::string& input, const Body& body) {
        std::istringstream answers(input);
        std::ostringstream shown;
        StreamUserInterface terminal(answers, shown);
        Smes smes(terminal, {});
        smes.AdrVELOR(database);
        body(smes);
        return shown.str();
    }
    std::string choice() const {
        return "SEZNAM LÁTEK DATABÁZE  V E L O R\nPočet látek je 2 (" + database +
               ")\n"
               "  číslo  přidá látku do směsi\n"
               "  text   vyhledá látky, jejichž řádek ho obsahuje\n"
               "  ok     Směs definována\n"
               "  z      Smazat, znovu\n"
               "  k      Konec beze změny\n"
               "Složky směsi:\n> ";
    }
};

const std::string kEther = "002  Éter                 Sample               C2H6O     [64-17-5] \n";
const std::string kWater = "001  Voda                 Sample               C2H6O     [64-17-5] \n";
const std::string kComposition =
    "Složení můžete vkládat jako mol. nebo hmotový zlomek nebo jako poměrové díly. Bude normalizováno.\n"
    "  číslo  složení složky; samotný Enter ponechá hodnotu v závorce\n"
    "  m      Molově, znovu od první složky\n"
    "  h      Hmotově, znovu od první složky\n"
    "  z      Zpět\n";

TEST_F(QuestionsTest, showTheList) {
    EXPECT_EQ(session("2\néT*\n\n", [](Smes& smes) { smes.SeznamShow(); }),
              "VELOR: 0 - podle abecedy\n1 - podle čísel (chvíli trvá ...) [0] "
              "VELOR: Vložte název nebo část názvu hledané látky (bez *, %): "
              "SEZNAM LÁTEK DATABÁZE  V E L O R   " +
                  platform::shortDate() + "\nk zadání nalezeno 1 látek\n" + F_Sezn().Titulek + "\n" + kEther +
                  "[Enter] ");
}

TEST_F(QuestionsTest, chooseComponents) {
    int loaded = 0;
    const std::string shown = session("éter\nbenzen\r\n0\n1\n z \n\n002\nok\n1\n ok\n", [&](Smes& smes) {
        smes.ZadejSmes();
        EXPECT_EQ(smes.Nslozky(1).toInt16(), 2);
        smes.ZadejSmes();
        loaded = smes.Inivlr().toInt16();
    });
    EXPECT_EQ(loaded, 2);  // the second time the first choice is still there
    EXPECT_EQ(shown, choice() + kEther +
                         "Složky směsi:\n> Látka  BENZEN  nenalezena!!!\nSložky směsi:\n> "
                         "Složky směsi:\n> Složky směsi: 1\n> Složky směsi:\n> Složky směsi:\n> "
                         "Složky směsi: 002\n> " +
                         choice().substr(0, choice().size() - 3) + " 002\n> Složky směsi: 002 1\n> ");
}

TEST_F(QuestionsTest, tellTheLimitAndTheEmptyChoice) {
    std::string input = "ok\n";
    for (int i = 0; i < 21; ++i) input += "1\n";
    const std::string shown = session(input + "k\n", [](Smes& smes) { smes.ZadejSmes(); });
    EXPECT_TRUE(shown.starts_with(
        choice() + "(!) VELOR: Nezadána žádná látka nebo po zadání čísla látky nebyl stisknut Enter!\n"));
    const std::string full = "Složky směsi: 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1 1\n> ";
    EXPECT_TRUE(shown.ends_with(full + "(!) VELOR: Maximální počet složek směsi je 20\n" + full));
}

TEST_F(QuestionsTest, enterAComposition) {
    const std::string shown = session("2\n\n0\nh\n1\n3\nx\n\n", [&](Smes& smes) {
        smes.DefSmes(2, Fractions({1, 2}));
        smes.ZadejSloz(n, X, W, "", 1);
    });
    EXPECT_EQ(W, Fractions({0.25, 0.75}));
    EXPECT_EQ(shown, kComposition +
                         "Složení: Molově\n  Voda [1.0]:   Éter [1.0]: Pokračovat [Enter]: Pokračovat [Enter]: "
                         "Složení: Hmotově\n  Voda [2]:   Éter [1.0]: Pokračovat [Enter]: Pokračovat [Enter]: ");
}

TEST_F(QuestionsTest, endWhereNobodyAnswers) {
    struct Case {
        std::vector<double> numbers;
        std::string input, shown;
    };
    const std::string start = kComposition + "Složení: Molově\n";
    const std::string again = "(X) VELOR: Je třeba zadat složení směsi!\n" + start;
    const Case cases[] = {
        {{1, 2}, "", start + "  Voda: "},
        {{1, 2}, "1", start + "  Voda:   Éter: "},
        {{1, 2}, "1\n1\n", start + "  Voda:   Éter: Pokračovat [Enter]: "},
        {{1, 2}, "z\n1\n", start + "  Voda: "},
        {{1}, "abc\n\n", start + "  Voda: Pokračovat [Enter]: " + again + "  Voda: "},
        {{}, "\n", start + "Pokračovat [Enter]: " + again + "Pokračovat [Enter]: "},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(session(c.input,
                          [&](Smes& smes) {
                              smes.DefSmes(static_cast<int>(c.numbers.size()), Fractions(c.numbers));
                              smes.ZadejSloz(n, X, W);
                              EXPECT_EQ(smes.Nsloz().toInt16(), 0);
                          }),
                  (c.numbers.empty() ? "(X) VELOR: Nemohu načíst z VELOR.DRC!\n" : "") + c.shown)
            << c.input;
    }
    EXPECT_EQ(session("1\n", [](Smes& smes) { smes.ZadejSmes(); }), choice() + "Složky směsi: 1\n> ");
    EXPECT_TRUE(session("0", [](Smes& smes) { smes.SeznamShow(); }).ends_with(kWater + kEther + "[Enter] "));
}

TEST_F(QuestionsTest, surviveOddInput) {
    const std::string odd[] = {"99999999999999999999\n", std::string("\0\xFF\xC3\n", 4), "-1\n", "%n\x1b[2J\n",
                               std::string(100000, '9') + "\n"};
    for (const std::string& line : odd) {
        session(line + "z\n" + line, [](Smes& smes) { smes.ZadejSmes(); });
        session("1\n2\nok\n" + line, [&](Smes& smes) {
            smes.ZadejSmes();
            smes.ZadejSloz(n, X, W);
        });
    }
    EXPECT_EQ(test::errorNumber([&] { session("1\n99999\nok\n", [](Smes& smes) { smes.ZadejSmes(); }); }), 6);
}

}  // namespace
}  // namespace velor
