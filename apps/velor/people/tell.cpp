#include <iostream>

#include "people/people.h"
#include "velor/text.h"

namespace velor::app {

void tell(const std::string& text) { std::cerr << "velor: " << printable(text) << std::endl; }

}  // namespace velor::app
