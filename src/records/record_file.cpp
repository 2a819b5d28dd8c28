#include "records/record_file.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

#include "records/record_layout.h"

namespace velor {

int RecordFile::count() const {
    constexpr std::int64_t kMost = std::numeric_limits<std::int16_t>::max();  // a record's own number holds no more
    return static_cast<int>(std::min(file_.size() / static_cast<std::int64_t>(kRecordSize), kMost));
}

TLatka RecordFile::read(int number) const {
    std::array<char, kRecordSize> bytes{};
    const std::int64_t offset = (static_cast<std::int64_t>(number) - 1) * static_cast<std::int64_t>(kRecordSize);
    if (file_.readAt(offset, bytes) < kRecordSize) return {};
    return decodeRecord(bytes);
}

}  // namespace velor
