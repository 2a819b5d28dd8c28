// sestav and rozloz: text to the database and back.
#include "baze/compile.h"

#include <filesystem>
#include <iostream>
#include <memory>

#include "baze/decompile.h"
#include "commands/commands.h"
#include "object/configuration_file.h"  // the compiler writes the CFG file that the library reads
#include "shared/files.h"
#include "velor/run_time_error.h"

namespace velor::baze {

namespace {

struct Task {
    std::string folder;
    std::string database;
    std::string configuration;
    bool formOnly = false;
};

void requireConfigurable(const Task& task) {
    if (!task.configuration.empty() && !isConfigurable(fullPath(task.database)))
        throw Failure(task.database + ": takovou cestu (uvozovky s čárkou, konec řádku) nelze zapsat do souboru CFG");
}

void writeConfiguration(const Task& task) {
    try {
        writeConfiguredPath(task.configuration, fullPath(task.database));
    } catch (const RunTimeError&) {
        throw Failure(task.configuration + ": soubor nelze zapsat");
    }
}

// What is not there is not told.
SupplementTexts furtherTexts(const std::string& folder) {
    const auto text = [&](std::string_view name) {
        const std::string path = pathIn(folder, name);
        return std::filesystem::exists(app::systemPath(path)) ? readFile(path) : std::string();
    };
    return {text(kNamesFile), text(kSharedNamesFile), text(kGroupsFile), text(kKnownGroupsFile)};
}

int compileFolder(const Task& task) {
    requireConfigurable(task);
    const std::string substances = pathIn(task.folder, kSubstancesFile);
    const std::string correlations = pathIn(task.folder, kCorrelationsFile);
    const Checks checks = task.formOnly ? Checks::FormOnly : Checks::Full;
    const std::string substanceText = readFile(substances);
    const auto result = compile(substanceText, readFile(correlations), checks, furtherTexts(task.folder));
    if (!result.succeeded()) {
        report(substances, result.substanceFaults);
        report(correlations, result.correlationFaults);
        report(pathIn(task.folder, kNamesFile), result.supplementFaults.names);
        report(pathIn(task.folder, kSharedNamesFile), result.supplementFaults.sharedNames);
        report(pathIn(task.folder, kGroupsFile), result.supplementFaults.groups);
        if (result.hasMoreFaults) reportThatThereAreMore();
        return kFailed;
    }
    writeDatabase(task.database, result.bytes, result.supplement);
    if (!task.configuration.empty()) writeConfiguration(task);
    std::cout << task.database << ": látek " << result.substances << ", korelací " << result.correlations << '\n';
    return kDone;
}

int decompileDatabase(const Task& task) {
    const Supplement supplement = Supplement::of(task.database);
    const auto text = decompile(readFile(task.database), supplement);
    if (!text.refusal.empty()) throw Failure(task.database + ": " + text.refusal);
    const std::pair<std::string_view, std::string> files[] = {{kSubstancesFile, text.substances},
                                                              {kCorrelationsFile, text.correlations},
                                                              {kNamesFile, text.further.names},
                                                              {kSharedNamesFile, text.further.sharedNames},
                                                              {kGroupsFile, text.further.groups}};
    // Hand-kept tables hold more than a database, the groups of the list at least.
    for (const auto& [name, content] : files)
        if (std::filesystem::exists(app::systemPath(pathIn(task.folder, name))))
            throw Failure(pathIn(task.folder, name) + ": soubor už existuje a nebude přepsán");
    for (const auto& [name, content] : files) {
        if (content.empty()) continue;
        const std::string path = pathIn(task.folder, name);
        std::filesystem::create_directories(app::systemPath(path).parent_path());
        writeFile(path, content);
    }
    if (!supplement.note().empty())
        std::cerr << supplement.note() << " Zdroje, odchylky a jména proto v textu nejsou.\n";
    return kDone;
}

}  // namespace

void addCompile(CLI::App& app, Action& action) {
    const auto task = std::make_shared<Task>();
    CLI::App* command =
        addCommand(app, "sestav", "Sestaví z textových tabulek bázi VELOR.DRC a její doplněk VELOR.DOP");
    addArgument(*command, "slozka", task->folder,
                "Složka se soubory latky.csv a korelace.csv, popřípadě jmena.csv,\nspolecna_jmena.csv a "
                "unifac/substances_groups.csv");
    addArgument(*command, "baze", task->database, "Báze, která vznikne nebo bude nahrazena");
    command->add_flag("--bez-kontroly", task->formOnly,
                      "Nekontroluje obsah (CAS, rozmezí hodnot, typy rovnic ...), jen tvar;\n"
                      "je pro tabulky, které vznikly příkazem rozloz z cizí báze");
    command->add_option("--cfg", task->configuration, "Zapíše i soubor CFG s úplnou cestou k bázi");
    command->footer("Všechny chyby vypíše najednou jako soubor:řádek: důvod; bázi pak nezapíše a skončí s kódem 1.");
    command->callback([task, &action] { action = [task] { return compileFolder(*task); }; });
}

void addDecompile(CLI::App& app, Action& action) {
    const auto task = std::make_shared<Task>();
    CLI::App* command = addCommand(app, "rozloz", "Rozloží bázi VELOR.DRC zpět na textové tabulky, beze ztráty");
    addArgument(*command, "baze", task->database, "Báze k rozložení");
    addArgument(*command, "slozka", task->folder, "Složka pro tabulky; co v ní je, nepřepíše");
    command->footer(
        "Příkaz sestav z tabulek vytvoří tutéž bázi bajt po bajtu. Má-li báze obsah, který kontrolou neprojde,\n"
        "použijte s ním --bez-kontroly. Zdroje, odchylky a další jména jsou v doplňku (.DOP) vedle báze;\n"
        "bez něj, a skupiny seznamu vždy, zůstanou prázdné.");
    command->callback([task, &action] { action = [task] { return decompileDatabase(*task); }; });
}

}  // namespace velor::baze
