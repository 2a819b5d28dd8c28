// The methods of the substance list.
#include <string>

#include "dialogs/forms_of.h"
#include "dialogs/quick_sort.h"
#include "dialogs/substance_list.h"
#include "object/messages.h"
#include "platform/system.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "velor/smes.h"

namespace velor {

namespace {

constexpr int kMostShownLines = 800;  // fewer than AkSeznam takes, as built
constexpr int kSearch = 2;
constexpr std::size_t kMostBehindAsterisk = 99;

// Of several asterisks only the first is taken out.
std::string withoutAsterisk(const std::string& text) {
    const std::size_t asterisk = text.find('*');
    if (asterisk == std::string::npos) return text;
    std::string_view rest = std::string_view(text).substr(asterisk + 1);
    const std::string_view tail = rest;
    for (std::size_t i = 0; i < kMostBehindAsterisk && !rest.empty(); ++i) takeCodePoint(rest);
    return text.substr(0, asterisk) + std::string(tail.substr(0, tail.size() - rest.size()));
}

// Lines of the list and their substances.
struct Lines {
    std::vector<std::string> texts;
    SubstanceList substances;

    void add(const Lines& from, std::size_t position) {
        texts.push_back(from.texts[position]);
        substances.push_back(from.substances[position]);
    }
};

Lines linesInOrder(State& state) {
    if (state.list.PocLatek > kMostShownLines) checked::raise(RunTimeError::kSubscript);
    Lines lines{state.list.SeznamLatek, state.list.substances};  // whoever is asked may build the list anew
    if (state.list.RezimSeznamu >= kSearch) return lines;
    const std::string answer = state.messages.userInterface->askText(
        {"0 - podle abecedy" + std::string(kLineBreak) + "1 - podle čísel (chvíli trvá ...)", "VELOR", "0"});
    if (answer == "2") state.list.RezimSeznamu = kSearch;
    if (answer != "1") return lines;
    Lines sorted;
    for (const std::size_t position : sortedOrder(state.list.randomState, lines.texts)) sorted.add(lines, position);
    return sorted;
}

// The lines that hold the text asked for, or one line that tells the failure.
Lines askedLines(const State& state, const Lines& lines) {
    const std::string answer =
        state.messages.userInterface->askText({"Vložte název nebo část názvu hledané látky (bez *, %):", "VELOR", ""});
    const std::string wanted = withoutAsterisk(upperCase(answer));
    Lines hits;
    for (std::size_t i = 0; i < lines.texts.size(); ++i)
        if (upperCase(lines.texts[i]).find(wanted) != std::string::npos) hits.add(lines, i);
    if (hits.texts.empty()) hits.texts.push_back("Látka  " + wanted + "  nenalezena!!!");
    return hits;
}

}  // namespace

void Smes::AkSeznam() {
    const PublicCall call(*state_);
    rebuildSubstanceList(*state_);
}

std::string Smes::SeznamLatek(int i) const {
    if (i < 1 || i > state_->list.PocLatek) checked::raise(RunTimeError::kSubscript);
    return state_->list.SeznamLatek[static_cast<std::size_t>(i - 1)];
}

int Smes::listedSubstance(int i) const {
    if (i < 1 || i > state_->list.PocLatek) checked::raise(RunTimeError::kSubscript);
    return state_->list.substances[static_cast<std::size_t>(i - 1)].number;
}

int Smes::PocLatek() const { return state_->list.PocLatek; }
int Smes::RezimSeznamu() const { return state_->list.RezimSeznamu; }

void Smes::SeznamShow(const Variant& mode) {
    const PublicCall call(*state_);
    State& state = *state_;
    state.list.RezimSeznamu = mode.isMissing() ? std::int16_t{-1} : mode.toInt16();
    buildListForDialog(state);
    const Lines lines = linesInOrder(state);
    Lines shown;
    if (state.list.RezimSeznamu == kSearch) {
        shown = askedLines(state, lines);
    } else if (state.list.RezimSeznamu < kSearch) {
        shown = lines;
    }
    // Whoever answers may have renewed the form, and may do so while it is shown.
    const std::shared_ptr<F_Sezn> held = formsOf(state).list;
    F_Sezn& form = *held;
    form.Nadpis_1 = "SEZNAM LÁTEK DATABÁZE  V E L O R   " + platform::shortDate();
    form.Nadpis_2 = state.list.RezimSeznamu == kSearch
                        ? "k zadání nalezeno " + std::to_string(shown.texts.size()) + " látek"
                        : "Počet zahrnutých látek  " + Format(state.list.PocLatek, "#0");
    form.L_Sezn = {std::move(shown.texts), -1};
    form.Latky = std::move(shown.substances);
    if (!form.L_Sezn.items.empty()) form.L_Sezn.selected = 0;
    form.zavrit = [this] { mSeznam_zavrit(); };
    form.visible = true;
    state.messages.userInterface->showForm(form);
}

void Smes::mSeznam_zavrit() { formsOf(*state_).list->visible = false; }

void Smes::QuickSort(Variant& arr, int first, int last) {
    if (checkedInt16(first) >= checkedInt16(last)) return;
    std::vector<Variant> elements;
    std::vector<std::string> lines;
    for (int i = first; i <= last; ++i) {
        elements.push_back(arr.at(i));
        lines.push_back(elements.back().toText());
    }
    int place = first;
    for (const std::size_t position : sortedOrder(state_->list.randomState, lines))
        arr.at(place++) = elements[position];
}

int Smes::RandInt(int lower, int upper) {
    return checkedInt16(randomBetween(state_->list.randomState, checkedInt16(lower), checkedInt16(upper)));
}

void Smes::SWAP(Variant& arr, int a, int b) { std::swap(arr.at(a), arr.at(b)); }

}  // namespace velor
