#include "substance_finder.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <optional>
#include <utility>

#include "failure.h"
#include "item_list.h"
#include "runtime/folding.h"
#include "runtime/text.h"

namespace velor::app {

namespace {

using Matches = std::vector<const Substance*>;
using Criterion = std::function<bool(const Substance&)>;

constexpr std::size_t kMostComponents = 20;  // of one mixture object
constexpr std::size_t kMostCandidates = 30;
constexpr std::size_t kMostSuggestions = 5;
constexpr std::size_t kMostItemsOfName = 8;  // no name holds more commas

Matches select(const SubstanceList& substances, const Criterion& criterion) {
    Matches matches;
    for (const Substance& substance : substances)
        if (criterion(substance)) matches.push_back(&substance);
    return matches;
}

bool isDigits(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

// "Water (H2O)" is also called Water, and "Sirovodík, Hydrogen sulfide" are two names.
std::optional<std::pair<std::string_view, std::string_view>> twoNames(std::string_view text) {
    if (const std::size_t bracket = text.find(" ("); bracket != std::string_view::npos && text.ends_with(')'))
        return {{text.substr(0, bracket), text.substr(bracket + 2, text.size() - bracket - 3)}};
    if (const std::size_t comma = text.find(", "); comma != std::string_view::npos)
        return {{text.substr(0, comma), text.substr(comma + 2)}};
    return std::nullopt;
}

void addNames(std::vector<SubstanceName>& names, std::string_view text) {
    if (text.empty()) return;
    const auto parts = twoNames(text);
    names.push_back({std::string(text), folded(text), !parts});
    if (!parts) return;
    addNames(names, parts->first);
    addNames(names, parts->second);
}

bool isCalled(const Substance& substance, const std::string& name) {
    const auto names = namesOf(substance);
    return std::ranges::find(names, name, &SubstanceName::folded) != names.end();
}

bool isCalledPartly(const Substance& substance, const std::string& part) {
    return folded(substance.name).find(part) != std::string::npos ||
           folded(substance.synonym).find(part) != std::string::npos;
}

// What the text can mean as a whole, the surest meaning first; empty when nothing.
Matches wholeMatches(const SubstanceList& substances, std::string_view wanted) {
    if (isDigits(wanted)) {
        int number = 0;
        std::from_chars(wanted.data(), wanted.data() + wanted.size(), number);  // 0 where it is too large
        return select(substances, [&](const Substance& s) { return s.number == number; });
    }
    const std::string name = folded(wanted);
    const Criterion meanings[] = {
        [&](const Substance& s) { return s.cas == wanted; },
        [&](const Substance& s) { return isCalled(s, name); },
        [&](const Substance& s) { return s.formula == wanted; },
        [&](const Substance& s) { return folded(s.formula) == name; },
    };
    for (const Criterion& meaning : meanings)
        if (Matches matches = select(substances, meaning); !matches.empty()) return matches;
    return {};
}

Matches matchesOf(const SubstanceList& substances, std::string_view wanted) {
    Matches matches = wholeMatches(substances, wanted);
    if (!matches.empty() || isDigits(wanted)) return matches;
    const std::string part = folded(wanted);
    return select(substances, [&](const Substance& s) { return isCalledPartly(s, part); });
}

// Names that differ from the wanted one by a slip or two.
Matches similarTo(const SubstanceList& substances, std::string_view wanted) {
    const std::string name = folded(wanted);
    const std::size_t slips = std::clamp<std::size_t>(name.size() / 4, 1, 3);
    std::vector<std::pair<std::size_t, const Substance*>> ranked;
    for (const Substance& substance : substances) {
        std::size_t least = slips + 1;
        for (const auto& [text, other, isSimple] : namesOf(substance))
            if (other.size() <= name.size() + slips && name.size() <= other.size() + slips)
                least = std::min(least, editDistance(name, other));
        if (least <= slips) ranked.emplace_back(least, &substance);
    }
    std::stable_sort(ranked.begin(), ranked.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    Matches similar;
    for (const auto& [distance, substance] : ranked)
        if (similar.size() < kMostSuggestions) similar.push_back(substance);
    return similar;
}

std::string listed(const Matches& matches, std::size_t most) {
    std::string lines;
    for (std::size_t i = 0; i < std::min(matches.size(), most); ++i) {
        const Substance& substance = *matches[i];
        lines += "\n  " + std::to_string(substance.number) + "  " + substance.name;
        if (!substance.synonym.empty()) lines += " – " + substance.synonym;
        lines += "  " + substance.formula;
    }
    if (matches.size() > most) lines += "\n  … a dalších " + std::to_string(matches.size() - most);
    return lines;
}

std::string unknownText(const SubstanceList& substances, std::string_view wanted) {
    std::string text = "Látka „" + std::string(wanted) + "“ není v bázi.";
    if (isDigits(wanted)) {
        return text + " Čísla látek jsou " + std::to_string(substances.front().number) + " až " +
               std::to_string(substances.back().number) + ".";
    }
    const Matches similar = similarTo(substances, wanted);
    return similar.empty() ? text : text + " Podobné názvy:" + listed(similar, kMostSuggestions);
}

// The longest run of items from the first one on that is a substance as a whole; one item where none is.
std::size_t itemsOfName(const SubstanceList& substances, std::span<const std::string> items) {
    for (std::size_t count = std::min(items.size(), kMostItemsOfName); count > 1; --count)
        if (!wholeMatches(substances, joinedItems(items.first(count))).empty()) return count;
    return 1;
}

std::vector<std::string> splitNames(const SubstanceList& substances, std::string_view wanted) {
    std::vector<std::string> items = splitItems(wanted);
    if (wanted.find(';') != std::string_view::npos) return items;
    std::vector<std::string> names;
    for (std::span<const std::string> rest = items; !rest.empty();) {
        const std::size_t count = itemsOfName(substances, rest);
        names.push_back(joinedItems(rest.first(count)));
        rest = rest.subspan(count);
    }
    return names;
}

}  // namespace

std::vector<SubstanceName> namesOf(const Substance& substance) {
    std::vector<SubstanceName> names;
    addNames(names, substance.name);
    addNames(names, substance.synonym);
    return names;
}

const Substance& findSubstance(const SubstanceList& substances, std::string_view wanted) {
    const std::string_view text = trimBlanks(wanted);
    if (folded(text).empty()) throw Failure(ExitCode::WrongUse, "Chybí číslo, název, vzorec nebo CAS látky.");
    const Matches matches = matchesOf(substances, text);
    if (matches.empty()) throw Failure(ExitCode::NothingComputed, unknownText(substances, text));
    if (matches.size() > 1) {
        throw Failure(ExitCode::NothingComputed, "„" + std::string(text) + "“ může být více látek (" +
                                                     std::to_string(matches.size()) +
                                                     "):" + listed(matches, kMostCandidates));
    }
    return *matches.front();
}

SubstanceList findSubstances(const SubstanceList& substances, std::string_view wanted) {
    SubstanceList found;
    for (const std::string& name : splitNames(substances, wanted)) {
        const Substance& substance = findSubstance(substances, name);
        const bool isKnown = std::any_of(found.begin(), found.end(),
                                         [&](const Substance& other) { return other.number == substance.number; });
        if (isKnown) throw Failure(ExitCode::WrongUse, "Látka " + substance.name + " je zadána dvakrát.");
        found.push_back(substance);
    }
    if (found.size() > kMostComponents) {
        throw Failure(ExitCode::WrongUse, "Zadáno " + std::to_string(found.size()) + " látek; nejvýše jich může být " +
                                              std::to_string(kMostComponents) + ".");
    }
    return found;
}

}  // namespace velor::app
