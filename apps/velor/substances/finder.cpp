#include <algorithm>

#include "people/people.h"
#include "substances/substances.h"
#include "velor/text.h"

namespace velor::app {

namespace {

using Matches = std::vector<const Substance*>;

constexpr std::size_t kMostComponents = 20;  // of one mixture object
constexpr std::size_t kMostCandidates = 30;

std::string listed(const Matches& matches) {
    std::string lines;
    for (std::size_t i = 0; i < std::min(matches.size(), kMostCandidates); ++i) {
        const Substance& substance = *matches[i];
        lines += "\n  " + std::to_string(substance.number) + "  " + substance.name;
        if (!substance.synonym.empty()) lines += " – " + substance.synonym;
        lines += "  " + substance.formula;
    }
    if (matches.size() > kMostCandidates)
        lines += "\n  … a dalších " + std::to_string(matches.size() - kMostCandidates);
    return lines;
}

std::string unknownText(std::string_view wanted) { return "Látka „" + std::string(wanted) + "“ není v bázi."; }

std::string withoutFurtherNames(const SubstanceList& substances) {
    const bool hasSome = std::ranges::any_of(substances, [](const Substance& s) { return !s.furtherNames.empty(); });
    return hasSome ? "" : "\nDalší jména látek nejsou k dispozici, doplněk .DOP vedle báze chybí nebo je nemá.";
}

std::string numbersOf(const SubstanceList& substances) {
    return " Čísla látek jsou " + std::to_string(substances.front().number) + " až " +
           std::to_string(substances.back().number) + ".";
}

std::string likelyOnes(const Matches& likely) { return likely.empty() ? "" : " Mohlo by jít o:" + listed(likely); }

}  // namespace

const Substance& findSubstance(const SubstanceList& substances, std::string_view wanted) {
    const std::string_view text = trimBlanks(wanted);
    const auto [outcome, candidates] = searchSubstance(substances, text);
    switch (outcome) {
        case Finding::Found:
            break;
        case Finding::Interpreted:
            tell("„" + std::string(text) + "“ vyloženo jako " + candidates.front()->name + " (č. " +
                 std::to_string(candidates.front()->number) + ").");
            break;
        case Finding::NothingTyped:
            throw Failure(ExitCode::WrongUse, "Chybí číslo, název, vzorec nebo CAS látky.");
        case Finding::Unknown:
            throw Failure(ExitCode::NothingComputed,
                          unknownText(text) + likelyOnes(candidates) + withoutFurtherNames(substances));
        case Finding::UnknownNumber:
            throw Failure(ExitCode::NothingComputed, unknownText(text) + numbersOf(substances));
        case Finding::Several:
            throw Failure(ExitCode::NothingComputed, "„" + std::string(text) + "“ může být více látek (" +
                                                         std::to_string(candidates.size()) + "):" + listed(candidates));
    }
    return *candidates.front();
}

namespace {

void requireAtMost(std::size_t most, std::size_t count) {
    if (count <= most) return;
    throw Failure(ExitCode::WrongUse, "Zadáno " + std::to_string(count) + " látek; nejvýše jich může být " +
                                          std::to_string(kMostComponents) + ".");
}

}  // namespace

SubstanceList findSubstances(const SubstanceList& substances, std::string_view wanted) {
    constexpr std::size_t kMostItems = 8 * kMostComponents;  // by which commas within names are allowed for
    requireAtMost(kMostItems, splitItems(wanted).size());
    const std::vector<std::string> names = splitSubstanceNames(substances, wanted);
    requireAtMost(kMostComponents, names.size());
    SubstanceList found;
    for (const std::string& name : names) {
        const Substance& substance = findSubstance(substances, name);
        if (findByNumber(found, substance.number))
            throw Failure(ExitCode::WrongUse, "Látka " + substance.name + " je zadána dvakrát.");
        found.push_back(substance);
    }
    return found;
}

}  // namespace velor::app
