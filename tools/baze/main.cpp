// velor-baze: the command line of the database compiler.
#include <CLI/CLI.hpp>
#include <filesystem>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "baze/compile.h"
#include "baze/decompile.h"
#include "object/configuration_file.h"  // the compiler writes the CFG file that the library reads
#include "shared/files.h"
#include "velor/run_time_error.h"

namespace {

using velor::RunTimeError;
using velor::app::systemPath;
using velor::app::utf8Path;

constexpr int kFailed = 1;
constexpr int kWrongCommandLine = 2;

struct Task {
    std::string folder;
    std::string database;
    std::string configuration;
    bool formOnly = false;
};

// Something that stops the program, already in words for the user.
class Failure : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

std::string pathIn(const std::string& folder, std::string_view name) {
    return utf8Path(systemPath(folder) / systemPath(std::string(name)));
}

std::string inCzech(const RunTimeError& error) {
    switch (error.number()) {
        case RunTimeError::kFileNotFound:
            return "soubor neexistuje";
        case RunTimeError::kPermissionDenied:
            return "přístup odepřen";
        case RunTimeError::kPathNotFound:
            return "složka neexistuje";
        default:
            return "soubor nelze číst nebo zapsat";
    }
}

std::string readFile(const std::string& path) {
    try {
        return velor::app::readFile(path);
    } catch (const RunTimeError& error) {
        throw Failure(path + ": " + inCzech(error));
    }
}

void writeFile(const std::string& path, std::string_view content) {
    try {
        velor::app::replaceFile(path, content);
    } catch (const RunTimeError& error) {
        throw Failure(path + ": " + inCzech(error));
    }
}

void writeConfiguration(const std::string& path, const std::string& database) {
    try {
        velor::writeConfiguredPath(path, utf8Path(std::filesystem::absolute(systemPath(database)).lexically_normal()));
    } catch (const RunTimeError& error) {
        throw Failure(path + ": " + inCzech(error));
    }
}

void report(const std::string& path, const velor::baze::LineFaults& faults) {
    for (const auto& fault : faults) std::cerr << path << ':' << fault.line << ": " << fault.reason << '\n';
}

int compile(const Task& task) {
    const std::string substances = pathIn(task.folder, velor::baze::kSubstancesFile);
    const std::string correlations = pathIn(task.folder, velor::baze::kCorrelationsFile);
    const auto checks = task.formOnly ? velor::baze::Checks::FormOnly : velor::baze::Checks::Full;
    const std::string substanceText = readFile(substances);
    const std::string correlationText = readFile(correlations);
    const auto result = velor::baze::compile(substanceText, correlationText, checks);
    if (!result.succeeded()) {
        report(substances, result.substanceFaults);
        report(correlations, result.correlationFaults);
        return kFailed;
    }
    writeFile(task.database, result.bytes);
    if (!task.configuration.empty()) writeConfiguration(task.configuration, task.database);
    std::cout << task.database << ": látek " << result.substances << ", korelací " << result.correlations << '\n';
    return 0;
}

int decompile(const Task& task) {
    const auto text = velor::baze::decompile(readFile(task.database));
    if (!text.refusal.empty()) throw Failure(task.database + ": " + text.refusal);
    const std::string substances = pathIn(task.folder, velor::baze::kSubstancesFile);
    const std::string correlations = pathIn(task.folder, velor::baze::kCorrelationsFile);
    // Groups, sources and deviations are in no database; hand-kept tables would lose them.
    for (const std::string& path : {substances, correlations})
        if (std::filesystem::exists(systemPath(path))) throw Failure(path + ": soubor už existuje a nebude přepsán");
    std::filesystem::create_directories(systemPath(task.folder));
    writeFile(substances, text.substances);
    writeFile(correlations, text.correlations);
    return 0;
}

std::shared_ptr<CLI::Formatter> czechFormatter() {
    auto formatter = std::make_shared<CLI::Formatter>();
    formatter->label("Usage", "Použití");
    formatter->label("OPTIONS", "VOLBY");
    formatter->label("SUBCOMMAND", "PŘÍKAZ");
    formatter->label("Positionals", "Argumenty");
    formatter->label("REQUIRED", "(povinné)");
    formatter->label("TEXT", "SOUBOR");
    formatter->column_width(24);
    return formatter;
}

CLI::App* addCommand(CLI::App& app, const std::string& name, const std::string& description) {
    CLI::App* command = app.add_subcommand(name, description);
    command->group("Příkazy");
    command->get_help_ptr()->group("Volby");
    return command;
}

// The name says what it is; a type beside it would only repeat that.
void addArgument(CLI::App& command, const std::string& name, std::string& value, const std::string& description) {
    command.add_option(name, value, description)->required()->type_name("");
}

void addCompile(CLI::App& app, Task& task) {
    CLI::App* command = addCommand(app, "sestav", "Sestaví z textových tabulek bázi VELOR.DRC");
    addArgument(*command, "slozka", task.folder, "Složka se soubory latky.csv a korelace.csv");
    addArgument(*command, "baze", task.database, "Báze, která vznikne nebo bude nahrazena");
    command->add_flag("--bez-kontroly", task.formOnly,
                      "Nekontroluje obsah (CAS, rozmezí hodnot, typy rovnic ...), jen tvar;\n"
                      "je pro tabulky, které vznikly příkazem rozloz z cizí báze");
    command->add_option("--cfg", task.configuration, "Zapíše i soubor CFG s úplnou cestou k bázi");
    command->footer("Všechny chyby vypíše najednou jako soubor:řádek: důvod; bázi pak nezapíše a skončí s kódem 1.");
}

void addDecompile(CLI::App& app, Task& task) {
    CLI::App* command = addCommand(app, "rozloz", "Rozloží bázi VELOR.DRC zpět na textové tabulky, beze ztráty");
    addArgument(*command, "baze", task.database, "Báze k rozložení");
    addArgument(*command, "slozka", task.folder, "Složka pro latky.csv a korelace.csv; co v ní je, nepřepíše");
    command->footer(
        "Příkaz sestav z tabulek vytvoří tutéž bázi bajt po bajtu. Má-li báze obsah, který kontrolou neprojde,\n"
        "použijte s ním --bez-kontroly. Skupiny, zdroje a odchylky v bázi nejsou, jejich sloupce zůstanou prázdné.");
}

std::string inCzech(const CLI::ParseError& error, const CLI::App& app) {
    if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr) {
        const auto surplus = app.remaining(true);
        return "neznámý příkaz, volba nebo argument navíc: " + (surplus.empty() ? "?" : surplus.front());
    }
    if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr)
        return app.get_subcommands().empty() ? "chybí příkaz" : "chybí povinný argument";
    return "volba má mít právě jednu hodnotu";
}

}  // namespace

int main(int argc, char** argv) {
    Task task;
    CLI::App app("Překladač báze látek: text na VELOR.DRC a zpět");
    app.name("velor-baze");
    app.formatter(czechFormatter());
    app.option_defaults()->group("Volby");
    app.set_help_flag("-h,--help", "Vypíše tuto nápovědu");
    app.require_subcommand(1);
    addCompile(app, task);
    addDecompile(app, task);
    try {
        app.parse(argc, argv);
    } catch (const CLI::CallForHelp& help) {
        return app.exit(help);
    } catch (const CLI::ParseError& error) {
        std::cerr << "velor-baze: " << inCzech(error, app) << "\nNápověda: velor-baze --help\n";
        return kWrongCommandLine;
    }
    try {
        return app.got_subcommand("sestav") ? compile(task) : decompile(task);
    } catch (const Failure& failure) {
        std::cerr << failure.what() << '\n';
    } catch (const std::filesystem::filesystem_error&) {
        std::cerr << task.folder << ": složku nelze založit nebo přečíst\n";
    }
    return kFailed;
}
