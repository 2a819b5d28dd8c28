#include "dialogs/substance_list.h"

#include <compare>
#include <span>
#include <string_view>
#include <utility>

#include "dialogs/quick_sort.h"
#include "object/locate.h"
#include "object/messages.h"
#include "platform/file_system.h"
#include "platform/system.h"
#include "records/record_file.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "runtime/windows_1250.h"

namespace velor {

namespace {

constexpr std::size_t kMostLines = 900;
constexpr std::size_t kKeyCharacters = 17;
constexpr std::size_t kMostCasCharacters = 13;
constexpr std::size_t kNumberCharacters = 3;
constexpr std::size_t kLeastNamePosition = 5;

template <std::size_t Width>
std::string firstCharacters(const std::array<char, Width>& field, std::size_t count) {
    return decodeWindows1250({field.data(), count});
}

std::string bracketedCas(std::int32_t number) {
    const std::string digits = std::to_string(number);
    if (number <= 0 || digits.size() < 2) return " ";
    return ("[" + casText(digits) + "]").substr(0, kMostCasCharacters);
}

// A line as it is sorted: with the record number at its end.
std::string sortedLine(const TLatka& record, int number) {
    return "  " + firstCharacters(record.Nazev, 20) + " " + firstCharacters(record.Synonym, 20) + " " +
           firstCharacters(record.Vzorec, 10) + bracketedCas(record.CAS) + " " + Format(number, "000");
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

// What is sorted in place of a line. The position sets equal keys apart, which the sort asks for.
struct KeyedLine {
    std::string_view key;
    std::size_t position;

    auto operator<=>(const KeyedLine&) const = default;
};

// A line for each substance, in the order of the file.
struct ReadLines {
    std::vector<std::string> lines;
    SubstanceList substances;
};

ReadLines readLines(State& state) {
    const RecordFile database(state.place.AdresaBaze);
    ReadLines read;
    const int count = database.count();
    for (int number = 1; number <= count; ++number) {
        // The buffer of component 1 is used and left with the last record read, deliberately.
        const TLatka& record = state.definition.slots.change(1) = database.read(number);
        if (!isUsed(record)) continue;
        if (read.lines.size() == kMostLines) checked::raise(RunTimeError::kSubscript);
        read.lines.push_back(sortedLine(record, number));
        read.substances.push_back(substanceOf(number, record));
    }
    return read;
}

// Character position of the database's file name in its path, without regard to case, counted from 1; 0 when it does
// not occur.
struct NamePosition {
    std::size_t character = 0;
    std::size_t byte = 0;
};

NamePosition positionOfFileName(const State& state) {
    const std::string name = upperCase(state.place.DataFileName);
    std::size_t character = 1;
    for (std::string_view rest = state.place.AdresaBaze; !rest.empty(); takeCodePoint(rest), ++character)
        if (upperCase(rest).starts_with(name)) return {character, state.place.AdresaBaze.size() - rest.size()};
    return {};
}

std::string listing(const State& state) {
    const std::string end(kLineBreak);
    std::string text = "          SEZNAM LÁTEK DATABÁZE VELOR ke dni " + platform::shortDate() + end +
                       "          Záznamy v bázi o " + Format(state.list.PocLatek, "#0") + " látkách" + end;
    for (const std::string& line : state.list.SeznamLatek) text += line + end;
    return encodeWindows1250OrQuestionMarks(text);
}

void writeListing(State& state) {
    const NamePosition name = positionOfFileName(state);
    const std::string file = state.place.AdresaBaze.substr(0, name.byte) + "SEZNAM.DAT";
    if (name.character < kLeastNamePosition) show(state.messages, "VELOR - chyba v cestě k souboru", Icon::None);
    if (name.character == 0) checked::raise(RunTimeError::kInvalidCall);  // a negative length
    platform::replaceFile(file, listing(state));
}

}  // namespace

std::vector<std::size_t> sortedOrder(std::uint32_t& randomState, std::span<const std::string> lines) {
    std::vector<KeyedLine> keyed;
    keyed.reserve(lines.size());
    for (std::size_t i = 0; i < lines.size(); ++i) keyed.push_back({sortKey(lines[i]), i});
    quickSort(randomState, std::span(keyed));
    std::vector<std::size_t> order;
    order.reserve(keyed.size());
    for (const KeyedLine& line : keyed) order.push_back(line.position);
    return order;
}

void rebuildSubstanceList(State& state) {
    if (state.place.AdresaBaze.empty()) locateDatabase(state.place, state.messages);
    if (state.place.AdresaBaze.empty()) return;
    const ReadLines read = readLines(state);
    state.list.SeznamLatek.clear();
    state.list.substances.clear();
    for (const std::size_t position : sortedOrder(state.list.randomState, read.lines)) {
        state.list.SeznamLatek.push_back(numberToFront(read.lines[position]));
        state.list.substances.push_back(read.substances[position]);
    }
    state.list.PocLatek = static_cast<std::int16_t>(state.list.SeznamLatek.size());
    writeListing(state);
}

void buildListForDialog(State& state) {
    if (!state.list.SeznamLatek.empty()) return;
    try {
        rebuildSubstanceList(state);
    } catch (const RunTimeError& error) {
        const bool isRefused =
            error.number() == RunTimeError::kPermissionDenied || error.number() == RunTimeError::kPathFileAccess;
        if (!isRefused || state.list.SeznamLatek.empty()) throw;
    }
}

}  // namespace velor
