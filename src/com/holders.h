// Owners of the system's handles: one alias each.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

namespace velor::com {

// Named, because functions with a lambda's type in their signature could not be called from another file.
struct TextCloser {
    void operator()(BSTR text) const { SysFreeString(text); }
};
struct ArrayCloser {
    void operator()(SAFEARRAY* array) const { SafeArrayDestroy(array); }
};
struct AccessCloser {
    void operator()(SAFEARRAY* array) const { SafeArrayUnaccessData(array); }
};
struct KeyCloser {
    void operator()(HKEY key) const { RegCloseKey(key); }
};
struct ObjectCloser {
    template <class Interface>
    void operator()(Interface* object) const {
        object->Release();
    }
};

using Bstr = std::unique_ptr<OLECHAR, TextCloser>;
using SafeArray = std::unique_ptr<SAFEARRAY, ArrayCloser>;
using ArrayAccess = std::unique_ptr<SAFEARRAY, AccessCloser>;
using RegistryKey = std::unique_ptr<std::remove_pointer_t<HKEY>, KeyCloser>;
template <class Interface>
using ComPointer = std::unique_ptr<Interface, ObjectCloser>;

// A VARIANT that is cleared at the end.
class OwnVariant {
  public:
    OwnVariant() = default;
    ~OwnVariant() { VariantClear(&variant_); }
    OwnVariant(const OwnVariant&) = delete;
    OwnVariant& operator=(const OwnVariant&) = delete;

    VARIANT* get() { return &variant_; }
    VARIANT* operator->() { return &variant_; }
    const VARIANT& operator*() const { return variant_; }
    // Hands the content over.
    VARIANT release() {
        const VARIANT content = variant_;
        variant_ = VARIANT{};
        return content;
    }

  private:
    VARIANT variant_{};
};

}  // namespace velor::com
