// How an argument of the dual interface reaches the library, and how an answer comes back.
#pragma once

#include <windows.h>

#include <string>

#include "com/holders.h"
#include "com/variant_conversion.h"
#include "runtime/checked.h"
#include "runtime/numbers.h"

namespace velor::com {

// One argument: `value` is what the library takes.
template <class Raw>
struct Argument;

template <>
struct Argument<short> {
    int value;
    explicit Argument(short raw) : value(raw) {}
    void giveBack() {}
};

template <>
struct Argument<float> {
    float value;
    explicit Argument(float raw) : value(raw) {}
    void giveBack() {}
};

template <>
struct Argument<BSTR> {
    std::string value;
    explicit Argument(BSTR raw) : value(toText(raw)) {}
    void giveBack() {}
};

template <>
struct Argument<VARIANT> {
    Variant value;
    explicit Argument(const VARIANT& raw) : value(toVariant(raw)) {}
    void giveBack() {}
};

// One that may have several dimensions.
struct Ranged {
    const VARIANT& raw;
};
template <>
struct Argument<Ranged> {
    Grid value;
    explicit Argument(const Ranged& range) : value(toGrid(range.raw)) {}
    void giveBack() {}
};

// By reference: what the call changed is given back.
template <>
struct Argument<VARIANT*> {
    Variant value;
    explicit Argument(VARIANT* raw) : value(valueAt(raw)), before_(value), raw_(raw) {}
    void giveBack() {
        if (value != before_) writeBack(value, *raw_);
    }

  private:
    static Variant valueAt(const VARIANT* raw) {
        if (raw == nullptr) checked::raise(RunTimeError::kTypeMismatch);
        return toVariant(*raw);
    }

    Variant before_;
    VARIANT* raw_;
};

// An answer kept until the call is sure to succeed: only then the caller owns it.
inline void keep(short& kept, int value) { kept = checkedInt16(value); }
inline void keep(float& kept, float value) { kept = value; }
inline void keep(Bstr& kept, const std::string& value) { kept = toBstr(value); }
inline void keep(OwnVariant& kept, const Variant& value) { fromVariant(value, *kept.get()); }
inline void keep(OwnVariant& kept, const Grid& value) { fromGrid(value, *kept.get()); }

inline short handOver(short kept) { return kept; }
inline float handOver(float kept) { return kept; }
inline BSTR handOver(Bstr& kept) { return kept.release(); }
inline VARIANT handOver(OwnVariant& kept) { return kept.release(); }

template <class Raw>
struct KeptAs {
    using type = Raw;
};
template <>
struct KeptAs<BSTR> {
    using type = Bstr;
};
template <>
struct KeptAs<VARIANT> {
    using type = OwnVariant;
};

}  // namespace velor::com
