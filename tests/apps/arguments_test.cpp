// The command line: help, version, and what it refuses.
#include "command.h"
#include "velor/version.h"

namespace velor::test {
namespace {

TEST(ArgumentsTest, helpIsCzech) {
    const std::vector<Words> commands{{},       {"seznam"},  {"latka"},     {"vlastnost"}, {"ukazka"},
                                      {"smes"}, {"prehled"}, {"rovnovaha"}, {"flash"},     {"graf"}};
    for (Words words : commands) {
        words.push_back("--help");
        const Outcome outcome = run(words);
        EXPECT_EQ(outcome.exitCode, 0);
        for (const char* phrase : {"Použití: velor", "Přepínače:", "--baze SOUBOR", "--csv", "--json"})
            expectMentions(outcome.out, phrase);
        for (const char* english :
             {"Usage", "OPTIONS", "Options", "REQUIRED", "Positionals", "SUBCOMMAND", " TEXT ..."})
            EXPECT_EQ(outcome.out.find(english), std::string::npos) << english;
    }
}

TEST(ArgumentsTest, versionIsTheLibrarys) {
    const Outcome outcome = run({"--verze"});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out, "velor " + std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." +
                               std::to_string(kVersionRevision) + "\n");
}

TEST(ArgumentsTest, wrongUseIsSaidInCzech) {
    const struct {
        Words words;
        const char* phrase;
    } cases[] = {
        {{}, "Chybí příkaz."},
        {{"nic"}, "Neznámý příkaz nebo přepínač „nic“."},
        {{"latka"}, "Chybí povinný údaj LÁTKA."},
        {{"latka", "1", "--nic"}, "Nečekaný údaj: --nic"},
        {{"latka", "1", "--csv", "--json"}, "buď --csv, nebo --json"},
        {{"--csv", "latka", "1", "--json"}, "buď --csv, nebo --json"},
        {{"latka", "1", "--baze"}, "Přepínač --baze nemá hodnotu."},
        {{"vlastnost"}, "Chybí povinný údaj VLASTNOST."},
        {{"smes"}, "Chybí povinný údaj --latky."},
        {{"smes", "--dialog", "--latky", "1"}, "S přepínačem --dialog zadejte nejvýše -P"},
        {{"smes", "--dialog", "--slozeni", "1"}, "S přepínačem --dialog zadejte nejvýše -P"},
        {{"smes", "--dialog", "-P", "0"}, "Tlak musí být kladný"},
        {{"seznam", "--podle", "vzorce"}, "podle nazvu nebo cisel, zadáno: „vzorce“"},
        {{"vlastnost", "TENS", "-T", "300"}, "Chybí povinný údaj --latky."},
        {{"vlastnost", "TENS", "--latky", "1"}, "Chybí povinný údaj --teplota."},
        {{"vlastnost", "TENS", "--latky", "1", "-T", "300", "-T", "310"}, "Přepínač --teplota je zadán vícekrát."},
    };
    for (const auto& [words, phrase] : cases) expectFailure(run(words), 2, phrase);
}

}  // namespace
}  // namespace velor::test
