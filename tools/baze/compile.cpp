#include "baze/compile.h"

#include "baze/correlations_table.h"
#include "baze/substances_table.h"
#include "records/record_layout.h"

namespace velor::baze {

namespace {

constexpr int kLeastRecords = 8;  // the library takes a file below 4000 bytes for a broken one

void addCorrelations(Substances& substances, const std::vector<CorrelationRow>& rows, LineFaults& faults) {
    for (const CorrelationRow& row : rows) {
        const auto record = substances.records.find(row.number);
        if (record != substances.records.end()) {
            record->second.Korelace[static_cast<std::size_t>(row.property - 1)] = row.block;
        } else if (substances.complete) {
            faults.push_back({row.line, "Cislo: látka " + std::to_string(row.number) + " není v tabulce látek"});
        }
    }
}

void fill(Compilation& result, std::string_view substances, std::string_view correlations, Checks checks,
          const SupplementTexts& further) {
    Substances read = readSubstances(substances, checks, result.substanceFaults);
    const auto rows = readCorrelations(correlations, checks, result.correlationFaults);
    addCorrelations(read, rows, result.correlationFaults);
    const int count = read.records.empty() ? 0 : read.records.rbegin()->first;
    if (checks == Checks::Full && result.succeeded() && count < kLeastRecords)
        result.substanceFaults.push_back({1, "nejvyšší číslo látky má být aspoň " + std::to_string(kLeastRecords) +
                                                 ", kratší bázi knihovna nepřijme"});
    if (!result.succeeded()) return;
    const std::string supplement = makeSupplement(read.records, rows, further, result.supplementFaults);
    if (!result.succeeded()) return;
    result.supplement = supplement;
    result.bytes = databaseBytes(read.records);
    result.substances = static_cast<int>(read.records.size());
    result.correlations = static_cast<int>(rows.size());
}

}  // namespace

std::string databaseBytes(const std::map<int, TLatka>& records) {
    const auto blank = encodeRecord(blankRecord());
    std::string bytes;
    int number = 1;
    for (const auto& [own, record] : records) {
        for (; number < own; ++number) bytes.append(blank.begin(), blank.end());
        const auto encoded = encodeRecord(record);
        bytes.append(encoded.begin(), encoded.end());
        ++number;
    }
    return bytes;
}

Compilation compile(std::string_view substances, std::string_view correlations, Checks checks,
                    const SupplementTexts& further) {
    Compilation result;
    try {
        fill(result, substances, correlations, checks, further);
    } catch (const LineFaults::Full&) {
        result.hasMoreFaults = true;
    }
    result.substanceFaults.sortByLine();
    result.correlationFaults.sortByLine();
    result.supplementFaults.sharedNames.sortByLine();
    return result;
}

}  // namespace velor::baze
