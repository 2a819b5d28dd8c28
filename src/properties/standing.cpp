// What a verdict is called and how it is marked.
#include <array>

#include "velor/verdict.h"

namespace velor {

namespace {

struct Words {
    std::string_view word;
    std::string_view mark;
    std::string_view note;
};

// In the order of Standing.
constexpr std::array<Words, kStandings> kWords{{
    {"v rozsahu", "", ""},
    {"extrapolováno", "*", "Teplota je mimo rozsah platnosti korelace, hodnota je extrapolovaná."},
    {"na mezi", "=", "Teplota je mimo rozsah platnosti korelace, hodnota platí pro jeho nejbližší mez."},
    {"0.98 Tkr", "k", "Teplota je nad kritickou, hodnota je vypočtena při 0.98 Tkr."},
    {"bez nadkritických", "s", "Složka nad svou kritickou teplotou se do výparného tepla nezapočítává."},
    {"inertní složka", "i", "Složka nad svou kritickou teplotou nekondenzuje."},
    {"metastabilní", "m", "Tlak je nad rosným (nad tenzí par): takový plyn není stálý, část by zkapalněla."},
    {"nedáno", "n", "Vlastnost není pro látku v bázi dána."},
    {"bez hodnoty", "r", "Rovnice nemá při této teplotě hodnotu (nad vztažnou teplotou)."},
    {"nekonverguje", "d", "Iterace nekonverguje."},
    {"chyba", "!", "Při výpočtu nastala chyba; v zadaném stavu hodnotu nelze určit."},
    {"odhad", "o", "Korelace je odhad podle stavby molekuly nebo korespondujících stavů."},
}};

const Words& wordsOf(Standing standing) { return kWords[static_cast<std::size_t>(standing)]; }

}  // namespace

std::string_view standingWord(Standing standing) { return wordsOf(standing).word; }
std::string_view standingMark(Standing standing) { return wordsOf(standing).mark; }
std::string_view standingNote(Standing standing) { return wordsOf(standing).note; }

}  // namespace velor
