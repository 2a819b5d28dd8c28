// The command line: help, version, and what it refuses.
#include "command.h"
#include "velor/version.h"

namespace velor::test {
namespace {

TEST(ArgumentsTest, helpIsCzech) {
    for (const char* command :
         {"", "seznam", "latka", "vlastnost", "ukazka", "smes", "prehled", "rovnovaha", "flash", "graf"}) {
        const Outcome outcome = run(words(command, {"--help"}));
        EXPECT_EQ(outcome.exitCode, 0);
        for (const char* phrase : {"Použití: velor", "Přepínače:", "--baze SOUBOR", "--csv", "--json"})
            expectMentions(outcome.out, phrase);
        for (const char* english :
             {"Usage", "OPTIONS", "Options", "REQUIRED", "Positionals", "SUBCOMMAND", " TEXT ..."})
            EXPECT_EQ(outcome.out.find(english), std::string::npos) << english;
    }
    expectMentions(run({"--help"}).out, "\nNávratový kód:\n  0  ");
}

TEST(ArgumentsTest, versionIsTheLibrarys) {
    EXPECT_EQ(run({"--verze"}).out, "velor " + std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) +
                                        "." + std::to_string(kVersionRevision) + "\n");
}

TEST(ArgumentsTest, wrongUseIsSaidInCzech) {
    const std::pair<const char*, const char*> cases[] = {
        {"", "Chybí příkaz."},
        {"nic", "Neznámý příkaz nebo přepínač „nic“."},
        {"latka", "Chybí povinný údaj LÁTKA."},
        {"latka 1 --nic", "Nečekaný údaj: --nic"},
        {"--csv latka 1 --json", "buď --csv, nebo --json"},
        {"latka 1 --baze", "Přepínač --baze nemá hodnotu."},
        {"vlastnost", "Chybí povinný údaj VLASTNOST."},
        {"smes --dialog --latky 1", "S přepínačem --dialog zadejte nejvýše -P"},
        {"smes --dialog -P 0", "Tlak musí být kladný"},
        {"seznam --podle vzorce", "podle nazvu nebo cisel, zadáno: „vzorce“"},
        {"vlastnost TENS -T 300", "Chybí povinný údaj --latky."},
        {"vlastnost TENS --latky 1 -T 300 -T 310", "Přepínač --teplota je zadán vícekrát."},
    };
    for (const auto& [line, phrase] : cases) expectFailure(run(words(line)), 2, phrase);
}

TEST(ArgumentsTest, theManualPageIsTypesetAndHoldsTheHelp) {
    const TemporaryFolder folder;
    const std::string typeset =
        "export LC_ALL=C.UTF-8; groff -k -man -Tutf8 -P-cbou -ww \"$1\" && lexgrog \"$1\" >/dev/null";
    const Outcome page = run({"-c", typeset, "bash", folder.write("velor.1", run({"prirucka"}).out)}, "/bin/bash");
    EXPECT_EQ(page.exitCode, 0);
    EXPECT_EQ(page.error, "");
    for (const char* phrase : {"\n       velor vlastnost [VLASTNOST] [přepínače]\n", "\n   velor rovnovaha\n",
                               "\n       -T, --teplota TEPLOTA\n",
                               "\n       velor graf VLASTNOST --latky LÁTKY --vystup OBRÁZEK [přepínače]\n",
                               "\nPŘEPÍNAČE\n", "\n              SIGMA  povrchové napětí\n",
                               "\n           velor ukazka benzen -T 350\n", "\n       --latky LÁTKY (povinné)\n"})
        expectMentions(page.out, phrase);
}

}  // namespace
}  // namespace velor::test
