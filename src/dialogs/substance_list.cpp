#include "dialogs/substance_list.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "database/locate.h"
#include "database/record_file.h"
#include "platform/file_system.h"
#include "platform/system.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "runtime/windows_1250.h"
#include "smes/messages.h"

namespace velor {

namespace {

constexpr std::size_t kMostLines = 900;
constexpr std::size_t kKeyCharacters = 17;
constexpr std::size_t kMostCasCharacters = 13;
constexpr std::size_t kNumberCharacters = 3;
constexpr std::size_t kLeastNamePosition = 5;

bool isSubstance(const TLatka& record) {
    return record.Nazev[0] != '\0' && !(record.Nazev[0] == ' ' && record.Nazev[1] == ' ');
}

template <std::size_t Width>
std::string firstCharacters(const std::array<char, Width>& field, std::size_t count) {
    return decodeWindows1250({field.data(), count});
}

std::string casText(std::int32_t number) {
    const std::string digits = std::to_string(number);
    if (number <= 0 || digits.size() < 2) return " ";
    if (digits.size() < 3) checked::raise(RunTimeError::kInvalidCall);  // a negative length
    const std::size_t front = digits.size() - 3;
    const std::string text = "[" + digits.substr(0, front) + "-" + digits.substr(front, 2) + "-" + digits.back() + "]";
    return text.substr(0, kMostCasCharacters);
}

// A line as it is sorted: with the record number at its end.
std::string sortedLine(const TLatka& record, int number) {
    return "  " + firstCharacters(record.Nazev, 20) + " " + firstCharacters(record.Synonym, 20) + " " +
           firstCharacters(record.Vzorec, 10) + casText(record.CAS) + " " + Format(number, "000");
}

// Only the last three characters move: the first digit of a number of four stays at the end, as built.
std::string numberToFront(const std::string& line) {
    const std::size_t rest = line.size() - kNumberCharacters;
    return line.substr(rest) + line.substr(0, rest);
}

std::string_view sortKey(const std::string& line) {
    std::string_view rest = line;
    for (std::size_t i = 0; i < kKeyCharacters && !rest.empty(); ++i) takeCodePoint(rest);
    return std::string_view(line).substr(0, line.size() - rest.size());
}

std::vector<std::string> readLines(State& state) {
    const RecordFile database(state.AdresaBaze);
    std::vector<std::string> lines;
    const int count = database.count();
    for (int number = 1; number <= count; ++number) {
        // The buffer of component 1 is used and left with the last record read, deliberately.
        const TLatka& record = state.slots.change(1) = database.read(number);
        if (!isSubstance(record)) continue;
        if (lines.size() == kMostLines) checked::raise(RunTimeError::kSubscript);
        lines.push_back(sortedLine(record, number));
    }
    return lines;
}

// Character position of the database's file name in its path, without regard to case, counted from 1; 0 when it does
// not occur.
struct NamePosition {
    std::size_t character = 0;
    std::size_t byte = 0;
};

NamePosition positionOfFileName(const State& state) {
    const std::string name = upperCase(state.DataFileName);
    std::size_t character = 1;
    for (std::string_view rest = state.AdresaBaze; !rest.empty(); takeCodePoint(rest), ++character)
        if (upperCase(rest).starts_with(name)) return {character, state.AdresaBaze.size() - rest.size()};
    return {};
}

std::string listing(const State& state) {
    const std::string end(kLineBreak);
    std::string text = "          SEZNAM LÁTEK DATABÁZE VELOR ke dni " + platform::shortDate() + end +
                       "          Záznamy v bázi o " + Format(state.PocLatek, "#0") + " látkách" + end;
    for (const std::string& line : state.SeznamLatek) text += line + end;
    return encodeWindows1250OrQuestionMarks(text);
}

void writeListing(State& state) {
    const NamePosition name = positionOfFileName(state);
    if (name.character < kLeastNamePosition) show(state, "VELOR - chyba v cestě k souboru", Icon::None);
    if (name.character == 0) checked::raise(RunTimeError::kInvalidCall);  // a negative length
    platform::replaceFile(state.AdresaBaze.substr(0, name.byte) + "SEZNAM.DAT", listing(state));
}

}  // namespace

double nextRandom(std::uint32_t& randomState) {
    constexpr std::uint32_t kModulus = 1U << 24U;
    randomState = (randomState * 1140671485U + 12820163U) % kModulus;
    return static_cast<double>(randomState) / kModulus;
}

int randomBetween(std::uint32_t& randomState, int lower, int upper) {
    return static_cast<int>(std::floor((upper - lower + 1) * nextRandom(randomState))) + lower;
}

void quickSort(std::uint32_t& randomState, std::vector<std::string>& lines, int first, int last) {
    const auto line = [&](int i) -> std::string& { return lines[static_cast<std::size_t>(i - 1)]; };
    const auto exchange = [&](int a, int b) { std::swap(line(a), line(b)); };
    if (first >= last) return;
    if (last - first == 1) {
        if (sortKey(line(first)) > sortKey(line(last))) exchange(first, last);
        return;
    }
    exchange(last, randomBetween(randomState, first, last));
    const std::string pivot(sortKey(line(last)));
    int i = first, j = last;
    do {
        i = first;
        j = last;
        while (i < j && sortKey(line(i)) <= pivot) ++i;
        while (j > i && sortKey(line(j)) >= pivot) --j;
        if (i < j) exchange(i, j);
    } while (i < j);
    exchange(i, last);
    // Neighbours equal to the pivot are in their places; without this step equal lines would take quadratic time.
    int left = i - 1, right = i + 1;
    while (left > first && sortKey(line(left)) == pivot) --left;
    while (right < last && sortKey(line(right)) == pivot) ++right;
    if (i - first < last - i) {
        quickSort(randomState, lines, first, left);
        quickSort(randomState, lines, right, last);
    } else {
        quickSort(randomState, lines, right, last);
        quickSort(randomState, lines, first, left);
    }
}

void rebuildSubstanceList(State& state) {
    if (state.AdresaBaze.empty()) locateDatabase(state);
    if (state.AdresaBaze.empty()) return;
    std::vector<std::string> lines = readLines(state);
    quickSort(state.randomState, lines, 1, static_cast<int>(lines.size()));
    std::transform(lines.begin(), lines.end(), lines.begin(), numberToFront);
    state.SeznamLatek = std::move(lines);
    state.PocLatek = static_cast<std::int16_t>(state.SeznamLatek.size());
    writeListing(state);
}

}  // namespace velor
