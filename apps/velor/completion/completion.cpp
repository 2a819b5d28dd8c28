#include "completion/completion.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <optional>
#include <set>

#include "completion/candidates.h"
#include "completion/typed_line.h"
#include "output/output.h"
#include "people/people.h"
#include "substances/substances.h"

namespace velor::app {

namespace {

using Names = std::vector<std::string>;

struct Candidates {
    std::size_t from = 0;  // position in the word from which on they replace it
    Names names = {};
    bool mayGoOn = false;  // more may follow in the same word
};

bool takesValue(const CLI::Option& option) { return option.get_items_expected_max() > 0; }

bool isRepeated(const CLI::Option& option) { return option.get_items_expected_max() > 1; }

bool isOption(std::string_view word) { return word.size() > 1 && word.front() == '-'; }

std::string valueName(const CLI::Option& option) {
    return option.get_positional() ? option.get_name(true) : option.get_option_text();
}

const CLI::App* subcommand(const CLI::App& parent, const std::string& name) {
    const auto found = parent.get_subcommands([&](const CLI::App* app) { return app->get_name() == name; });
    return found.empty() ? nullptr : found.front();
}

// Where the words typed so far lead.
struct Place {
    const CLI::App* command;
    const CLI::Option* option = nullptr;  // that waits for its value
    bool onlyPositionals = false;         // behind "--"
    bool isFile = false;                  // behind a redirection
    Names positionals = {};
    std::set<const CLI::Option*> given = {};
};

void goToOption(Place& place, const std::string& word) {
    const std::size_t equals = word.find('=');
    const CLI::Option* const option = place.command->get_option_no_throw(word.substr(0, equals));
    if (!option) return;
    place.given.insert(option);
    if (equals == std::string::npos && takesValue(*option)) place.option = option;
}

void goBehind(Place& place, const TypedWord& word) {
    if (word.isRedirection || place.isFile) {
        place.isFile = word.isRedirection;
    } else if (place.option) {
        place.option = nullptr;
    } else if (!place.onlyPositionals && word.text == "--") {
        place.onlyPositionals = true;
    } else if (!place.onlyPositionals && isOption(word.text)) {
        goToOption(place, word.text);
    } else if (const CLI::App* const command = subcommand(*place.command, word.text)) {
        place.command = command;
    } else {
        place.positionals.push_back(word.text);
    }
}

// The positional that the next word belongs to; null where all are there.
const CLI::Option* nextPositional(const Place& place) {
    std::size_t ahead = place.positionals.size();
    for (const CLI::Option* option : place.command->get_options()) {
        if (!option->get_positional()) continue;
        if (ahead == 0 || isRepeated(*option)) return option;
        --ahead;
    }
    return nullptr;
}

// The database that the line names, at whichever end of it.
std::optional<std::string> namedDatabase(const Names& words) {
    constexpr std::string_view kOption = "--baze", kOptionWithValue = "--baze=";
    std::optional<std::string> path;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words[i].starts_with(kOptionWithValue)) path = words[i].substr(kOptionWithValue.size());
        if (words[i] == kOption && i + 1 < words.size()) path = withHome(words[i + 1]);
    }
    return path;
}

class Completer {
  public:
    Completer(const CLI::App& program, const CompletionRequest& request)
        : line_(request.before, request.wordBreaks), behind_(request.behind), place_{&program} {
        const auto& words = line_.before();
        for (std::size_t i = 1; i < words.size(); ++i) goBehind(place_, words[i]);
    }

    const TypedLine& line() const { return line_; }

    Candidates candidates() const {
        const std::string& word = line_.current().text;
        if (place_.isFile) return files([](std::string_view) { return true; }, 0);
        if (place_.option) return values(*place_.option, 0);
        if (isOption(word) && !place_.onlyPositionals) return optionOrItsValue(word);
        const CLI::Option* const positional = nextPositional(place_);
        Candidates found = positional ? values(*positional, 0) : Candidates{0, commands(word)};
        if (found.names.empty() && !place_.onlyPositionals && (word.empty() || word == "-"))
            found.names = options(word);
        return found;
    }

  private:
    Names commands(const std::string& word) const {
        Names names;
        for (const CLI::App* command : place_.command->get_subcommands([](const CLI::App*) { return true; }))
            if (!command->get_group().empty() && command->get_name().starts_with(word))
                names.push_back(command->get_name());
        return names;
    }

