#include "baze/decompile.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

#include "baze/correlations_table.h"
#include "baze/substances_table.h"
#include "records/record_layout.h"
#include "velor/substances.h"

namespace velor::baze {

namespace {

constexpr std::size_t kMostRecords = std::numeric_limits<std::int16_t>::max();

std::string refusalOf(std::string_view bytes) {
    if (const std::size_t rest = bytes.size() % kRecordSize; rest != 0)
        return "délka " + std::to_string(bytes.size()) + " bajtů není násobkem 508, za záznamem " +
               std::to_string(bytes.size() / kRecordSize) + " přebývá " + std::to_string(rest);
    if (bytes.size() / kRecordSize > kMostRecords)
        return "záznam " + std::to_string(kMostRecords + 1) + ": pole Cislo takové číslo nepojme";
    return {};
}

// Bytes are compared, not values: a negative zero is equal to zero and yet not the same.
bool isAbsent(std::string_view block) {
    return std::all_of(block.begin(), block.end(), [](char byte) { return byte == '\0'; });
}

}  // namespace

TextDatabase decompile(std::string_view bytes, const Supplement& supplement) {
    TextDatabase text;
    text.refusal = refusalOf(bytes);
    if (!text.refusal.empty()) return text;

    const auto blank = encodeRecord(blankRecord());
    std::vector<std::vector<std::string>> substances;
    std::vector<std::vector<std::string>> correlations;
    std::map<int, TLatka> records;
    int number = 0;
    for (std::string_view rest = bytes; !rest.empty(); rest.remove_prefix(kRecordSize)) {
        ++number;
        const std::string_view own = rest.substr(0, kRecordSize);
        // Records without a substance need no row, but the last one tells how many there are.
        const bool isLast = rest.size() == kRecordSize;
        if (!isLast && std::equal(own.begin(), own.end(), blank.begin())) continue;
        const TLatka record = decodeRecord(std::span<const char, kRecordSize>(own.data(), kRecordSize));
        substances.push_back(substanceCells(number, record));
        records.emplace(number, record);
        const std::string cas = substanceOf(number, record).cas;
        for (int k = 1; k <= TLatka::kCorrelations; ++k) {
            const auto index = static_cast<std::size_t>(k - 1);
            if (isAbsent(own.substr(kBlocksOffset + kBlockSize * index, kBlockSize))) continue;
            correlations.push_back(correlationCells(number, k, record.Korelace[index],
                                                    supplement.provenance(cas, k).value_or(Provenance())));
        }
    }
    text.substances = writeSubstances(substances);
    text.correlations = writeCorrelations(correlations);
    text.further = takeApart(supplement.text(), records);
    return text;
}

}  // namespace velor::baze
