// The database of this source tree, read as the library reads it.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "records/record_file.h"

namespace velor::test {

inline constexpr int kAir = 2;  // a mixture: its formula and its constants are conventions

inline std::map<int, TLatka> realRecords() {
    std::map<int, TLatka> records;
    const RecordFile file(VELOR_DATABASE);
    for (int number = 1; number <= file.count(); ++number) records[number] = file.read(number);
    EXPECT_FALSE(records.empty());
    return records;
}

// The substance in the message of a failed check.
inline std::string label(const TLatka& record) {
    const std::string_view name(record.Nazev.data(), record.Nazev.size());
    return std::to_string(record.Cislo) + " " + std::string(name.substr(0, name.find_last_not_of(' ') + 1));
}

}  // namespace velor::test
