#include <string_view>

#include "command_line/help.h"
#include "completion/completion.h"
#include "velor/text.h"

namespace velor::app {

namespace {

constexpr std::size_t kDescriptionColumn = 28;

class CzechFormatter : public CLI::Formatter {
  public:
    CzechFormatter() {
        label("Usage", "Použití");
        label("OPTIONS", "PŘEPÍNAČE");
        label("SUBCOMMAND", "PŘÍKAZ");
        label("SUBCOMMANDS", "PŘÍKAZY");
        label("Positionals", "Co zadat");
        label("REQUIRED", "(povinné)");
        column_width(kDescriptionColumn);
    }

    std::string make_option(const CLI::Option* option, bool isPositional) const override {
        return definition(make_option_name(option, isPositional) + make_option_opts(option), make_option_desc(option));
    }

    std::string make_subcommand(const CLI::App* command) const override {
        return definition(command->get_name(), command->get_description());
    }

    // Only the name of the value; that a text is wanted and may be repeated needs no word.
    std::string make_option_opts(const CLI::Option* option) const override {
        std::string text = option->get_option_text().empty() ? "" : " " + option->get_option_text();
        if (option->get_required() && !option->get_positional()) text += " " + get_label("REQUIRED");
        return text;
    }

    std::string make_option_usage(const CLI::Option* option) const override {
        const std::string name = make_option_name(option, true);
        return option->get_required() ? name : "[" + name + "]";
    }
};

std::string_view behind(std::string_view text, std::string_view mark) {
    const std::size_t position = text.find(mark);
    return position == std::string_view::npos ? text : text.substr(position + mark.size());
}

std::string_view before(std::string_view text, std::string_view mark) { return text.substr(0, text.find(mark)); }

}  // namespace

// The library's own formatter counts bytes, so that Czech descriptions would not stand in one column.
std::string definition(const std::string& name, const std::string& description) {
    std::string text = "  " + name;
    const std::size_t width = characterCount(text);
    if (width + 2 > kDescriptionColumn) {
        text += '\n' + std::string(kDescriptionColumn, ' ');
    } else {
        text += std::string(kDescriptionColumn - width, ' ');
    }
    for (const char c : description) {
        text += c;
        if (c == '\n') text += std::string(kDescriptionColumn, ' ');
    }
    return text + "\n";
}

std::shared_ptr<CLI::Formatter> czechFormatter() { return std::make_shared<CzechFormatter>(); }

std::string missingText(std::string_view name) {
    constexpr auto kExamples = std::to_array<std::pair<std::string_view, std::string_view>>(
        {{"--latky", "--latky voda,ethanol"},
         {"--teplota", "-T 300"},
         {"--vystup", "--vystup graf.svg"},
         {kSubstanceValue, "voda"},
         {kPropertyValue, "TENS; všechny vypíše velor vlastnost --seznam"}});
    std::string text = "Chybí povinný údaj " + std::string(name) + ".";
    for (const auto& [missing, example] : kExamples)
        if (missing == name) text.append(" Zadejte např. ").append(example);
    return text;
}

std::string czechParseError(const CLI::ParseError& error) {
    const std::string_view text = error.what();
    switch (static_cast<CLI::ExitCodes>(error.get_exit_code())) {
        case CLI::ExitCodes::RequiredError:
            if (text == "A subcommand is required") return "Chybí příkaz.";
            return missingText(before(text, " is required"));
        case CLI::ExitCodes::ExtrasError:
            return "Nečekaný údaj: " + std::string(behind(text, ": "));
        case CLI::ExitCodes::ArgumentMismatch:
            return "Přepínač " + std::string(before(text, ":")) +
                   (text.find("At Most") == std::string_view::npos ? " nemá hodnotu." : " je zadán vícekrát.");
        default:
            return "Příkazové řádce nelze rozumět (" + std::string(text) + ").";
    }
}

}  // namespace velor::app
