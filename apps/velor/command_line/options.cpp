#include "command_line/options.h"

#include "command_line/help.h"
#include "command_line/typed_values.h"
#include "people/people.h"

namespace velor::app {

namespace {

constexpr double kNormalPressure = 101325;  // Pa
constexpr double kUsualTemperature = 298.15;

[[noreturn]] void refuse(const std::string& text) { throw Failure(ExitCode::WrongUse, text); }

void requireNoCompositionFlags(const Arguments& arguments) {
    if (arguments.byMass) refuse("Přepínač --hmotove patří ke složení (--slozeni).");
    if (arguments.normalise) refuse("Přepínač --normalizovat patří ke složení (--slozeni).");
}

MixturePropertyRequest mixtureRequest(const MixtureProperty& property, const Arguments& arguments) {
    MixturePropertyRequest request{&property, compositionOf(arguments), {}, pressureOf(arguments), arguments.clamp};
    if (property.needsPressure && !request.pressure)
        refuse("Vlastnost " + std::string(property.code) + " potřebuje tlak: -P TLAK (v pascalech), např. -P 101325.");
    if (property.needsTemperature)
        request.temperatures = parseTemperatures(required(arguments.temperature, "--teplota"));
    return request;
}

}  // namespace

CLI::Option* addSubstance(CLI::App* command, Arguments& arguments) {
    return command->add_option(kSubstanceValue, arguments.substance, kWaysToName)->required()->group(kOptions);
}

CLI::Option* addSubstances(CLI::App* command, Arguments& arguments) {
    return command
        ->add_option("--latky", arguments.substances,
                     std::string("látky oddělené čárkou nebo středníkem:\n") + kWaysToName)
        ->option_text(kSubstancesValue)
        ->group(kOptions);
}

void addComposition(CLI::App* command, Arguments& arguments) {
    command
        ->add_option("--slozeni", arguments.fractions,
                     "molové zlomky v pořadí látek: 0.4,0.6 nebo 0,4;0,6\n(jediná látka složení nepotřebuje)")
        ->option_text("ZLOMKY")
        ->group(kOptions);
    command->add_flag("--hmotove", arguments.byMass, "zlomky složení jsou hmotnostní")->group(kOptions);
    command
        ->add_flag("--normalizovat", arguments.normalise,
                   "zlomky, jejichž součet není 1, vydělí součtem\n(jinak se odmítnou)")
        ->group(kOptions);
}

void addTemperatures(CLI::App* command, Arguments& arguments) {
    command
        ->add_option("-T,--teplota", arguments.temperature,
                     "teploty v kelvinech: jedna, seznam 300,310,320\nnebo rozsah OD:DO:KROK, např. 300:400:10")
        ->option_text("TEPLOTY")
        ->group(kOptions);
}

void addTemperature(CLI::App* command, Arguments& arguments, const std::string& description) {
    command->add_option("-T,--teplota", arguments.temperature, description)->option_text("TEPLOTA")->group(kOptions);
}

void addPressure(CLI::App* command, Arguments& arguments, const std::string& description) {
    command->add_option("-P,--tlak", arguments.pressure, description)->option_text("TLAK")->group(kOptions);
}

void addClamp(CLI::App* command, Arguments& arguments) {
    command->add_flag("--meze", arguments.clamp, "mimo rozsah platnosti korelace počítá na jeho mezi")->group(kOptions);
}

std::string joinedSubstance(const Arguments& arguments) {
    std::string text;
    for (const std::string& word : arguments.substance) text += (text.empty() ? "" : " ") + word;
    return text;
}

const std::string& required(const std::optional<std::string>& value, const std::string& option) {
    if (!value) refuse(missingText(option));
    return *value;
}

CompositionRequest compositionOf(const Arguments& arguments) {
    CompositionRequest request{arguments.substances, {}, arguments.byMass, arguments.normalise};
    if (arguments.fractions) {
        request.fractions = typedFractions(*arguments.fractions);
    } else {
        requireNoCompositionFlags(arguments);
    }
    return request;
}

std::optional<double> pressureOf(const Arguments& arguments) {
    if (!arguments.pressure) return std::nullopt;
    return typedPressure(*arguments.pressure);
}

double pressureOrNormal(const Arguments& arguments) { return pressureOf(arguments).value_or(kNormalPressure); }

double temperatureOrUsual(const Arguments& arguments) {
    return arguments.temperature ? parseTemperature(*arguments.temperature) : kUsualTemperature;
}

std::variant<PropertyRequest, MixturePropertyRequest> propertyRequest(const Arguments& arguments) {
    const MixtureProperty& property = wantedProperty(arguments.property);
    const PureProperty* const pure = findPureProperty(property.code);
    if (!pure || arguments.fractions) return mixtureRequest(property, arguments);
    requireNoCompositionFlags(arguments);
    pressureOf(arguments);  // not needed, but not to be nonsense either
    return PropertyRequest{pure, arguments.substances, parseTemperatures(required(arguments.temperature, "--teplota")),
                           arguments.clamp};
}

}  // namespace velor::app
