#include <algorithm>
#include <charconv>
#include <functional>
#include <optional>
#include <span>
#include <utility>

#include "runtime/text.h"
#include "velor/substances.h"
#include "velor/text.h"

namespace velor {

namespace {

using Matches = std::vector<const Substance*>;
using Criterion = std::function<bool(const Substance&)>;

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

// Where a word of a folded text begins: behind a blank or a bracket. What stands behind a hyphen belongs to one name.
bool beginsWord(std::string_view text, std::size_t position) {
    constexpr std::string_view kBeforeWord = " (,";
    return position == 0 || kBeforeWord.find(text[position - 1]) != std::string_view::npos;
}

bool holdsWordsFrom(std::string_view text, std::string_view part) {
    for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1))
        if (beginsWord(text, at)) return true;
    return false;
}

// Whether the part is a name but for the end of its last word: what a further word makes of it nobody can know
// ("cumene", "Cumene hydroperoxide").
bool lacksOnlyEnd(std::string_view text, std::string_view part) {
    for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1))
        if (beginsWord(text, at) && text.find(' ', at + part.size()) == std::string_view::npos) return true;
    return false;
}

Criterion begunBy(const std::string& part) {
    return [part](const Substance& s) {
        return holdsWordsFrom(folded(s.name), part) || holdsWordsFrom(folded(s.synonym), part);
    };
}

Criterion holding(const std::string& part) {
    return [part](const Substance& s) {
        return folded(s.name).find(part) != std::string::npos || folded(s.synonym).find(part) != std::string::npos;
    };
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
        [&, key = withoutSeparators(name)](const Substance& s) {
            const auto isSpeltSo = [&](const SubstanceName& own) { return withoutSeparators(own.folded) == key; };
            return std::ranges::find(s.furtherNames, key, &SubstanceName::folded) != s.furtherNames.end() ||
                   std::ranges::any_of(namesOf(s), isSpeltSo);
        },
    };
    for (const Criterion& meaning : meanings)
        if (Matches matches = select(substances, meaning); !matches.empty()) return matches;
    return {};
}

// The letters, and behind them the digits: the same wherever a locant stands ("2-propanol", "propan-2-ol").
std::string withLocantsBehind(std::string_view name) {
    std::string letters, digits;
    for (const char c : name) {
        if (c >= '0' && c <= '9')
            digits += c;
        else if (c != '-' && c != ' ')
            letters += c;
    }
    return letters + digits;
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
                least = std::min(least,
                                 withLocantsBehind(name) == withLocantsBehind(other) ? 0 : editDistance(name, other));
        if (least <= slips) ranked.emplace_back(least, &substance);
    }
    std::stable_sort(ranked.begin(), ranked.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    Matches similar;
    for (const auto& [distance, substance] : ranked)
        if (similar.size() < kMostSuggestions) similar.push_back(substance);
    return similar;
}

// Those whose further names hold the text or differ from it by a slip.
Matches nearFurtherNames(const SubstanceList& substances, std::string_view wanted) {
    const std::string key = withoutSeparators(folded(wanted));
    const std::size_t slips = key.size() / 4;
    const auto isNear = [&](const SubstanceName& name) {
        return name.folded.find(key) != std::string::npos ||
               (name.folded.size() <= key.size() + slips && key.size() <= name.folded.size() + slips &&
                editDistance(key, name.folded) <= std::min<std::size_t>(slips, 1));
    };
    return select(substances, [&](const Substance& s) { return std::ranges::any_of(s.furtherNames, isNear); });
}

// What may have been meant by a text that is nothing as a whole, the likeliest first: a slip of typing, the beginning
// of a name or of one of its words, any part of it.
Matches nearMatches(const SubstanceList& substances, std::string_view wanted) {
    const std::string part = folded(wanted);
    Matches near = similarTo(substances, wanted);
    const auto add = [&](const Matches& more) {
        for (const Substance* const substance : more)
            if (std::ranges::find(near, substance) == near.end()) near.push_back(substance);
    };
    add(select(substances, begunBy(part)));
    add(select(substances, holding(part)));
    if (near.empty()) near = nearFurtherNames(substances, wanted);
    return near;
}

// As they stood in a list separated by commas.
std::string joined(std::span<const std::string> items) {
    std::string text = items.front();
    for (const std::string& item : items.subspan(1)) text.append(",").append(item);
    return text;
}

// The longest run of items from the first one on that is a substance as a whole; one item where none is.
std::size_t itemsOfName(const SubstanceList& substances, std::span<const std::string> items) {
    for (std::size_t count = std::min(items.size(), kMostItemsOfName); count > 1; --count)
        if (!wholeMatches(substances, joined(items.first(count))).empty()) return count;
    return 1;
}

}  // namespace

std::vector<SubstanceName> namesOf(const Substance& substance) {
    std::vector<SubstanceName> names;
    addNames(names, substance.name);
    addNames(names, substance.synonym);
    return names;
}

FoundSubstance searchSubstance(const SubstanceList& substances, std::string_view wanted) {
    const std::string_view text = trimBlanks(wanted);
    if (folded(text).empty()) return {Finding::NothingTyped, {}};
    if (Matches whole = wholeMatches(substances, text); !whole.empty())
        return {whole.size() == 1 ? Finding::Found : Finding::Several, std::move(whole)};
    if (isDigits(text)) return {Finding::UnknownNumber, {}};
    Matches near = nearMatches(substances, text);
    const std::string part = folded(text);
    const bool isClear = near.size() == 1 && (lacksOnlyEnd(folded(near.front()->name), part) ||
                                              lacksOnlyEnd(folded(near.front()->synonym), part));
    return {isClear ? Finding::Interpreted : Finding::Unknown, std::move(near)};
}

std::vector<std::string> splitSubstanceNames(const SubstanceList& substances, std::string_view wanted) {
    std::vector<std::string> items = splitItems(wanted);
    if (wanted.find(';') != std::string_view::npos) return items;
    std::vector<std::string> names;
    for (std::span<const std::string> rest = items; !rest.empty();) {
        const std::size_t count = itemsOfName(substances, rest);
        names.push_back(joined(rest.first(count)));
        rest = rest.subspan(count);
    }
    return names;
}

}  // namespace velor
