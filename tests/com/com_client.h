// A client of the registered component.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <array>
#include <deque>
#include <string>
#include <vector>

#include "com/holders.h"
#include "com/variant_conversion.h"
#include "com/velor_com.h"
#include "platform/windows/wide_text.h"

namespace velor::test {

using com::Bstr;
using com::ComPointer;
using com::OwnVariant;

inline constexpr HRESULT classicError(int number) {
    return static_cast<HRESULT>(0x800A0000U + static_cast<unsigned>(number));
}

struct Apartment {
    Apartment() { EXPECT_GE(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), 0); }
    ~Apartment() { CoUninitialize(); }
    Apartment(const Apartment&) = delete;
    Apartment& operator=(const Apartment&) = delete;
};

inline ComPointer<ISmes> createSmes() {
    CLSID id{};
    EXPECT_EQ(CLSIDFromProgID(L"VELOR.Smes", &id), S_OK);
    void* object = nullptr;
    EXPECT_EQ(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(ISmes), &object), S_OK);
    return ComPointer<ISmes>(static_cast<ISmes*>(object));
}

// A Variant as an automation argument.
class Passed : public OwnVariant {
  public:
    Passed(const Variant& value) { com::fromVariant(value, *get()); }
    operator VARIANT() const { return **this; }
};

inline HRESULT define(ISmes& smes, std::span<const int> substances) {
    const HRESULT result = smes.DefSlozky(Passed(List(substances)));
    OwnVariant count;
    smes.Inivlr(count.get());
    EXPECT_EQ(com::toVariant(*count).toInt16(), static_cast<int>(substances.size()));
    return result;
}

struct Failure {
    HRESULT code = S_OK;
    std::string source, description;
};

inline std::string takeText(BSTR text) { return com::toText(Bstr(text).get()); }

// What a late-bound host sees. Arguments in their usual order.
struct LateCall {
    HRESULT result = S_OK;
    Failure failure;
    Variant value;

    LateCall(IDispatch& object, const std::wstring& name, const std::vector<Variant>& arguments,
             WORD flags = DISPATCH_METHOD | DISPATCH_PROPERTYGET) {
        auto* text = const_cast<LPOLESTR>(name.c_str());
        DISPID id = 0;
        result = object.GetIDsOfNames(IID_NULL, &text, 1, LOCALE_USER_DEFAULT, &id);
        if (FAILED(result)) return;
        const std::deque<Passed> passed(arguments.rbegin(), arguments.rend());
        std::vector<VARIANT> backwards;
        for (const Passed& argument : passed) backwards.push_back(*argument);
        DISPID put = DISPID_PROPERTYPUT;
        const bool putting = flags == DISPATCH_PROPERTYPUT;
        DISPPARAMS parameters{backwards.data(), putting ? &put : nullptr, static_cast<UINT>(backwards.size()),
                              putting ? 1U : 0U};
        OwnVariant answer;
        EXCEPINFO exception{};
        UINT badArgument = 0;
        result = object.Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, putting ? nullptr : answer.get(),
                               &exception, &badArgument);
        failure = {exception.scode, takeText(exception.bstrSource), takeText(exception.bstrDescription)};
        takeText(exception.bstrHelpFile);
        if (SUCCEEDED(result)) value = com::toVariant(*answer);
    }
};

}  // namespace velor::test
