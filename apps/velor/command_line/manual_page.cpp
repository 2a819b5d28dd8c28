#include <set>
#include <span>
#include <string_view>
#include <vector>

#include "command_line/help.h"
#include "velor/text.h"

namespace velor::app {

namespace {

std::string escaped(std::string_view text) {
    std::string result;
    for (const char c : text) {
        switch (c) {
            case '\\':
                result += "\\e";
                break;
            case '-':
                result += "\\-";
                break;
            case '\'':
                result += "\\(aq";
                break;
            case '`':
                result += "\\(ga";
                break;
            case '^':
                result += "\\(ha";
                break;
            case '~':
                result += "\\(ti";
                break;
            default:
                result += c;
        }
    }
    return result;
}

std::string bold(std::string_view text) { return "\\fB" + escaped(text) + "\\fR"; }
std::string italic(std::string_view text) { return "\\fI" + escaped(text) + "\\fR"; }

std::vector<std::string_view> linesOf(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        lines.push_back(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

// A line of text must not look like a request.
std::string textLine(std::string_view line) { return (line.starts_with('.') ? "\\&" : "") + escaped(line) + "\n"; }

// Lines are filled, but rows of a table, which hold a gap, stay apart.
std::string paragraph(std::string_view text) {
    std::string result;
    for (const std::string_view line : linesOf(text)) {
        if (line.find("  ") != std::string_view::npos) result += ".br\n";
        result += textLine(line);
    }
    return result;
}

std::string entry(const std::string& head, std::string_view text) { return ".TP\n" + head + "\n" + paragraph(text); }

std::string positionalName(const CLI::Option& option) {
    const std::string name = italic(option.get_name(true));
    return option.get_required() ? name : "[" + name + "]";
}

std::string head(const CLI::Option& option) {
    if (option.get_positional()) return italic(option.get_name(true));
    std::string text;
    for (const auto& [dashes, names] : {std::pair("-", option.get_snames()), std::pair("--", option.get_lnames())})
        for (const std::string& name : names) text += (text.empty() ? "" : ", ") + bold(dashes + name);
    if (!option.get_option_text().empty()) text += " " + italic(option.get_option_text());
    if (option.get_required()) text += " (povinné)";
    return text;
}

bool isShared(const CLI::Option& option, const CLI::App& program) {
    return program.get_option_no_throw(option.get_name()) != nullptr;
}

// The text behind the heading "Příklad:" or "Příklady:" stands one example a line.
struct Footer {
    std::string notes;
    std::vector<std::string> examples;
};

Footer footerOf(std::string_view text) {
    Footer footer;
    for (const std::string_view line : linesOf(text)) {
        const bool isHeading = line.starts_with("Příklad");
        if (isHeading || !footer.examples.empty()) {
            footer.examples.emplace_back(trimBlanks(line.substr(isHeading ? line.find(':') + 1 : 0)));
        } else {
            footer.notes.append(line).append("\n");
        }
    }
    return footer;
}

std::string synopsis(const CLI::App& command) {
    std::string line = ".B velor " + command.get_name() + "\n";
    for (const CLI::Option* option : command.get_options()) {
        if (option->get_positional()) line += positionalName(*option) + "\n";
        if (!option->get_positional() && option->get_required())
            line += bold("--" + option->get_lnames().front()) + " " + italic(option->get_option_text()) + "\n";
    }
    return line + "[" + italic("přepínače") + "]\n";
}

std::string options(const CLI::App& command) {
    std::string text;
    for (const CLI::Option* option : command.get_options()) {
        const bool isOwn = !command.get_parent() || !isShared(*option, *command.get_parent());
        if (isOwn) text += entry(head(*option), option->get_description());
    }
    return text;
}

std::string examples(const std::vector<std::string>& lines) {
    if (lines.empty()) return {};
    std::string text = ".PP\n";
    text += lines.size() == 1 ? "Příklad:\n" : "Příklady:\n";
    text += ".PP\n.RS 4\n.EX\n";
    for (const std::string& line : lines) text += textLine(line);
    return text + ".EE\n.RE\n";
}

std::string commandText(const CLI::App& command) {
    const Footer footer = footerOf(command.get_footer());
    std::string text =
        ".SS velor " + command.get_name() + "\n" + paragraph(command.get_description()) + options(command);
    if (!footer.notes.empty()) text += ".PP\n" + paragraph(footer.notes);
    return text + examples(footer.examples);
}

std::string conventions(std::span<const Convention> entries) {
    std::string text;
    for (const auto& [name, meaning] : entries) text += entry(bold(name), meaning);
    return text;
}

// Where a device lacks a Czech letter the plain one is shown.
std::string plainLetters(const std::string& page) {
    std::set<char32_t> letters;
    for (std::string_view rest = page; !rest.empty();) letters.insert(takeCodePoint(rest));
    std::string text;
    for (const char32_t letter : letters) {
        std::string name;
        appendCodePoint(name, letter);
        std::string plain = folded(name);
        if (name.size() == 1 || plain.size() != 1) continue;
        if (upperCase(name) != name) plain.front() = static_cast<char>(plain.front() - 'A' + 'a');
        text += ".fchar " + name + " " + plain + "\n";
    }
    return text;
}

}  // namespace

std::string manualPage(const CLI::App& program, const std::string& version) {
    const auto commands = program.get_subcommands([](const CLI::App* app) { return !app->get_group().empty(); });
    const std::string description = program.get_description();
    const std::string purpose = description.substr(description.find("– ") + std::string_view("– ").size());
    std::string text = ".TH VELOR 1 \"\" \"" + escaped(version) + "\" \"" + escaped(description) + "\"\n";
    text += ".nh\n.ad l\n";  // the words are not English
    text += ".SH NÁZEV\nvelor \\- " + escaped(purpose) + "\n.SH PŘEHLED\n";
    for (const CLI::App* command : commands) text += synopsis(*command) + ".br\n";
    text += ".B velor\n" + bold("--verze") + " | " + bold("--help") + "\n";
    text += ".SH PŘÍKAZY\n";
    for (const CLI::App* command : commands) text += commandText(*command);
    text += ".SH PŘEPÍNAČE\nPro všechny příkazy:\n" + options(program);
    text += ".SH NÁVRATOVÝ KÓD\n" + conventions(kExitCodes);
    text += ".SH SOUBORY\n" + conventions(kFiles);
    return plainLetters(text) + text;
}

}  // namespace velor::app
