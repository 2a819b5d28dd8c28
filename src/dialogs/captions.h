// Captions carry the mark "&" before the letter of their accelerator key.
#pragma once

#include <string>

namespace velor {

// For a view that shows no such key.
inline std::string withoutMark(std::string caption) {
    std::erase(caption, '&');
    return caption;
}

}  // namespace velor
