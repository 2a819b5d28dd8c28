#include "velor/substances.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>

#include "records/record_file.h"
#include "runtime/text.h"
#include "runtime/windows_1250.h"

namespace velor {

namespace {

// A database from elsewhere may hold anything; control characters would reach the terminal.
template <std::size_t Width>
std::string fieldText(const std::array<char, Width>& field) {
    const std::string text = decodeWindows1250(beforeNull({field.data(), field.size()}));
    std::string shown;
    for (std::string_view rest = text; !rest.empty();) {
        const char32_t c = takeCodePoint(rest);
        appendCodePoint(shown, isControl(c) ? U'?' : c);
    }
    return std::string(trimBlanks(shown));
}

std::string registryNumber(std::int32_t number) {
    constexpr std::int32_t kLeast = 1000;  // no registry number is shorter
    return number < kLeast ? std::string() : casText(std::to_string(number));
}

}  // namespace

Substance substanceOf(int number, const TLatka& record) {
    return {number, fieldText(record.Nazev), fieldText(record.Synonym), fieldText(record.Vzorec),
            registryNumber(record.CAS)};
}

SubstanceList readSubstances(const std::string& databasePath) {
    const RecordFile file(databasePath);
    const int count = file.count();
    SubstanceList substances;
    bool isDatabase = false;  // a file of another kind does not hold a record that knows its own number
    for (int number = 1; number <= count; ++number) {
        const TLatka record = file.read(number);
        if (!isUsed(record)) continue;
        isDatabase = isDatabase || record.Cislo == number;
        substances.push_back(substanceOf(number, record));
    }
    return isDatabase ? substances : SubstanceList{};
}

const Substance* findByNumber(const SubstanceList& substances, int number) {
    const auto found = std::ranges::lower_bound(substances, number, {}, &Substance::number);
    return found != substances.end() && found->number == number ? &*found : nullptr;
}

}  // namespace velor
