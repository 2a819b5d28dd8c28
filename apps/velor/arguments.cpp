#include "arguments.h"

#include "czech_help.h"
#include "failure.h"
#include "pure_property.h"
#include "temperatures.h"
#include "velor/version.h"

namespace velor::app {

namespace {

constexpr const char* kOptions = "Přepínače";
constexpr const char* kCommands = "Příkazy";
constexpr const char* kWaysToName =
    "číslo v bázi, český nebo jiný název (i jeho jedinečná část,\n"
    "bez ohledu na velikost písmen a diakritiku), vzorec, číslo CAS";

// What stands on the command line, and the question that the command given makes of it.
struct Arguments {
    std::vector<std::string> substance;
    std::string property;
    std::string substances;
    std::string temperatures;
    std::string temperature = "298.15";
    bool clamp = false;
    std::string database;
    bool csv = false;
    bool json = false;
    decltype(Request::question) question;
};

std::string version() {
    return "velor " + std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." +
           std::to_string(kVersionRevision);
}

// On the program and on each command, so that they may stand before it and behind it.
void addCommonOptions(CLI::App* app, Arguments& arguments) {
    app->set_help_flag("-h,--help", "vypíše tuto nápovědu")->group(kOptions);
    app->add_option("--baze", arguments.database, "použije tento soubor databáze látek")
        ->option_text("SOUBOR")
        ->group(kOptions);
    app->add_flag("--csv", arguments.csv, "výstup jako CSV (oddělovač čárka, desetinná tečka)")->group(kOptions);
    app->add_flag("--json", arguments.json, "výstup jako JSON")->group(kOptions);
}

// A name of several words needs no quotes.
std::string joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) text += (text.empty() ? "" : " ") + word;
    return text;
}

void addSubstanceCommand(CLI::App& program, Arguments& arguments) {
    CLI::App* command = program.add_subcommand("latka", "názvy, konstanty a korelace jedné látky")->group(kCommands);
    command->add_option("LÁTKA", arguments.substance, kWaysToName)->required()->group(kOptions);
    addCommonOptions(command, arguments);
    command->footer("Příklad: velor latka ethanol");
    command->callback([&] { arguments.question = SubstanceRequest{joined(arguments.substance)}; });
}

void addPropertyCommand(CLI::App& program, Arguments& arguments) {
    CLI::App* command = program.add_subcommand("vlastnost", "vlastnost látek při zadaných teplotách")->group(kCommands);
    std::string codes = "zkratka vlastnosti:";
    for (const PureProperty& property : pureProperties())
        codes.append("\n").append(property.code).append(7 - property.code.size(), ' ').append(property.caption);
    command->add_option("VLASTNOST", arguments.property, codes)->required()->group(kOptions);
    command
        ->add_option("--latky", arguments.substances,
                     std::string("látky oddělené čárkou nebo středníkem:\n") + kWaysToName)
        ->option_text("LÁTKY")
        ->required()
        ->group(kOptions);
    command
        ->add_option("-T,--teplota", arguments.temperatures,
                     "teploty v kelvinech: jedna, seznam 300,310,320\nnebo rozsah OD:DO:KROK, např. 300:400:10")
        ->option_text("TEPLOTY")
        ->required()
        ->group(kOptions);
    command->add_flag("--meze", arguments.clamp, "mimo rozsah platnosti korelace počítá na jeho mezi")->group(kOptions);
    addCommonOptions(command, arguments);
    command->footer("Příklad: velor vlastnost TENS --latky voda,ethanol -T 300:370:10");
    command->callback([&] {
        arguments.question = PropertyRequest{findPureProperty(arguments.property).number, arguments.substances,
                                             parseTemperatures(arguments.temperatures), arguments.clamp};
    });
}

void addTourCommand(CLI::App& program, Arguments& arguments) {
    CLI::App* command =
        program.add_subcommand("ukazka", "konstanty látky a všech jejích deset vlastností")->group(kCommands);
    command->add_option("LÁTKA", arguments.substance, kWaysToName)->required()->group(kOptions);
    command->add_option("-T,--teplota", arguments.temperature, "teplota v kelvinech, jinak 298.15")
        ->option_text("TEPLOTA")
        ->group(kOptions);
    addCommonOptions(command, arguments);
    command->footer("Příklad: velor ukazka benzen -T 350");
    command->callback([&] {
        arguments.question = TourRequest{joined(arguments.substance), parseTemperature(arguments.temperature)};
    });
}

OutputForm outputForm(const Arguments& arguments) {
    if (arguments.csv && arguments.json) throw Failure(ExitCode::WrongUse, "Zvolte buď --csv, nebo --json.");
    if (arguments.csv) return OutputForm::Csv;
    return arguments.json ? OutputForm::Json : OutputForm::Text;
}

// An empty text is a choice too: it must not fall back on the usual database.
std::optional<std::string> chosenDatabase(const CLI::App& program, const Arguments& arguments) {
    std::size_t count = program.count("--baze");
    for (const CLI::App* command : program.get_subcommands()) count += command->count("--baze");
    if (count == 0) return std::nullopt;
    return arguments.database;
}

}  // namespace

std::variant<Request, ReadyAnswer> parseArguments(int argc, const char* const* argv) {
    Arguments arguments;
    CLI::App program("VELOR – fyzikální vlastnosti látek", "velor");
    program.formatter(czechFormatter());
    addCommonOptions(&program, arguments);
    program.set_version_flag("--verze", version(), "vypíše verzi")->group(kOptions);
    program.require_subcommand(1);
    program.footer(
        "Nápověda k příkazu: velor PŘÍKAZ --help\n"
        "Návratový kód: 0 v pořádku, 1 nic nebylo vypočteno nebo nalezeno, 2 chybné zadání, 3 chybí databáze.");
    addSubstanceCommand(program, arguments);
    addPropertyCommand(program, arguments);
    addTourCommand(program, arguments);
    try {
        program.parse(argc, argv);
    } catch (const CLI::CallForHelp&) {
        return program.help();
    } catch (const CLI::CallForVersion&) {
        return version() + "\n";
    } catch (const CLI::ParseError& error) {
        const auto unknown = program.remaining();
        const std::string text = program.get_subcommands().empty() && !unknown.empty()
                                     ? "Neznámý příkaz nebo přepínač „" + unknown.front() + "“."
                                     : czechParseError(error);
        throw Failure(ExitCode::WrongUse, text + "\nNápověda: velor --help");
    }
    return Request{chosenDatabase(program, arguments), outputForm(arguments), arguments.question};
}

}  // namespace velor::app
