#include "velor/substances.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <string_view>
#include <unordered_map>

#include "records/record_file.h"
#include "runtime/text.h"
#include "runtime/windows_1250.h"
#include "velor/supplement.h"

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

namespace {

void addFurtherNames(SubstanceList& substances, const Supplement& supplement) {
    std::unordered_map<std::string_view, std::vector<Substance*>> byCas;
    for (Substance& substance : substances) byCas[substance.cas].push_back(&substance);
    supplement.forEachName([&](std::string_view cas, std::string_view name) {
        const auto called = byCas.find(cas);
        if (called == byCas.end()) return;
        const SubstanceName further{std::string(name), withoutSeparators(folded(name)), true};
        for (Substance* const substance : called->second) substance->furtherNames.push_back(further);
    });
}

}  // namespace

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
    if (!isDatabase) return {};
    addFurtherNames(substances, Supplement::of(databasePath));
    return substances;
}

const Substance* findByNumber(const SubstanceList& substances, int number) {
    const auto found = std::ranges::lower_bound(substances, number, {}, &Substance::number);
    return found != substances.end() && found->number == number ? &*found : nullptr;
}

}  // namespace velor
