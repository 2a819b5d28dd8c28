// What the component promises to every host: identity, errors, floating-point state, lifetime, apartments.
// The second needs the types of the first.
// clang-format off
#include <windows.h>
#include <psapi.h>
// clang-format on

#include <cfenv>
#include <future>
#include <iostream>

#include "com/box_watcher.h"
#include "com/com_client.h"

namespace velor::test {
namespace {

using Members = std::vector<std::pair<std::wstring, FUNCDESC>>;

ComPointer<ITypeInfo> typeOf(ISmes& smes) {
    ITypeInfo* information = nullptr;
    EXPECT_EQ(smes.GetTypeInfo(0, LOCALE_NEUTRAL, &information), S_OK);
    return ComPointer<ITypeInfo>(information);
}

// The members of the interface's own, with their names.
Members membersOf(ISmes& smes) {
    const auto information = typeOf(smes);
    Members members;
    FUNCDESC* function = nullptr;
    for (UINT i = 0; information->GetFuncDesc(i, &function) == S_OK; ++i) {
        BSTR name = nullptr;
        UINT count = 0;
        information->GetNames(function->memid, &name, 1, &count);
        const Bstr owned(name);
        if (function->memid > 0 && function->memid < 0x10000) members.emplace_back(name, *function);
        information->ReleaseFuncDesc(function);
    }
    return members;
}

unsigned mxcsr() { return __builtin_ia32_stmxcsr() & ~0x3FU; }  // without the sticky flags

// A host that wants to be stopped by an invalid operation, a division by zero and an overflow of its own.
class UnmaskedTraps {
  public:
    UnmaskedTraps() { __builtin_ia32_ldmxcsr(kUnmasked); }
    ~UnmaskedTraps() { __builtin_ia32_ldmxcsr(before_); }
    UnmaskedTraps(const UnmaskedTraps&) = delete;
    UnmaskedTraps& operator=(const UnmaskedTraps&) = delete;

    static constexpr unsigned kUnmasked = 0x1900;  // denormal, underflow and inexact results stay masked

