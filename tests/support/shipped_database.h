// What the tests have to know of the database that this source tree makes.
#pragma once

#include <filesystem>

#include "records/record_layout.h"

namespace velor::test {

// Each record of it holds a substance.
inline int shippedSubstances() { return static_cast<int>(std::filesystem::file_size(VELOR_DATABASE) / kRecordSize); }

}  // namespace velor::test
