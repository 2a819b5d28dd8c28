#include "substances/substances.h"

#include <algorithm>
#include <map>
#include <set>

#include "completion/candidates.h"
#include "people/people.h"
#include "velor/text.h"

namespace velor::app {

namespace {

bool isNumber(std::string_view text) { return text.find_first_not_of("0123456789") == std::string_view::npos; }

struct OwnNames {
    int number;                        // of the substance
    std::vector<SubstanceName> names;  // the simple ones by which it alone is called
};

std::vector<OwnNames> ownNames(const SubstanceList& substances) {
    std::map<std::string, std::set<int>> owners;
    std::vector<OwnNames> all;
    for (const Substance& substance : substances) {
        all.push_back({substance.number, namesOf(substance)});
        for (const SubstanceName& name : all.back().names) owners[name.folded].insert(substance.number);
    }
    for (OwnNames& own : all)
        std::erase_if(own.names, [&](const SubstanceName& name) {
            return !name.isSimple || isNumber(name.text) || owners[name.folded].size() > 1;
        });
    return all;
}

// Of each substance its first name that fits.
template <class Fits>
std::vector<std::string> firstNames(const std::vector<OwnNames>& all, const Fits& fits) {
    std::vector<std::string> found;
    for (const OwnNames& own : all) {
        const auto name = std::ranges::find_if(own.names, fits, &SubstanceName::folded);
        if (name != own.names.end()) found.push_back(name->text);
    }
    return found;
}

std::vector<std::string> starting(const std::vector<OwnNames>& all, std::string_view typed) {
    const std::string start = foldedStart(typed);
    return firstNames(all, [&](std::string_view name) { return name.starts_with(start); });
}

std::vector<std::string> onlyHolding(const std::vector<OwnNames>& all, std::string_view typed) {
    if (isNumber(typed)) return {};
    const std::string part = folded(typed);
    auto names = firstNames(all, [&](std::string_view name) { return name.find(part) != std::string_view::npos; });
    if (names.size() != 1) names.clear();
    return names;
}

// The substances of the finished part of a list; none where it is not understood.
SubstanceList chosenSubstances(const SubstanceList& substances, std::string_view list) {
    try {
        return list.empty() ? SubstanceList{} : findSubstances(substances, list);
    } catch (const Failure&) {
        return {};
    }
}

// Where the last item may begin. A comma may belong to a name, so that each of them is asked, the first one first.
std::vector<std::size_t> itemStarts(std::string_view typed) {
    const bool hasSemicolons = typed.find(';') != std::string_view::npos;
    std::vector<std::size_t> starts;
    if (!hasSemicolons) starts.push_back(0);
    for (std::size_t i = 0; i < typed.size(); ++i)
        if (typed[i] == (hasSemicolons ? ';' : ',')) starts.push_back(i + 1);
    if (hasSemicolons) starts.erase(starts.begin(), starts.end() - 1);
    for (std::size_t& start : starts) start = std::min(typed.find_first_not_of(' ', start), typed.size());
    return starts;
}

// Without the separator.
std::string_view listBefore(std::string_view typed, std::size_t from) {
    const std::size_t separator = typed.substr(0, from).find_last_of(",;");
    return typed.substr(0, separator == std::string_view::npos ? 0 : separator);
}

}  // namespace

NameCompletions completeSubstance(const SubstanceList& substances, std::string_view typed) {
    const std::vector<OwnNames> all = ownNames(substances);
    std::vector<std::string> names = starting(all, typed);
    return {0, names.empty() ? onlyHolding(all, typed) : std::move(names)};
}

NameCompletions completeSubstances(const SubstanceList& substances, std::string_view typed) {
    std::vector<OwnNames> all = ownNames(substances);
    const std::vector<std::size_t> starts = itemStarts(typed);
    const auto start =
        std::ranges::find_if(starts, [&](std::size_t from) { return !starting(all, typed.substr(from)).empty(); });
    const bool isPart = start == starts.end();
    const std::size_t from = isPart ? starts.back() : *start;
    const std::string_view item = typed.substr(from);
    for (const Substance& chosen : chosenSubstances(substances, listBefore(typed, from)))
        std::erase_if(all, [&](const OwnNames& own) { return own.number == chosen.number; });
    return {from, isPart ? onlyHolding(all, item) : starting(all, item)};
}

}  // namespace velor::app
