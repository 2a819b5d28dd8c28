// The last flash's results by name.
#pragma once

#include <string>

#include "velor/smes.h"

namespace velor::com {

// A member of FlashRecord; outcome as the number of its enumerator, arrays counted from 1. Error 5: another name.
Variant flashItem(const Smes& smes, const std::string& name);

}  // namespace velor::com
