// pridej and sablona: own substances beside the delivered ones.
#include <filesystem>
#include <iostream>
#include <memory>

#include "baze/own_tables.h"
#include "commands/commands.h"
#include "shared/files.h"
#include "velor/text.h"

namespace velor::baze {

namespace {

struct Task {
    std::string database;
    std::string table;
    std::string target;
};

int add(const Task& task) {
    requireOther(task.target, task.table);
    readRecords(task.database);  // or what it is instead
    const std::string bytes = readFile(task.database);
    const Supplement supplement = Supplement::of(task.database);
    const Addition addition = readTable(task.table, [&](std::string_view text, LineFaults& faults) {
        return addOwnSubstances(bytes, supplement, text, faults);
    });
    if (addition.report.empty()) throw Failure(task.table + ": tabulka neobsahuje žádnou látku ani korelaci");
    writeDatabase(task.target, addition.bytes, addition.supplement);
    for (const std::string& sentence : addition.report) std::cout << printable(sentence) << '\n';
    if (!supplement.note().empty()) std::cerr << supplement.note() << " Nový doplněk zná jen přidané údaje.\n";
    std::cout << task.target << ": přidáno " << addition.added << ", změněno " << addition.changed << '\n';
    return kDone;
}

int writeTemplate(const Task& task) {
    if (task.target.empty()) {
        std::cout << ownTablesTemplate();
        return kDone;
    }
    if (std::filesystem::exists(app::systemPath(task.target)))
        throw Failure(task.target + ": soubor už existuje a nebude přepsán");
    writeFile(task.target, ownTablesTemplate());
    return kDone;
}

}  // namespace

void addOwnSubstancesCommand(CLI::App& app, Action& action) {
    const auto task = std::make_shared<Task>();
    CLI::App* command = addCommand(app, "pridej", "Přidá do báze vlastní látky nebo jim změní údaje");
    addArgument(*command, "baze", task->database, "Báze, která se nemění");
    addArgument(*command, "tabulka", task->table, "Vlastní látky a korelace, viz příkaz sablona");
    command->add_option("-o,--vystup", task->target, "Nová báze; vedle ní vznikne doplněk .DOP")->required();
    command->footer(
        "Látka se pozná podle čísla CAS: která v bázi je, dostane nové konstanty a korelace a podrží si číslo i "
        "ostatní\n"
        "korelace, nová dostane další číslo. Chyby vypíše jako soubor:řádek: sloupec: důvod; bázi pak nezapíše.");
    command->callback([task, &action] { action = [task] { return add(*task); }; });
}

void addTemplateCommand(CLI::App& app, Action& action) {
    const auto task = std::make_shared<Task>();
    CLI::App* command = addCommand(app, "sablona", "Vypíše vzor tabulky vlastních látek");
    command->add_option("soubor", task->target, "Kam se zapíše; bez něj na výstup")->type_name("");
    command->footer("Tabulka látek a tabulka korelací, mezi nimi prázdný řádek. Vzorovou látku přepište.");
    command->callback([task, &action] { action = [task] { return writeTemplate(*task); }; });
}

}  // namespace velor::baze
