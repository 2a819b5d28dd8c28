// What the commands for mixtures refuse, and what they cannot compute: said in words, with the right exit code.
#include "small_database.h"

namespace velor::test {
namespace {

TEST(MixtureInputTest, compositionsThatAreNoneAreRefused) {
    const std::pair<Words, const char*> cases[] = {
        {{"--slozeni", "1"}, "Látek je 2, ale zlomků složení 1."},
        {{"--slozeni", "-0.5,1.5"}, "nesmí být záporný, zadáno: -0.5"},
        {{"--slozeni", "nan,1"}, "„nan“ není číslo"},
        {{"--slozeni", ""}, "chybí číslo"},
        {{"--slozeni", "0.5,0.4"}, "Součet zlomků složení je 0.9, ne 1."},
        {{"--slozeni", "0,0", "--normalizovat"}, "nelze normalizovat"},
        {{"--slozeni", "1e308,1e308", "--normalizovat"}, "příliš velké"},
        {{"--hmotove"}, "--hmotove patří ke složení"},
        {{"--normalizovat"}, "--normalizovat patří ke složení"},
        {{}, "Chybí složení směsi"},
    };
    for (const auto& [composition, phrase] : cases)
        for (const std::string command : {"smes", "prehled", "flash -T 300", "vlastnost RHG -T 300 -P 1e5"})
            expectFailure(run(words(command + " --latky voda,ethanol", composition)), 2, phrase);
}

TEST(MixtureInputTest, statesThatAreNoneAreRefused) {
    const std::pair<std::string, const char*> cases[] = {
        {"vlastnost RHG -T 300", "Vlastnost RHG potřebuje tlak: -P"},
        {"vlastnost TBV", "Vlastnost TBV potřebuje tlak: -P"},
        {"vlastnost ROLW", "Chybí povinný údaj --teplota."},
        {"vlastnost RHG -T 300 -P -1", "Tlak musí být kladný"},
        {"vlastnost RHG -T 300 -P nan", "„nan“ není číslo"},
        {"vlastnost RHGV -T 300 -P 1e5", "Podobné zkratky: RHG, RHGW."},
        {"vlastnost xyzzy -T 300", "Neznámá vlastnost „xyzzy“."},
        {"smes --limit 0", "Časový limit musí být kladný"},
        {"prehled -T 0", "Teplota musí být kladná"},
        {"flash", "Chybí povinný údaj --teplota."},
        {"flash -T 300 --interaktivne", "zadejte jen --latky"},
        {"graf TBV -P 1e5 -T 300:310:1 --vystup a.svg", "na teplotě nezávisí"},
        {"graf ROLW -T 300 --vystup a.svg", "aspoň dvě různé teploty"},
        {"graf ROLW -T 300:310:1 --vystup a.pdf", "příponu .svg nebo .png"},
        {"graf ROLW -T 300:310:1", "Chybí povinný údaj --vystup."},
    };
    for (const auto& [line, phrase] : cases)
        expectFailure(run(words(line + " --latky voda,ethanol --slozeni 0.4,0.6")), 2, phrase);
    expectFailure(run(words("rovnovaha --latky voda")), 2, "pro dvě látky, zadáno jich je 1");
    for (const std::string points : {"1", "1002"})
        EXPECT_EQ(run(words("rovnovaha --latky voda,ethanol --body " + points)).exitCode, 2) << points;
    expectFailure(run(words("smes --latky voda,h2o --slozeni 0.5,0.5")), 2, "zadána dvakrát");
    expectFailure(run(words("smes --latky 1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20,21")), 2,
                  "nejvýše jich může být 20");
}

// Each of these takes the library's iterations out of their depth, or a record lacks what is needed.
TEST(MixtureInputTest, whatCannotBeComputedIsSaidInWordsAndInTime) {
    const std::pair<std::string, const char*> cases[] = {
        {"vlastnost TRB --latky methan,hexadekan --slozeni 0.5,0.5 -P 1e9", "Výpočet rosného bodu"},
        {"vlastnost TBV --latky methan,toluen --slozeni 0.01,0.99 -P 1e5", "Výpočet bodu varu"},
        {"flash --latky methan,toluen --slozeni 0.5,0.5 -T 300", "rosný bod nástřiku"},
        {"flash --latky dusík,voda --slozeni 0.5,0.5 -T 300 --adiabaticky", "Flash selhal"},
        {"flash --latky pentan,heptan --slozeni 0.5,0.5 -T 600 --adiabaticky", "nekonverguje"},
        {"vlastnost SIGMA --latky methan,toluen --slozeni 0.5,0.5 -T 300", "Methan, ROLW"},
        {"vlastnost HL --latky 105-58-8,toluen --slozeni 0.5,0.5 -T 300", "není pro látku v bázi"},
        {"vlastnost RHG --latky methan -T 300 -P 1e308", "RHG nebyla vypočtena"},
        {"vlastnost TBV --latky methan -P 1e9", "TBV nebyla vypočtena"},
    };
    for (const auto& [line, phrase] : cases) expectFailure(run(words(line + " --limit 30")), 1, phrase);
    const Outcome partly = run(words("prehled --latky 13,toluen --slozeni 0.01,0.99 -T 300 --limit 30"));
    EXPECT_EQ(partly.exitCode, 0) << partly.error;
    for (const char* phrase : {"kapalina", "Výpočet bodu varu nekonverguje.", "ROLW"})
        expectMentions(partly.out, phrase);
}

TEST(MixtureInputTest, theTimeLimitEndsTheCommand) {
    expectFailure(run(words("rovnovaha --latky 1,2 --body 1001 --limit 0.0001")), 4, "neskončil do 0.0001 s");
}

}  // namespace
}  // namespace velor::test
