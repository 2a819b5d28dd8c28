// Small databases made for a test.
#pragma once

#include <algorithm>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "records/record_layout.h"
#include "runtime/windows_1250.h"

namespace velor::test {

template <std::size_t Width>
void setText(std::array<char, Width>& field, std::string_view text) {
    const std::string bytes = encodeWindows1250OrQuestionMarks(text);
    field.fill(' ');
    std::copy_n(bytes.begin(), std::min(bytes.size(), Width), field.begin());
}

// A substance whose ten properties are given: y = k + T (equation 1) between 200 and 400 K for property k.
inline TLatka sampleSubstance(int number, std::string_view name) {
    TLatka record;
    record.Cislo = static_cast<std::int16_t>(number);
    setText(record.Nazev, name);
    setText(record.Vzorec, "C2H6O");
    setText(record.Synonym, "Sample");
    record.CAS = 64175;
    record.Mv = 0.046F;
    record.Tkr = 500.0F;
    record.Pkr = 6e6F;
    record.Vkr = 2e-4F;
    record.Tnbv = 350.0F;
    record.Ttani = 273.15F;
    for (int k = 1; k <= 10; ++k)
        record.Korelace[static_cast<std::size_t>(k - 1)] = {{static_cast<float>(k), 1.0F}, 1, 1, 200, 400};
    return record;
}

// So many of them, numbered from 1.
inline std::vector<TLatka> sampleSubstances(int count, std::string_view name = "Látka") {
    std::vector<TLatka> records;
    for (int number = 1; number <= count; ++number) records.push_back(sampleSubstance(number, name));
    return records;
}

inline TLatka blankRecord() {
    TLatka record;
    setText(record.Nazev, "");
    setText(record.Vzorec, "");
    setText(record.Synonym, "");
    return record;
}

inline std::string databaseBytes(std::span<const TLatka> records) {
    std::string bytes;
    for (const TLatka& record : records) {
        const auto encoded = encodeRecord(record);
        bytes.append(encoded.begin(), encoded.end());
    }
    return bytes;
}

// The given records, then as many blank ones as make the file long enough to be accepted.
inline std::string acceptableDatabase(std::vector<TLatka> records) {
    while (records.size() * kRecordSize < 4000) records.push_back(blankRecord());
    return databaseBytes(records);
}

}  // namespace velor::test
