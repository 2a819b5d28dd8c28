// presnost: how far a database is from reference equations.
#include "baze/accuracy.h"

#include <iostream>
#include <memory>

#include "commands/commands.h"

namespace velor::baze {

namespace {

struct Task {
    std::string database;
    std::string points;
    std::string limits;
};

int compareWithPoints(const Task& task) {
    const auto records = readRecords(task.database);
    const auto table = readTable(
        task.points, [&](std::string_view text, LineFaults& faults) { return accuracyOf(records, text, faults); });
    std::cout << writeAccuracy(table);
    if (task.limits.empty()) return kDone;
    const auto sentences = worsened(table, readTable(task.limits, readAccuracy));
    for (const std::string& sentence : sentences) std::cerr << task.limits << ": " << sentence << '\n';
    return sentences.empty() ? kDone : kFailed;
}

}  // namespace

void addAccuracy(CLI::App& app, Action& action) {
    const auto task = std::make_shared<Task>();
    CLI::App* command = addCommand(app, "presnost", "Porovná bázi s body referenčních rovnic");
    addArgument(*command, "baze", task->database, "Báze, která se porovná");
    addArgument(*command, "body", task->points, "Tabulka bodů: Cislo, vlastnost, T, value");
    command->add_option("--dosud", task->limits, "Tabulka téhož tvaru jako výsledek; je-li kde hůř, skončí s kódem 1");
    command->footer("Vypíše medián, 95. percentil a největší odchylku každé vlastnosti v procentech.");
    command->callback([task, &action] { action = [task] { return compareWithPoints(*task); }; });
}

}  // namespace velor::baze
