// What every fuzz target shares: the entry point's name, the bytes handed out piece by piece, and what counts as a
// finding beside a crash.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>

#include "velor/run_time_error.h"
#include "velor/variant.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace velor::fuzz {

// A finding: tells what and stops, so that the fuzzer keeps the input.
[[noreturn]] inline void finding(std::string_view what) {
    std::fprintf(stderr, "finding: %.*s\n", static_cast<int>(what.size()), what.data());
    std::abort();
}

inline void require(bool holds, std::string_view what) {
    if (!holds) finding(what);
}

// The input, taken from its front. Where it has ended there are zeros and empty texts.
class Bytes {
  public:
    Bytes(const std::uint8_t* data, std::size_t size) : rest_(reinterpret_cast<const char*>(data), size) {}

    bool empty() const { return rest_.empty(); }

    template <class Number>
    Number take() {
        static_assert(std::is_trivially_copyable_v<Number>);
        Number number{};
        const std::string_view bytes = takeText(sizeof number);
        std::memcpy(&number, bytes.data(), bytes.size());
        return number;
    }

    std::string_view takeText(std::size_t length) {
        const std::string_view text = rest_.substr(0, std::min(length, rest_.size()));
        rest_.remove_prefix(text.size());
        return text;
    }

    std::string_view takeRest() { return takeText(rest_.size()); }

  private:
    std::string_view rest_;
};

// Neither infinity nor NaN may leave the library, in an array's elements neither.
inline void requireFinite(const Variant& value, std::string_view where) {
    switch (value.kind()) {
        case Variant::Kind::Single:
        case Variant::Kind::Double:
        case Variant::Kind::Date:
            try {
                require(std::isfinite(value.toDouble()), where);
            } catch (const RunTimeError&) {
                finding(where);  // the conversion refuses what is not finite
            }
            return;
        case Variant::Kind::Array:
            for (int i = value.lowerBound(); i <= value.upperBound(); ++i) requireFinite(value.at(i), where);
            return;
        default:
            return;
    }
}

// Runs a call. What it answers has to be finite, and a run-time error is the only exception that it may raise: any
// other leaves the target and is a finding.
template <class Call>
void tryCall(std::string_view where, const Call& call) {
    try {
        if constexpr (std::is_void_v<decltype(call())>) {
            call();
        } else {
            requireFinite(Variant(call()), where);
        }
    } catch (const RunTimeError&) {
        return;
    }
}

}  // namespace velor::fuzz
