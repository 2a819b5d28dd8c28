// velor-baze: what stands in databases of substances, and how to make them.
#include <csignal>
#include <filesystem>
#include <iostream>
#include <memory>
#include <new>
#include <string>

#include "commands/commands.h"
#include "shared/files.h"
#include "velor/text.h"

namespace {

using namespace velor::baze;

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

std::string inCzech(const CLI::ParseError& error, const CLI::App& app) {
    if (dynamic_cast<const CLI::ExtrasError*>(&error) != nullptr) {
        const auto surplus = app.remaining(true);
        return "neznámý příkaz, volba nebo argument navíc: " + (surplus.empty() ? "?" : surplus.front());
    }
    if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr)
        return app.get_subcommands().empty() ? "chybí příkaz" : "chybí povinný argument";
    if (dynamic_cast<const CLI::ConversionError*>(&error) != nullptr) return "hodnota volby není číslo";
    return "volba má mít právě jednu hodnotu";
}

int run(int argc, char** argv) {
    Action action;
    CLI::App app("Báze látek: sestavení z textu, rozložení, kontrola");
    app.name("velor-baze");
    app.formatter(czechFormatter());
    app.option_defaults()->group("Volby");
    app.set_help_flag("-h,--help", "Vypíše tuto nápovědu");
    app.require_subcommand(1);
    for (const auto add : {addCompile, addDecompile, addOwnSubstancesCommand, addTemplateCommand, addFit, addEstimate,
                           addAccuracy, addConsistency})
        add(app, action);
    try {
        app.parse(argc, argv);
        return action();
    } catch (const CLI::CallForHelp& help) {
        return app.exit(help);
    } catch (const CLI::ParseError& error) {
        std::cerr << "velor-baze: " << inCzech(error, app) << "\nNápověda: velor-baze --help\n";
        return kWrongCommandLine;
    } catch (const Failure& failure) {
        std::cerr << velor::printable(failure.what()) << '\n';
    } catch (const std::filesystem::filesystem_error& error) {
        std::cerr << velor::printable(velor::app::utf8Path(error.path1())) << ": nelze založit nebo přečíst\n";
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
