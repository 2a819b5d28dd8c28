#include "command_line/command_line.h"
#include "command_line/help.h"
#include "command_line/options.h"
#include "command_line/typed_values.h"
#include "people/people.h"
#include "velor/version.h"

namespace velor::app {

namespace {

constexpr const char* kCompletionCommand = "doplneni";
constexpr const char* kManualCommand = "prirucka";

std::string version() {
    return "velor " + std::to_string(kVersionMajor) + "." + std::to_string(kVersionMinor) + "." +
           std::to_string(kVersionRevision);
}

OutputForm outputForm(const Arguments& arguments) {
    const bool isCsv = arguments.csv || arguments.safeCsv;
    if (isCsv && arguments.json) throw Failure(ExitCode::WrongUse, "Zvolte buď --csv, nebo --json.");
    if (arguments.safeCsv) return OutputForm::SafeCsv;
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

std::string definitions(std::span<const Convention> entries) {
    std::string text;
    for (const auto& [name, meaning] : entries) text += definition(std::string(name), std::string(meaning));
    return text;
}

// For the shell and for the build; nobody types them, so the help passes them over.
void addHiddenCommands(CLI::App& program, Arguments& arguments) {
    CLI::App* completion = program.add_subcommand(kCompletionCommand)->group("");
    completion->add_flag("--vypis", arguments.completion.isList);
    completion->add_option("ODDĚLOVAČE", arguments.completion.wordBreaks)->required();
    completion->add_option("PŘED", arguments.completion.before)->required();
    completion->add_option("ZA", arguments.completion.behind);
    program.add_subcommand(kManualCommand)->group("");
}

void describeProgram(CLI::App& program, Arguments& arguments) {
    program.formatter(czechFormatter());
    addCommonOptions(&program, arguments);
    program.set_version_flag("--verze", version(), "vypíše verzi")->group(kOptions);
    program.require_subcommand(1);
    program.footer("Návratový kód:\n" + definitions(kExitCodes) + "\nSoubory:\n" + definitions(kFiles) +
                   "\nNápověda k příkazu: velor PŘÍKAZ --help");
    addSubstanceListCommand(program, arguments);
    addSubstanceCommand(program, arguments);
    addPropertyCommand(program, arguments);
    addTourCommand(program, arguments);
    addMixtureCommand(program, arguments);
    addOverviewCommand(program, arguments);
    addEquilibriumCommand(program, arguments);
    addFlashCommand(program, arguments);
    addGraphCommand(program, arguments);
    addHiddenCommands(program, arguments);
}

std::optional<ReadyAnswer> hiddenAnswer(const CLI::App& program, const Arguments& arguments) {
    if (program.got_subcommand(kCompletionCommand)) {
        constexpr double kPatience = 3.0;  // s; a shell waits for it with every key
        const TimeLimit limit(kPatience);
        return completionText(program, arguments.completion);
    }
    if (program.got_subcommand(kManualCommand)) return manualPage(program, version());
    return std::nullopt;
}

[[noreturn]] void refuse(const CLI::App& program, const std::string& text) {
    const auto commands = program.get_subcommands();
    const std::string command = commands.empty() ? "" : commands.front()->get_name() + " ";
    throw Failure(ExitCode::WrongUse, text + "\nNápověda: velor " + command + "--help");
}

}  // namespace

void addCommonOptions(CLI::App* app, Arguments& arguments) {
    app->set_help_flag("-h,--help", "vypíše tuto nápovědu")->group(kOptions);
    app->add_option("--baze", arguments.database, "použije tento soubor databáze látek")
        ->option_text(kFileValue)
        ->group(kOptions);
    app->add_option("--limit", arguments.timeLimit, "nejdelší doba výpočtu v sekundách, jinak 60")
        ->option_text("SEKUNDY")
        ->group(kOptions);
    app->add_flag("--csv", arguments.csv, "výstup jako CSV (oddělovač čárka, desetinná tečka)")->group(kOptions);
    app->add_flag("--bezpecne-csv", arguments.safeCsv,
                  "CSV pro tabulkový procesor: text, který by vzal za vzorec,\nzačíná apostrofem")
        ->group(kOptions);
    app->add_flag("--json", arguments.json, "výstup jako JSON")->group(kOptions);
}

std::variant<Request, ReadyAnswer> parseArguments(int argc, const char* const* argv) {
    Arguments arguments;
    CLI::App program("VELOR – fyzikální vlastnosti látek a směsí", "velor");
    describeProgram(program, arguments);
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
        refuse(program, text);
    } catch (const Failure& failure) {
        refuse(program, failure.what());
    }
    if (auto answer = hiddenAnswer(program, arguments)) return *std::move(answer);
    return Request{chosenDatabase(program, arguments), outputForm(arguments), typedSeconds(arguments.timeLimit),
                   arguments.question};
}

}  // namespace velor::app
