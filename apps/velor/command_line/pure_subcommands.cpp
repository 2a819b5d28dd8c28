#include "command_line/help.h"
#include "command_line/options.h"
#include "people/people.h"
#include "velor/text.h"

namespace velor::app {

namespace {

void requireProperty(const CLI::Option* property, const CLI::Option* substances) {
    for (const CLI::Option* option : {property, substances}) {
        const std::string name = option->get_positional() ? option->get_name(true) : option->get_name();
        if (option->count() == 0) throw Failure(ExitCode::WrongUse, missingText(name));
    }
}

bool isByNumber(const std::string& order) {
    const std::string word = folded(order);
    if (word == folded(kOrderByNumber)) return true;
    if (word == folded(kOrderByName)) return false;
    throw Failure(ExitCode::WrongUse, "Seznam lze řadit podle nazvu nebo cisel, zadáno: „" + order + "“.");
}

}  // namespace

void addSubstanceListCommand(CLI::App& program, Arguments& arguments) {
    CLI::App* command =
        program.add_subcommand("seznam", "seznam látek v bázi, celý nebo s hledaným textem")->group(kCommands);
    command
        ->add_option("TEXT", arguments.substance,
                     "vypíše jen řádky, které jej obsahují (číslo, název, synonymum,\n"
                     "vzorec, CAS), bez ohledu na velikost písmen a diakritiku")
        ->group(kOptions);
    command->add_option("--podle", arguments.order, "řazení podle nazvu (výchozí) nebo podle cisel")
        ->option_text(kOrderValue)
        ->group(kOptions);
    addCommonOptions(command, arguments);
    command->footer(
        "Na terminálu se celý seznam otevře k prohlížení a hledání, Enter ukáže látku; jinam se vypíše.\n"
        "Celý seznam se také zapíše do souboru SEZNAM.DAT vedle databáze, pokud je tam zápis dovolen.\n"
        "Příklad: velor seznam kyselina");
    command->callback([&] {
        arguments.question = SubstanceListRequest{joinedSubstance(arguments), isByNumber(arguments.order)};
    });
}

void addSubstanceCommand(CLI::App& program, Arguments& arguments) {
    CLI::App* command = program.add_subcommand("latka", "názvy, konstanty a korelace jedné látky")->group(kCommands);
    addSubstance(command, arguments);
    addCommonOptions(command, arguments);
    command->footer("Příklad: velor latka ethanol");
    command->callback([&] { arguments.question = SubstanceRequest{joinedSubstance(arguments)}; });
}

void addTourCommand(CLI::App& program, Arguments& arguments) {
    CLI::App* command =
        program.add_subcommand("ukazka", "konstanty látky a všech jejích deset vlastností")->group(kCommands);
    addSubstance(command, arguments);
    addTemperature(command, arguments, "teplota v kelvinech, jinak 298.15");
    addCommonOptions(command, arguments);
    command->footer("Příklad: velor ukazka benzen -T 350");
    command->callback([&] {
        arguments.question = TourRequest{joinedSubstance(arguments), temperatureOrUsual(arguments)};
    });
}

void addPropertyCommand(CLI::App& program, Arguments& arguments) {
    CLI::App* command =
        program.add_subcommand("vlastnost", "vlastnost látek nebo směsi při zadaných teplotách")->group(kCommands);
    std::string codes = "zkratka vlastnosti směsi (viz --seznam) nebo čisté látky:";
    for (const PureProperty& property : pureProperties())
        codes.append("\n").append(property.code).append(7 - property.code.size(), ' ').append(property.caption);
    const CLI::Option* property = command->add_option(kPropertyValue, arguments.property, codes)->group(kOptions);
    const CLI::Option* substances = addSubstances(command, arguments);
    addComposition(command, arguments);
    addTemperatures(command, arguments);
    addPressure(command, arguments, "tlak v pascalech, pokud jej vlastnost potřebuje");
    addClamp(command, arguments);
    command->add_flag("--seznam", arguments.list, "vypíše všechny vlastnosti směsí: jednotky, pravidla, co zadat")
        ->group(kOptions);
    addCommonOptions(command, arguments);
    command->footer(
        "Bez --slozeni se počítá každá látka zvlášť, se --slozeni jejich směs.\n"
        "Příklady: velor vlastnost TENS --latky voda,ethanol -T 300:370:10\n"
        "          velor vlastnost ROLW --latky voda,ethanol --slozeni 0.4,0.6 -T 300\n"
        "          velor vlastnost RHGW --latky propan -T 350 -P 1e6");
    command->callback([&arguments, property, substances] {
        if (arguments.list) {
            arguments.question = PropertyListRequest{};
            return;
        }
        requireProperty(property, substances);
        std::visit([&](auto request) { arguments.question = std::move(request); }, propertyRequest(arguments));
    });
}

}  // namespace velor::app
