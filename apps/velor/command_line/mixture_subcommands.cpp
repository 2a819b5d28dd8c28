#include "command_line/help.h"
#include "command_line/options.h"
#include "command_line/typed_values.h"
#include "people/people.h"

namespace velor::app {

namespace {

constexpr const char* kNormalPressure = "tlak v pascalech, jinak 101325";

[[noreturn]] void refuse(const std::string& text) { throw Failure(ExitCode::WrongUse, text); }

decltype(Request::question) flashQuestion(const Arguments& arguments) {
    if (!arguments.asking) {
        return FlashRequest{compositionOf(arguments), arguments.adiabatic,
                            parseTemperature(required(arguments.temperature, "--teplota")),
                            pressureOrNormal(arguments)};
    }
    const bool isGiven = arguments.fractions || arguments.temperature || arguments.pressure || arguments.adiabatic ||
                         arguments.byMass || arguments.normalise;
    if (isGiven) refuse("S přepínačem --interaktivne zadejte jen --latky; na ostatní se program zeptá.");
    return AskingFlashRequest{arguments.substances};
}

decltype(Request::question) mixtureQuestion(const Arguments& arguments, const CLI::Option* substances) {
    const bool isNamed = substances->count() > 0;
    if (!arguments.dialog) {
        if (!isNamed) refuse(missingText("--latky"));
        return MixtureRequest{compositionOf(arguments), pressureOrNormal(arguments)};
    }
    if (isNamed || arguments.fractions || arguments.byMass || arguments.normalise)
        refuse("S přepínačem --dialog zadejte nejvýše -P; na látky a složení se program zeptá.");
    return MixtureDialogRequest{pressureOrNormal(arguments)};
}

}  // namespace

void addMixtureCommand(CLI::App& program, Arguments& arguments) {
    CLI::App* command = program.add_subcommand("smes", "složení, pseudokritické veličiny, bod varu a rosný bod směsi")
                            ->group(kCommands);
    const CLI::Option* substances = addSubstances(command, arguments);
    addComposition(command, arguments);
    addPressure(command, arguments, kNormalPressure);
    command->add_flag("--dialog", arguments.dialog, "na látky a složení se zeptá a nabídne výpočet flash")
        ->group(kOptions);
    addCommonOptions(command, arguments);
    command->footer(
        "Povinné je buď --latky, nebo --dialog. Dialog zabere celou obrazovku terminálu;\n"
        "kde žádný není, ptá se po řádcích.\n"
        "Příklady: velor smes --latky benzen,toluen --slozeni 0.5,0.5\n"
        "          velor smes --dialog -P 200000");
    command->callback([&, substances] { arguments.question = mixtureQuestion(arguments, substances); });
}

void addOverviewCommand(CLI::App& program, Arguments& arguments) {
    CLI::App* command = program.add_subcommand("prehled", "všechny vlastnosti směsi v jednom stavu")->group(kCommands);
    addSubstances(command, arguments)->required();
    addComposition(command, arguments);
    addTemperature(command, arguments, "teplota v kelvinech, jinak 298.15");
    addPressure(command, arguments, kNormalPressure);
    addClamp(command, arguments);
    addCommonOptions(command, arguments);
    command->footer(
        "Pod bodem varu vypíše vlastnosti kapaliny, nad rosným bodem vlastnosti plynu, mezi nimi oboje.\n"
        "Příklad: velor prehled --latky benzen,toluen --slozeni 0.5,0.5 -T 350");
    command->callback([&] {
        arguments.question = OverviewRequest{compositionOf(arguments), temperatureOrUsual(arguments),
                                             pressureOrNormal(arguments), arguments.clamp};
    });
}

void addEquilibriumCommand(CLI::App& program, Arguments& arguments) {
    CLI::App* command =
        program.add_subcommand("rovnovaha", "bod varu a rosný bod dvou látek podle složení (ideální směs)")
            ->group(kCommands);
    addSubstances(command, arguments)->required();
    addPressure(command, arguments, kNormalPressure);
    command->add_option("--body", arguments.points, "počet bodů, jinak 21")->option_text("POČET")->group(kOptions);
    command->add_option("--graf", arguments.picture, "místo tabulky nakreslí obrázek .svg nebo .png")
        ->option_text(kPictureValue)
        ->group(kOptions);
    addCommonOptions(command, arguments);
    command->footer("Příklad: velor rovnovaha --latky benzen,toluen --body 11");
    command->callback([&] {
        constexpr int kMostPoints = 1001;
        EquilibriumRequest request{arguments.substances,
                                   pressureOrNormal(arguments),
                                   typedCount(arguments.points, "Počet bodů", 2, kMostPoints),
                                   {}};
        if (arguments.picture) request.pictureFile = pictureFileName(*arguments.picture);
        arguments.question = std::move(request);
    });
}

void addGraphCommand(CLI::App& program, Arguments& arguments) {
    CLI::App* command =
        program.add_subcommand("graf", "nakreslí vlastnost látek nebo směsi proti teplotě")->group(kCommands);
    command->add_option(kPropertyValue, arguments.property, "zkratka vlastnosti, viz velor vlastnost --seznam")
        ->required()
        ->group(kOptions);
    addSubstances(command, arguments)->required();
    addComposition(command, arguments);
    addTemperatures(command, arguments);
    addPressure(command, arguments, "tlak v pascalech, pokud jej vlastnost potřebuje");
    addClamp(command, arguments);
    command->add_option("--vystup", arguments.picture, "soubor obrázku .svg nebo .png")
        ->option_text(kPictureValue)
        ->required()
        ->group(kOptions);
    addCommonOptions(command, arguments);
    command->footer(
        "Bez --slozeni kreslí křivku každé látky, se --slozeni křivku jejich směsi.\n"
        "Příklad: velor graf TENS --latky voda,ethanol -T 280:380:2 --vystup tenze.svg");
    command->callback([&] {
        arguments.question =
            GraphRequest{propertyRequest(arguments), pictureFileName(required(arguments.picture, "--vystup"))};
    });
}

void addFlashCommand(CLI::App& program, Arguments& arguments) {
    CLI::App* command =
        program.add_subcommand("flash", "rozdělení nástřiku na páru a kapalinu (ideální směs)")->group(kCommands);
    addSubstances(command, arguments)->required();
    addComposition(command, arguments);
    addTemperature(command, arguments, "teplota v kelvinech; při --adiabaticky teplota kapalného nástřiku");
    addPressure(command, arguments, kNormalPressure);
    command->add_flag("--adiabaticky", arguments.adiabatic, "konečnou teplotu určí z tepelné bilance")->group(kOptions);
    command->add_flag("--interaktivne", arguments.asking, "na složení, teplotu a tlak se zeptá")->group(kOptions);
    addCommonOptions(command, arguments);
    command->footer("Příklad: velor flash --latky pentan,hexan,heptan --slozeni 0.3,0.3,0.4 -T 340");
    command->callback([&] { arguments.question = flashQuestion(arguments); });
}

}  // namespace velor::app
