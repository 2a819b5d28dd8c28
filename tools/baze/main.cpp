// velor-baze: the command line of the database compiler.
#include <CLI/CLI.hpp>
#include <csignal>
#include <cstdint>
#include <filesystem>
#include <iostream>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

#include "baze/compile.h"
#include "baze/decompile.h"
#include "object/configuration_file.h"  // the compiler writes the CFG file that the library reads
#include "shared/files.h"
#include "velor/run_time_error.h"
#include "velor/text.h"

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

// Far more than all substances that there are numbers for.
constexpr std::uintmax_t kMostBytes = 64U << 20U;

void requireModestSize(const std::string& path) {
    std::error_code unknown;
    const std::uintmax_t size = std::filesystem::file_size(systemPath(path), unknown);
    if (!unknown && size > kMostBytes)
        throw Failure(path + ": soubor má " + std::to_string(size) + " bajtů, přijímá se nejvýše " +
                      std::to_string(kMostBytes));
}

std::string readFile(const std::string& path) {
    requireModestSize(path);
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

std::string fullPath(const std::string& path) {
    return utf8Path(std::filesystem::absolute(systemPath(path)).lexically_normal());
}

void requireConfigurable(const Task& task) {
    if (!task.configuration.empty() && !velor::isConfigurable(fullPath(task.database)))
        throw Failure(task.database + ": takovou cestu (uvozovky s čárkou, konec řádku) nelze zapsat do souboru CFG");
}

void writeConfiguration(const std::string& path, const std::string& database) {
    try {
        velor::writeConfiguredPath(path, fullPath(database));
    } catch (const RunTimeError& error) {
        throw Failure(path + ": " + inCzech(error));
    }
}

void report(const std::string& path, const velor::baze::LineFaults& faults) {
    for (const auto& fault : faults)
        std::cerr << velor::printable(path + ':' + std::to_string(fault.line) + ": " + fault.reason) << '\n';
}

int compile(const Task& task) {
    requireConfigurable(task);
    const std::string substances = pathIn(task.folder, velor::baze::kSubstancesFile);
    const std::string correlations = pathIn(task.folder, velor::baze::kCorrelationsFile);
    const auto checks = task.formOnly ? velor::baze::Checks::FormOnly : velor::baze::Checks::Full;
    const std::string substanceText = readFile(substances);
    const std::string correlationText = readFile(correlations);
    const auto result = velor::baze::compile(substanceText, correlationText, checks);
    if (!result.succeeded()) {
        report(substances, result.substanceFaults);
        report(correlations, result.correlationFaults);
        if (result.hasMoreFaults)
            std::cerr << "Chyb je více než " << velor::baze::LineFaults::kMost << ", čtení skončilo.\n";
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

int perform(const CLI::App& app, const Task& task) {
    return app.got_subcommand("sestav") ? compile(task) : decompile(task);
}

int run(int argc, char** argv) {
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
        return perform(app, task);
    } catch (const CLI::CallForHelp& help) {
        return app.exit(help);
    } catch (const CLI::ParseError& error) {
        std::cerr << "velor-baze: " << inCzech(error, app) << "\nNápověda: velor-baze --help\n";
        return kWrongCommandLine;
    } catch (const Failure& failure) {
        std::cerr << velor::printable(failure.what()) << '\n';
    } catch (const std::filesystem::filesystem_error&) {
        std::cerr << velor::printable(task.folder) << ": složku nelze založit nebo přečíst\n";
    } catch (const std::bad_alloc&) {
        std::cerr << "velor-baze: nedostatek paměti\n";
    } catch (const std::exception& error) {
        std::cerr << "velor-baze: neočekávaná chyba: " << velor::printable(error.what()) << '\n';
    }
    return kFailed;
}

}  // namespace

int main(int argc, char** argv) {
#ifdef SIGPIPE
    // A reader that went away is an output that cannot be written, not a reason to be killed.
    std::signal(SIGPIPE, SIG_IGN);
#endif
    const int code = run(argc, argv);
    if (std::cout << std::flush) return code;
    std::cerr << "velor-baze: výsledek se nepodařilo zapsat na výstup\n";
    return kFailed;
}
