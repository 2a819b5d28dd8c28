// soulad: whether the figures of a database agree with each other.
#include "baze/consistency.h"

#include <iostream>
#include <memory>

#include "commands/commands.h"
#include "velor/substances.h"

namespace velor::baze {

namespace {

struct Task {
    std::string database;
    std::string reasons;
    std::string page;
};

int writePage(const Task& task) {
    for (const std::string& input : {task.database, task.reasons}) requireOther(task.page, input);
    const auto records = readRecords(task.database);
    const auto look = [&](std::string_view text, LineFaults& faults) { return consistencyOf(records, text, faults); };
    LineFaults none;
    const auto findings = task.reasons.empty() ? look("Cislo,co,duvod\n", none) : readTable(task.reasons, look);
    const std::string page = consistencyPage(records, findings);
    if (task.page.empty()) std::cout << page;
    if (!task.page.empty()) writeFile(task.page, page);
    int unexplained = 0;
    for (const Finding& finding : findings) {
        if (!finding.isOutlier || !finding.reason.empty() || task.reasons.empty()) continue;
        ++unexplained;
        std::cerr << "látka " << finding.number << ": " << finding.check << " vybočuje, důvod v tabulce není\n";
    }
    return unexplained == 0 ? kDone : kFailed;
}

}  // namespace

void addConsistency(CLI::App& app, Action& action) {
    const auto task = std::make_shared<Task>();
    CLI::App* command = addCommand(app, "soulad", "Porovná údaje každé látky mezi sebou a napíše o tom stránku");
    addArgument(*command, "baze", task->database, "Báze, která se posoudí");
    command->add_option("--duvody", task->reasons,
                        "Tabulka Cislo, co, duvod; vybočí-li látka bez důvodu, skončí s kódem 1");
    command->add_option("-o,--vystup", task->page, "Soubor stránky (Markdown); bez něj na výstup");
    command->callback([task, &action] { action = [task] { return writePage(*task); }; });
}

}  // namespace velor::baze
