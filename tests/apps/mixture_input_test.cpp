// What the commands for mixtures refuse, and what they cannot compute: said in words, with the right exit code.
#include "small_database.h"

namespace velor::test {
namespace {

Words withWords(Words words, const Words& more) {
    words.insert(words.end(), more.begin(), more.end());
    return words;
}

TEST(MixtureInputTest, compositionsThatAreNoneAreRefused) {
    const struct {
        Words composition;
        const char* phrase;
    } cases[] = {
        {{"--slozeni", "1"}, "Látek je 2, ale zlomků složení 1."},
        {{"--slozeni", "0.2,0.3,0.5"}, "Látek je 2, ale zlomků složení 3."},
        {{"--slozeni", "-0.5,1.5"}, "nesmí být záporný, zadáno: -0.5"},
        {{"--slozeni", "a,1"}, "„a“ není číslo"},
        {{"--slozeni", "nan,1"}, "„nan“ není číslo"},
        {{"--slozeni", "0.5,inf"}, "„inf“ není číslo"},
        {{"--slozeni", ""}, "chybí číslo"},
        {{"--slozeni", "0.5,"}, "chybí číslo"},
        {{"--slozeni", "0.5,0.4"}, "Součet zlomků složení je 0.9, ne 1."},
        {{"--slozeni", "0,0"}, "Součet zlomků složení je 0, ne 1."},
        {{"--slozeni", "0,0", "--normalizovat"}, "nelze normalizovat"},
        {{"--slozeni", "1e308,1e308", "--normalizovat"}, "příliš velké"},
        {{"--slozeni", "1e999,1"}, "příliš velké"},
        {{"--hmotove"}, "--hmotove patří ke složení"},
        {{"--normalizovat"}, "--normalizovat patří ke složení"},
        {{}, "Chybí složení směsi"},
    };
    for (const auto& [composition, phrase] : cases) {
        for (const Words& command : {Words{"smes"}, Words{"prehled"}, Words{"flash", "-T", "300"},
                                     Words{"vlastnost", "RHG", "-T", "300", "-P", "1e5"}}) {
            expectFailure(run(withWords(withWords(command, {"--latky", "voda,ethanol"}), composition)), 2, phrase);
        }
    }
}

TEST(MixtureInputTest, statesThatAreNoneAreRefused) {
    const Words mixture{"--latky", "voda,ethanol", "--slozeni", "0.4,0.6"};
    const struct {
        Words words;
        const char* phrase;
    } cases[] = {
        {{"vlastnost", "RHG", "-T", "300"}, "Vlastnost RHG potřebuje tlak: -P"},
        {{"vlastnost", "TBV"}, "Vlastnost TBV potřebuje tlak: -P"},
        {{"vlastnost", "ROLW"}, "Chybí povinný údaj --teplota."},
        {{"vlastnost", "RHG", "-T", "300", "-P", "0"}, "Tlak musí být kladný"},
        {{"vlastnost", "RHG", "-T", "300", "-P", "-1"}, "Tlak musí být kladný"},
        {{"vlastnost", "RHG", "-T", "300", "-P", "tlak"}, "„tlak“ není číslo"},
        {{"vlastnost", "RHG", "-T", "300", "-P", "nan"}, "„nan“ není číslo"},
        {{"vlastnost", "RHG", "-T", "teplota", "-P", "1e5"}, "„teplota“ není číslo"},
        {{"vlastnost", "RHGV", "-T", "300", "-P", "1e5"}, "Podobné zkratky: RHG, RHGW."},
        {{"vlastnost", "xyzzy", "-T", "300"}, "Neznámá vlastnost „xyzzy“."},
        {{"smes", "-P", "0"}, "Tlak musí být kladný"},
        {{"smes", "--limit", "0"}, "Časový limit musí být kladný"},
        {{"prehled", "-T", "0"}, "Teplota musí být kladná"},
        {{"flash"}, "Chybí povinný údaj --teplota."},
        {{"flash", "-T", "300", "--interaktivne"}, "zadejte jen --latky"},
        {{"graf", "TBV", "-P", "1e5", "-T", "300:310:1", "--vystup", "a.svg"}, "na teplotě nezávisí"},
        {{"graf", "ROLW", "-T", "300", "--vystup", "a.svg"}, "aspoň dvě teploty"},
        {{"graf", "ROLW", "-T", "300:310:1", "--vystup", "a.pdf"}, "příponu .svg nebo .png"},
        {{"graf", "ROLW", "-T", "300:310:1"}, "Chybí povinný údaj --vystup."},
    };
    for (const auto& [words, phrase] : cases) expectFailure(run(withWords(words, mixture)), 2, phrase);
    expectFailure(run({"rovnovaha", "--latky", "voda"}), 2, "pro dvě látky, zadáno jich je 1");
    expectFailure(run({"rovnovaha", "--latky", "1,2,3"}), 2, "pro dvě látky, zadáno jich je 3");
    for (const char* points : {"1", "1002", "2.5", "mnoho"})
        EXPECT_EQ(run({"rovnovaha", "--latky", "voda,ethanol", "--body", points}).exitCode, 2) << points;
    expectFailure(run({"smes", "--latky", "voda,h2o", "--slozeni", "0.5,0.5"}), 2, "zadána dvakrát");
    expectFailure(run({"smes", "--latky", "1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21"}), 2,
                  "nejvýše jich může být 20");
}

// Each of these takes the library's iterations out of their depth, or a record lacks what is needed.
TEST(MixtureInputTest, whatCannotBeComputedIsSaidInWordsAndInTime) {
    const struct {
        Words words;
        const char* phrase;
    } cases[] = {
        {{"vlastnost", "TRB", "--latky", "methan,hexadekan", "--slozeni", "0.5,0.5", "-P", "1e5"},
         "Výpočet rosného bodu"},
        {{"vlastnost", "TRB", "--latky", "dusík,hexadekan", "--slozeni", "0.9,0.1", "-P", "1e5"},
         "Výpočet rosného bodu"},
        {{"vlastnost", "TRB", "--latky", "13,hexadekan", "--slozeni", "0.5,0.5", "-P", "1e5"}, "Výpočet rosného bodu"},
        {{"vlastnost", "TBV", "--latky", "methan,toluen", "--slozeni", "0.01,0.99", "-P", "1e5"}, "Výpočet bodu varu"},
        {{"flash", "--latky", "methan,toluen", "--slozeni", "0.5,0.5", "-T", "300"}, "rosný bod nástřiku"},
        {{"flash", "--latky", "dusík,toluen", "--slozeni", "0.5,0.5", "-T", "300", "--adiabaticky"}, "Flash selhal"},
        {{"flash", "--latky", "pentan,heptan", "--slozeni", "0.5,0.5", "-T", "600", "--adiabaticky"}, "nekonverguje"},
        {{"vlastnost", "SIGMA", "--latky", "methan,toluen", "--slozeni", "0.5,0.5", "-T", "300"}, "Methan, ROLW"},
        {{"vlastnost", "CPL", "--latky", "105-58-8,toluen", "--slozeni", "0.5,0.5", "-T", "300"},
         "není pro látku v bázi"},
        {{"vlastnost", "HL", "--latky", "105-58-8,toluen", "--slozeni", "0.5,0.5", "-T", "300"},
         "není pro látku v bázi"},
        {{"vlastnost", "RHG", "--latky", "methan", "-T", "300", "-P", "1e308"}, "RHG nebyla vypočtena"},
        {{"vlastnost", "TBV", "--latky", "methan", "-P", "1e-300"}, "TBV nebyla vypočtena"},
    };
    for (const auto& [words, phrase] : cases) expectFailure(run(withWords(words, {"--limit", "30"})), 1, phrase);
}

TEST(MixtureInputTest, whereSomethingCameOutItIsPrintedWithTheReasons) {
    const Outcome outcome =
        run({"prehled", "--latky", "13,toluen", "--slozeni", "0.01,0.99", "-T", "300", "--limit", "30"});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.error;
    for (const char* phrase : {"neznámé", "Výpočet bodu varu nekonverguje.", "ROLW", "RROGW", "skupenství známo"})
        expectMentions(outcome.out, phrase);
}

TEST(MixtureInputTest, damagedRecordsAreErrorsInWords) {
    const SmallDatabase database;
    const struct {
        Words words;
        const char* phrase;
    } cases[] = {
        {{"vlastnost", "SIGMA", "--latky", "2,10", "--slozeni", "0.5,0.5", "-T", "300"},
         "Toluen, SIGMA: Vlastnost není"},
        {{"vlastnost", "TENS", "--latky", "2,10", "--slozeni", "0.5,0.5", "-T", "300"}, "Toluen, TENS: Rovnice nemá"},
        {{"vlastnost", "CPL", "--latky", "2,10", "--slozeni", "0.5,0.5", "-T", "300"}, "Toluen, CPL: Při výpočtu"},
        {{"vlastnost", "RHG", "--latky", "11", "-T", "300", "-P", "1e5"}, "RHG nebyla vypočtena"},
        {{"smes", "--latky", "11"}, "(chyba 6)"},
    };
    for (const auto& [words, phrase] : cases) expectFailure(database.run(words), 1, phrase);
}

TEST(MixtureInputTest, theTimeLimitEndsTheCommand) {
    const Outcome outcome = run({"rovnovaha", "--latky", "1,2", "--body", "1001", "--limit", "0.0001"});
    expectFailure(outcome, 4, "neskončil do 0.0001 s");
    expectMentions(outcome.error, "--limit");
}

}  // namespace
}  // namespace velor::test
