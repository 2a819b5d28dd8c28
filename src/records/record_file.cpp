#include "records/record_file.h"

#include <array>

#include "records/record_layout.h"

namespace velor {

int RecordFile::count() const { return static_cast<int>(file_.size() / static_cast<std::int64_t>(kRecordSize)); }

TLatka RecordFile::read(int number) const {
    std::array<char, kRecordSize> bytes{};
    const std::int64_t offset = (static_cast<std::int64_t>(number) - 1) * static_cast<std::int64_t>(kRecordSize);
    if (file_.readAt(offset, bytes) < kRecordSize) return {};
    return decodeRecord(bytes);
}

}  // namespace velor
