// The database file: records by their number.
#pragma once

#include <string>

#include "platform/file_system.h"
#include "velor/record.h"

namespace velor {

// Whether the record holds a substance: its name begins neither with a zero byte nor with two blanks.
inline bool isUsed(const TLatka& record) {
    return record.Nazev[0] != '\0' && !(record.Nazev[0] == ' ' && record.Nazev[1] == ' ');
}

class RecordFile {
  public:
    // Opens for reading only. Errors: 53, 70, 75, 76.
    explicit RecordFile(const std::string& path) : file_(path) {}

    // Whole records in the file, as far as there are numbers for them.
    int count() const;
    // Record number, counted from 1; a record of zero bytes where the file does not hold it whole.
    TLatka read(int number) const;

  private:
    platform::ReadOnlyFile file_;
};

}  // namespace velor
