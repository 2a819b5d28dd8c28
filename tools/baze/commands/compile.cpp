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

int compileFolder(const Task& task) {
    requireConfigurable(task);
    const std::string substances = pathIn(task.folder, kSubstancesFile);
    const std::string correlations = pathIn(task.folder, kCorrelationsFile);
    const Checks checks = task.formOnly ? Checks::FormOnly : Checks::Full;
    const std::string substanceText = readFile(substances);
    const auto result = compile(substanceText, readFile(correlations), checks);
    if (!result.succeeded()) {
        report(substances, result.substanceFaults);
        report(correlations, result.correlationFaults);
        if (result.hasMoreFaults) reportThatThereAreMore();
        return kFailed;
    }
    writeFile(task.database, result.bytes);
    if (!task.configuration.empty()) writeConfiguration(task);
    std::cout << task.database << ": látek " << result.substances << ", korelací " << result.correlations << '\n';
    return kDone;
}

int decompileDatabase(const Task& task) {
    const auto text = decompile(readFile(task.database));
    if (!text.refusal.empty()) throw Failure(task.database + ": " + text.refusal);
    const std::string substances = pathIn(task.folder, kSubstancesFile);
    const std::string correlations = pathIn(task.folder, kCorrelationsFile);
    // Groups, sources and deviations are in no database; hand-kept tables would lose them.
    for (const std::string& path : {substances, correlations})
        if (std::filesystem::exists(app::systemPath(path)))
            throw Failure(path + ": soubor už existuje a nebude přepsán");
    std::filesystem::create_directories(app::systemPath(task.folder));
    writeFile(substances, text.substances);
    writeFile(correlations, text.correlations);
    return kDone;
}

}  // namespace

void addCompile(CLI::App& app, Action& action) {
    const auto task = std::make_shared<Task>();
    CLI::App* command = addCommand(app, "sestav", "Sestaví z textových tabulek bázi VELOR.DRC");
    addArgument(*command, "slozka", task->folder, "Složka se soubory latky.csv a korelace.csv");
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
    addArgument(*command, "slozka", task->folder, "Složka pro latky.csv a korelace.csv; co v ní je, nepřepíše");
    command->footer(
        "Příkaz sestav z tabulek vytvoří tutéž bázi bajt po bajtu. Má-li báze obsah, který kontrolou neprojde,\n"
        "použijte s ním --bez-kontroly. Skupiny, zdroje a odchylky v bázi nejsou, jejich sloupce zůstanou prázdné.");
    command->callback([task, &action] { action = [task] { return decompileDatabase(*task); }; });
}

}  // namespace velor::baze