  private:
    unsigned before_ = __builtin_ia32_stmxcsr();
};

TEST(Identity, isOneObjectWithItsInterfacesAndNoOuterOne) {
    const Apartment apartment;
    const auto smes = createSmes();
    IUnknown *first = nullptr, *second = nullptr;
    ISupportErrorInfo* errors = nullptr;
    ASSERT_EQ(smes->QueryInterface(IID_ISupportErrorInfo, reinterpret_cast<void**>(&errors)), S_OK);
    const ComPointer<ISupportErrorInfo> owned(errors);
    EXPECT_EQ(errors->InterfaceSupportsErrorInfo(__uuidof(ISmes)), S_OK);
    EXPECT_EQ(smes->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(&first)), S_OK);
    EXPECT_EQ(errors->QueryInterface(IID_IUnknown, reinterpret_cast<void**>(&second)), S_OK);
    EXPECT_EQ(ComPointer<IUnknown>(first).get(), ComPointer<IUnknown>(second).get());
    void* nothing = nullptr;
    EXPECT_EQ(smes->QueryInterface(IID_IPersist, &nothing), E_NOINTERFACE);
    EXPECT_EQ(CoCreateInstance(__uuidof(::Smes), smes.get(), CLSCTX_INPROC_SERVER, IID_IUnknown, &nothing),
              CLASS_E_NOAGGREGATION);
}

TEST(Errors, haveNumberSourceAndDescription) {
    const Apartment apartment;
    const BoxWatcher boxes;
    const auto smes = createSmes();
    define(*smes, std::array{235, 1});
    struct Case {
        const wchar_t* member;
        std::vector<Variant> arguments;
        HRESULT result, code;
        std::string source, description;
    };
    const HRESULT raised = static_cast<HRESULT>(0x80040258);
    smes->put_ChyboveHlasky(-1);
    const Case cases[] = {
        {L"Mvi", {21}, DISP_E_EXCEPTION, classicError(9), "VELOR", "Subscript out of range"},
        {L"Log10", {-1.0}, DISP_E_EXCEPTION, classicError(5), "VELOR", "Invalid procedure call or argument"},
        {L"Log10", {"abc"}, DISP_E_EXCEPTION, classicError(13), "VELOR", "Type mismatch"},
        {L"Log10", {Variant::null()}, DISP_E_EXCEPTION, classicError(94), "VELOR", "Invalid use of Null"},
        {L"ROLW",
         {"abc", Fractions({0.4, 0.6})},
         DISP_E_EXCEPTION,
         raised,
         "VELOR - ROLW; T(K)= abc",
         "Chyba při výpočtu vlastnosti!"},
        {L"Mvi", {100000}, DISP_E_OVERFLOW, S_OK, "", ""},
        {L"Mvi", {"abc"}, DISP_E_TYPEMISMATCH, S_OK, "", ""},
        {L"Mvi", {1, 2}, DISP_E_BADPARAMCOUNT, S_OK, "", ""},
        {L"NoSuchMember", {}, DISP_E_UNKNOWNNAME, S_OK, "", ""},
    };
    for (const Case& each : cases) {
        const LateCall call(*smes, each.member, each.arguments);
        const std::string name = platform::fromWide(each.member);
        EXPECT_EQ(call.result, each.result) << name;
        EXPECT_EQ(call.failure.code, each.code) << name;
        EXPECT_EQ(call.failure.source, each.source) << name;
        if (!each.description.empty()) {
            EXPECT_EQ(call.failure.description, each.description) << name;
        }
    }
    // Early-bound: the code is the result, the texts are the thread's error information.
    OwnVariant result;
    EXPECT_EQ(smes->Mvi(0, result.get()), classicError(9));
    IErrorInfo* error = nullptr;
    ASSERT_EQ(GetErrorInfo(0, &error), S_OK);
    BSTR source = nullptr;
    ComPointer<IErrorInfo>(error)->GetSource(&source);
    EXPECT_EQ(takeText(source), "VELOR");
    EXPECT_EQ(smes->Mvi(1, nullptr), E_POINTER);
    EXPECT_EQ(smes->Normal(nullptr), classicError(13));
}

// Every member with every kind of nonsense: an answer or an error, and the object goes on.
TEST(WrongTypes, areRefusedEverywhere) {
    const Apartment apartment;
    const BoxWatcher boxes;
    const auto smes = createSmes();
    SetCurrentDirectoryW(L"D:\\");  // the smallest drive: an empty path is searched from the root
    const std::vector<Variant> nonsense = {{}, Variant::null(), Variant::missing(), "nesmysl", -1e300, List({1, 57})};
    for (const auto& [name, function] : membersOf(*smes)) {
        const bool puts = function.invkind == INVOKE_PROPERTYPUT;
        const int count = function.cParams - (puts ? 0 : function.elemdescFunc.tdesc.vt == VT_VOID ? 0 : 1);
        for (const Variant& value : nonsense) {
            const auto victim = createSmes();
            define(*victim, std::array{235, 1});
            const std::vector arguments(static_cast<std::size_t>(std::max(count, 0)), value);
            const auto kind = static_cast<WORD>(puts ? DISPATCH_PROPERTYPUT : DISPATCH_METHOD | DISPATCH_PROPERTYGET);
            const UnmaskedTraps traps;
            LateCall(*victim, name, arguments, kind);
            EXPECT_EQ(mxcsr(), UnmaskedTraps::kUnmasked) << platform::fromWide(name);
        }
        OwnVariant number;
        EXPECT_EQ(smes->Log10(Passed(100.0), number.get()), S_OK) << platform::fromWide(name);
        EXPECT_EQ(number->dblVal, 2.0);
    }
}

unsigned short x87Control() {
    unsigned short word = 0;
    asm("fnstcw %0" : "=m"(word));
    return word;
}

// Every rounding, precision and trap that a host may have chosen is out of force inside, and back outside.
TEST(FloatingPoint, isOursInsideAndTheHostsOutside) {
    const Apartment apartment;
    const BoxWatcher boxes;
    const auto smes = createSmes();
    define(*smes, std::array{235, 1});
    std::fenv_t usual{};
    std::fegetenv(&usual);
    Passed X(Fractions({0.4, 0.6})), zeros(Fractions({0.0, 0.0})), T(300.0), P(1e5);
    OwnVariant expected, value, failed;
    smes->Vlastnost(Bstr(SysAllocString(L"RHG")).get(), X, T, P, expected.get());
    // Single precision, subnormals as zero, rounding down; traps for invalid operations, division by zero, overflow.
    const unsigned short word = 0x0430;
    std::feclearexcept(FE_ALL_EXCEPT);
    asm volatile("fldcw %0" : : "m"(word));
    __builtin_ia32_ldmxcsr(0x1000 | 0x0800 | 0x0040 | 0x2000);
    const unsigned before = mxcsr();
    const HRESULT result = smes->RHG(T, P, X, value.get());
    const HRESULT division = smes->Normal(zeros.get());
    const HRESULT late = LateCall(*smes, L"Log10", {0}).failure.code;
    const auto other = createSmes();
    const unsigned after = mxcsr();
    const unsigned short wordAfter = x87Control();
    std::fesetenv(&usual);
    EXPECT_EQ(result, S_OK);
    EXPECT_EQ(division, classicError(11));
    EXPECT_EQ(late, classicError(5));
    EXPECT_EQ(value->dblVal, expected->dblVal);
    EXPECT_EQ(after, before);
    EXPECT_EQ(wordAfter & 0x0F3F, word & 0x0F3F);
}

SIZE_T committedBytes() {
    PROCESS_MEMORY_COUNTERS counters{};
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    return counters.PagefileUsage;
}

TEST(Lifetime, tenThousandObjectsLeaveNothing) {
    const Apartment apartment;
    const auto work = [](int count) {
        for (int i = 0; i < count; ++i) {
            const auto smes = createSmes();
            LateCall(*smes, L"SNazev", {"směs"}, DISPATCH_PROPERTYPUT);
            LateCall(*smes, L"Mvi", {21});
        }
    };
    work(500);
    const SIZE_T before = committedBytes();
    work(10'000);
    const auto growth = static_cast<long long>(committedBytes()) - static_cast<long long>(before);
    std::cout << "growth over 10 000 objects: " << growth << " bytes\n";
    EXPECT_LT(growth, 256 * 1024);
}

TEST(Lifetime, theLibraryGoesWithItsLastObjectAndLock) {
    const Apartment apartment;
    auto smes = createSmes();
    HMODULE library = GetModuleHandleW(L"velor.dll");
    const auto canUnload =
        reinterpret_cast<HRESULT (*)()>(reinterpret_cast<void*>(GetProcAddress(library, "DllCanUnloadNow")));
    IClassFactory* factory = nullptr;
    ASSERT_EQ(CoGetClassObject(__uuidof(::Smes), CLSCTX_INPROC_SERVER, nullptr, IID_IClassFactory,
                               reinterpret_cast<void**>(&factory)),
              S_OK);
    EXPECT_EQ(factory->LockServer(TRUE), S_OK);
    smes.reset();
    EXPECT_EQ(canUnload(), S_FALSE);
    EXPECT_EQ(factory->LockServer(FALSE), S_OK);
    EXPECT_EQ(canUnload(), S_FALSE);  // the factory itself
    factory->Release();
    EXPECT_EQ(canUnload(), S_OK);
}

}  // namespace
}  // namespace velor::test
