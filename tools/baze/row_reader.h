// One row of a table, handed out cell by cell; what is wrong with it is collected.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "baze/csv_table.h"
#include "records/field_text.h"

namespace velor::baze {

class RowReader {
  public:
    RowReader(const CsvTable& table, const CsvRow& row, Checks checks, LineFaults& faults)
        : table_(table), row_(row), checks_(checks), faults_(faults) {}

    std::string_view cell(std::string_view column) const { return table_.cell(row_, column); }
    int line() const { return row_.line; }

    // The cell's value, or the one that an empty cell stands for; empty after a fault.
    std::optional<float> single(std::string_view column, float whenEmpty);
    std::optional<std::int16_t> integer(std::string_view column, std::optional<std::int16_t> whenEmpty = {});
    std::optional<std::int32_t> registryNumber(std::string_view column);
    std::optional<std::string> bytes(std::string_view column, std::size_t width);
    // The number of the record that the row belongs to.
    std::optional<int> recordNumber(std::string_view column);

    // 1 to 11, by its code.
    std::optional<int> property(std::string_view column);

    // A fault of form, and one of content, which counts in full checking only.
    void fault(std::string_view column, std::string_view reason);
    void doubt(std::string_view column, std::string_view reason);

  private:
    // The value, or nothing and a fault of the column.
    template <class Value>
    std::optional<Value> taken(std::string_view column, Parsed<Value> parsed);

    const CsvTable& table_;
    const CsvRow& row_;
    Checks checks_;
    LineFaults& faults_;
};

}  // namespace velor::baze