    // The long name of each option, or the short one where that is typed.
    Names options(const std::string& word) const {
        Names names;
        for (const CLI::Option* option : place_.command->get_options()) {
            if (option->get_positional() || option->get_group().empty() || place_.given.contains(option)) continue;
            Names spellings;
            for (const std::string& name : option->get_lnames()) spellings.push_back("--" + name);
            for (const std::string& name : option->get_snames()) spellings.push_back("-" + name);
            const auto match = std::ranges::find_if(spellings, [&](const auto& s) { return s.starts_with(word); });
            if (match != spellings.end()) names.push_back(*match);
        }
        return names;
    }

    Candidates optionOrItsValue(const std::string& word) const {
        const std::size_t equals = word.find('=');
        if (equals == std::string::npos) return {0, options(word)};
        const CLI::Option* const option = place_.command->get_option_no_throw(word.substr(0, equals));
        return option && takesValue(*option) ? values(*option, equals + 1) : Candidates{};
    }

    // Of the value that begins at the position of the word.
    Candidates values(const CLI::Option& option, std::size_t from) const {
        const std::string name = valueName(option);
        const std::string typed = line_.current().text.substr(from);
        if (name == kSubstanceValue) return substance(typed);
        if (name == kSubstancesValue) return substances(typed, from);
        if (name == kPropertyValue) return {from, namesStartingWith(properties(), typed)};
        if (name == kOrderValue) return {from, namesStartingWith({kOrderByName, kOrderByNumber}, typed)};
        if (name == kFileValue) return files([](std::string_view) { return true; }, from);
        if (name == kPictureValue) return files(isPictureFileName, from);
        return {};
    }

    static Names properties() {
        Names names;
        for (const MixtureProperty& property : mixtureProperties()) names.emplace_back(property.code);
        return names;
    }

    Candidates files(const std::function<bool(std::string_view)>& isWanted, std::size_t from) const {
        const TypedWord& word = line_.current();
        const std::string typed = word.text.substr(from);
        const bool isTildeQuoted = from > 0 || word.quotes.front() != 0;
        Names names = completeFile(typed, isTildeQuoted, isWanted);
        const bool isFolder = names.size() == 1 && names.front().ends_with('/');
        return {from + typed.rfind('/') + 1, std::move(names), isFolder};
    }

    // The name may go over several words, of which only the last one is replaced.
    Candidates substance(const std::string& typed) const {
        std::string ahead;
        for (const std::string& word : place_.positionals) ahead += word + " ";
        Candidates found;
        for (const std::string& name : completeSubstance(database().substances, ahead + typed).names)
            if (const auto rest = behindStart(name, ahead)) found.names.emplace_back(*rest);
        return found;
    }

    Candidates substances(const std::string& typed, std::size_t from) const {
        NameCompletions found = completeSubstances(database().substances, typed);
        return {from + found.from, std::move(found.names), true};
    }

    Database database() const {
        Names words;
        for (const TypedWord& word : line_.before()) words.push_back(word.text);
        std::ranges::move(shellWords(behind_), std::back_inserter(words));
        return openDatabase(namedDatabase(words));
    }

    TypedLine line_;
    std::string behind_;
    Place place_;
};

Candidates candidatesOf(const Completer& completer) {
    try {
        return completer.candidates();
    } catch (const Failure&) {
        return {};
    } catch (const RunTimeError&) {
        return {};
    }
}

// What is to be put into the line for each candidate.
Names insertions(const TypedLine& line, Candidates candidates) {
    if (candidates.names.size() > 1)
        candidates.names = spelledAsTyped(std::move(candidates.names), line.current().text.substr(candidates.from));
    Names texts;
    for (const std::string& name : candidates.names)
        if (auto text = line.insertion(candidates.from, name)) texts.push_back(*std::move(text));
    return texts;
}

}  // namespace

std::string completionText(const CLI::App& program, const CompletionRequest& request) {
    const Completer completer(program, request);
    Candidates candidates = candidatesOf(completer);
    std::string text = candidates.mayGoOn ? "nospace\n" : "\n";
    const Names lines =
        request.isList ? std::move(candidates.names) : insertions(completer.line(), std::move(candidates));
    for (const std::string& line : lines) text += line + "\n";
    return text;
}

}  // namespace velor::app
