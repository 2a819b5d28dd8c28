// odhadni: a table of own substances from the groups of a molecule.
#include <filesystem>
#include <iostream>
#include <memory>

#include "baze/csv.h"
#include "baze/estimates.h"
#include "baze/substances_table.h"
#include "commands/commands.h"
#include "records/field_text.h"
#include "shared/files.h"
#include "velor/text.h"

namespace velor::baze {

namespace {

struct Task {
    std::string groups;
    KnownConstants known;
    std::string name, cas, formula;
    std::string target;
};

// The two tables of pridej.
std::string tablesOf(const Task& task, const EstimatedSubstance& substance) {
    std::vector<std::string> header{"Nazev", "Vzorec", "CAS"}, cells{task.name, task.formula, task.cas};
    for (const EstimatedConstant& constant : substance.constants) {
        header.push_back(constant.name);
        cells.push_back(singleText(static_cast<float>(constant.value)));
    }
    std::string text;
    appendCsvRow(text, header);
    appendCsvRow(text, cells);
    text += "\n" + ownCorrelationsHeader();
    for (const CorrelationRow& row : substance.correlations)
        text += ownCorrelationRow(task.cas, row.property, row.block, {row.source, {}, row.isEstimate});
    return text;
}

int estimate(const Task& task) {
    const ReadGroups read = readGroups(task.groups);
    if (!read.fault.empty()) throw Failure("--skupiny: " + read.fault);
    const EstimatedSubstance substance = estimated(read.groups, task.known);
    const float Tkr = substance.record.Tkr, Tnbv = substance.record.Tnbv;
    if (!(Tkr > Tnbv) || !(Tnbv > 0) || !(substance.record.Pkr > 0))
        throw Failure("Skupiny a zadané konstanty nedávají látku: Tnbv " + exactText(Tnbv) + " K, Tkr " +
                      exactText(Tkr) + " K, Pkr " + exactText(substance.record.Pkr) + " Pa.");
    const std::string tables = tablesOf(task, substance);
    std::ostream& told = task.target.empty() ? std::cerr : std::cout;
    for (const EstimatedConstant& constant : substance.constants)
        told << constant.name << " = " << roundedText(constant.value) << "  " << constant.method << '\n';
    for (const CorrelationRow& row : substance.correlations)
        told << pureProperties()[static_cast<std::size_t>(row.property - 1)].code << ", " << row.block.Tmin << " až "
             << row.block.Tmax << " K: odhad, " << row.source << '\n';
    if (task.target.empty()) {
        std::cout << tables;
        return kDone;
    }
    if (std::filesystem::exists(app::systemPath(task.target)))
        throw Failure(task.target + ": soubor už existuje a nebude přepsán");
    writeFile(task.target, tables);
    return kDone;
}

}  // namespace

void addEstimate(CLI::App& app, Action& action) {
    const auto task = std::make_shared<Task>();
    CLI::App* command = addCommand(app, "odhadni", "Odhadne konstanty a korelace látky z jejích skupin");
    command
        ->add_option("--skupiny", task->groups,
                     "Skupiny Jobacka a Reida s počty: \"CH3:2 CH2:4\"; r = v kruhu:\n" + groupNames())
        ->required()
        ->type_name("SKUPINY");
    const std::pair<const char*, double*> constants[] = {{"--Tnbv", &task->known.Tnbv},
                                                         {"--Tkr", &task->known.Tkr},
                                                         {"--Pkr", &task->known.Pkr},
                                                         {"--Vkr", &task->known.Vkr},
                                                         {"--Acent", &task->known.Acent}};
    for (const auto& [name, value] : constants)
        command->add_option(name, *value, "Známá konstanta místo odhadu")->type_name("HODNOTA");
    command->add_option("--nazev", task->name, "Název látky")->required()->type_name("NÁZEV");
    command->add_option("--CAS", task->cas, "Registrační číslo")->required()->type_name("CAS");
    command->add_option("--vzorec", task->formula, "Vzorec")->type_name("VZOREC");
    command->add_option("-o,--vystup", task->target, "Tabulka pro příkaz pridej; bez ní na výstup");
    command->footer("Ke každé hodnotě vypíše autora a rok; korelace jsou označeny jako odhad.");
    command->callback([task, &action] { action = [task] { return estimate(*task); }; });
}

}  // namespace velor::baze
