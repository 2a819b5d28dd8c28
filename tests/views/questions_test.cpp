// The forms as questions and answers: whole sessions.
#include <gtest/gtest.h>

#include <sstream>

#include "runtime/text.h"
#include "support/sample_mixture.h"

namespace velor::test {
namespace {

const std::string kEther = "002  Éter                 Sample               C2H6O     [64-17-5] \n";
const std::string kComposition =
    "Složení můžete vkládat jako mol. nebo hmotový zlomek nebo jako poměrové díly. Bude normalizováno.\n"
    "  číslo  složení složky; samotný Enter ponechá hodnotu v závorce\n"
    "  m      Molově, znovu od první složky\n"
    "  h      Hmotově, znovu od první složky\n"
    "  l 2    zobrazí složku č. 2, d 2 dočasně změní její údaje\n"
    "  z      Zpět\n";

struct Questions : ::testing::Test {
    TemporaryFolder folder;
    std::string database =
        folder.write("VELOR.DRC", acceptableDatabase({sampleSubstance(1, "Voda"), sampleSubstance(2, "Éter")}));
    Variant n, X = Fractions({0, 0}), W = Fractions({0, 0});
    std::string choice = "SEZNAM LÁTEK DATABÁZE  V E L O R\nPočet látek je 2 (" + database +
                         ")\n  číslo  přidá látku do směsi\n"
                         "  text   vyhledá látky, jejichž řádek ho obsahuje\n"
                         "  ok     Směs definována\n"
                         "  z      Smazat, znovu\n"
                         "  k      Konec beze změny\n"
                         "Složky směsi:";

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
};

TEST_F(Questions, chooseComponents) {
    const auto shown = session("ok\néter\nbenzen\r\n0\n1\n z \n\n002\nok\n1\n ok\n", [&](Smes& smes) {
        smes.ZadejSmes();
        EXPECT_EQ(smes.Nslozky(1).toInt16(), 2);
        smes.ZadejSmes();
        EXPECT_EQ(smes.Inivlr().toInt16(), 2);  // the first choice is still there
    });
    EXPECT_EQ(shown, choice +
                         "\n> (!) VELOR: Nezadána žádná látka nebo po zadání čísla látky nebyl stisknut Enter!\n"
                         "Složky směsi:\n> " +
                         kEther +
                         "Složky směsi:\n> Látka  BENZEN  nenalezena!!!\nSložky směsi:\n> "
                         "Složky směsi:\n> Složky směsi: 1\n> Složky směsi:\n> Složky směsi:\n> "
                         "Složky směsi: 002\n> " +
                         choice + " 002\n> Složky směsi: 002 1\n> ");
}

TEST_F(Questions, enterAComposition) {
    const std::string shown = session("2\n\n0\nh\n1\n3\nx\n\n", [&](Smes& smes) {
        smes.DefSmes(2, Fractions({1, 2}));
        smes.ZadejSloz(n, X, W, "", 1);
    });
    EXPECT_EQ(W, Fractions({0.25, 0.75}));
    EXPECT_EQ(shown, kComposition +
                         "Složení: Molově\n  Voda [1.0]:   Éter [1.0]: Pokračovat [Enter]: Pokračovat [Enter]: "
                         "Složení: Hmotově\n  Voda [2]:   Éter [1.0]: Pokračovat [Enter]: Pokračovat [Enter]: ");
}

TEST_F(Questions, displayAndChangeAComponent) {
    const std::string display = "l 3\nl 2\nTENS\n300\nteplo\nz\n";
    const std::string change = "d 2\n2 = \no\n2 = \n6 = -1\nok\n6=510\nd\nsigma\n2 = 5\no\ntens\n2 = 10\nt = 301\nok\n";
    const std::string shown = session(display + change + "1\n1\n\n", [&](Smes& smes) {
        smes.DefSmes(2, Fractions({1, 2}));
        smes.ZadejSloz(n, X, W, "", 1);
        EXPECT_EQ(smes.Synonym(2).toText(), std::string(30, ' '));
        EXPECT_EQ(smes.Bod(2, 2), 510.0F);
        EXPECT_EQ(smes.VLRConst(2, 9, 1), 10.0F);
        EXPECT_EQ(smes.VLRConst(2, 10, 1), 10.0F);
    });
    const auto line = [](const std::string& caption, const std::string& value) {
        return "  " + caption + std::string(37 - characterCount(caption), ' ') + value + "\n";
    };
    const std::string parts[] = {
        "Voda [1.0]: Nerozumím, zadejte některou z možností výše.\n  Voda [1.0]: Zobrazení složky č. 2: Éter\n",
        line("kritická teplota", "500.00 K"),
        "TENS (300 K): 309.0 Pa\n> (!) VELOR: Teplota: zadejte kladné číslo v kelvinech.\nTENS (300 K): 309.0 Pa\n",
        "> (!) VELOR: Pole „kritická teplota“: zadejte kladné číslo, nebo pole nechte prázdné.\n>   6   kritická "
        "teplota [K]",
        line("2   A1", "10"),
        line("Před změnou:", "310.0 Pa"),
        line("Po změně:", "311.0 Pa") + "> ",
    };
    for (const std::string& part : parts) EXPECT_NE(shown.find(part), std::string::npos) << part << shown;
}

}  // namespace
}  // namespace velor::test
