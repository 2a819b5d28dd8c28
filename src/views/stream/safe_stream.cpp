#include "views/stream/safe_stream.h"

#include "velor/text.h"

namespace velor {

std::streambuf::int_type SafeStream::overflow(std::streambuf::int_type c) {
    using Traits = std::streambuf::traits_type;
    if (Traits::eq_int_type(c, Traits::eof())) return Traits::not_eof(c);
    held_ += Traits::to_char_type(c);
    if (held_.back() == '\n') sync();
    return c;
}

int SafeStream::sync() {
    target_ << printable(held_) << std::flush;
    held_.clear();
    return target_ ? 0 : -1;
}

}  // namespace velor
