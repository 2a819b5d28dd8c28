// What the way through COM adds to a call of ROLW: com_overhead VELOR.DLL DATABASE. The component need not be
// registered.
#include <algorithm>
#include <chrono>
#include <cmath>
#include <iostream>
#include <limits>

#include "com/holders.h"
#include "com/variant_conversion.h"
#include "com/velor_com.h"
#include "velor/smes.h"

namespace velor::bench {
namespace {

using com::ComPointer;
using com::OwnVariant;

class Passed : public OwnVariant {
  public:
    explicit Passed(const Variant& value) { com::fromVariant(value, *get()); }
};

// Of one call, the least of the rounds.
template <class Call>
double nanoseconds(const Call& call) {
    constexpr int kRounds = 5, kCalls = 50'000;
    double least = std::numeric_limits<double>::infinity();
    for (int round = 0; round < kRounds; ++round) {
        const auto start = std::chrono::steady_clock::now();
        for (int i = 0; i < kCalls; ++i) call();
        const std::chrono::duration<double, std::nano> taken = std::chrono::steady_clock::now() - start;
        least = std::min(least, taken.count() / kCalls);
    }
    return least;
}

void report(const char* way, double time, double direct, int goal) {
    std::cout << way << ' ' << std::lround(time) << " ns, " << std::round(10 * time / direct) / 10 << " x (goal "
              << goal << " x)\n";
}

ComPointer<ISmes> createSmes(const wchar_t* library) {
    using Function = HRESULT(STDAPICALLTYPE*)(REFCLSID, REFIID, void**);
    HMODULE module = LoadLibraryW(library);
    const auto getClassObject =
        reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module, "DllGetClassObject")));
    void *factory = nullptr, *object = nullptr;
    if (getClassObject == nullptr || FAILED(getClassObject(__uuidof(::Smes), IID_IClassFactory, &factory))) return {};
    ComPointer<IClassFactory>(static_cast<IClassFactory*>(factory))->CreateInstance(nullptr, __uuidof(ISmes), &object);
    return ComPointer<ISmes>(static_cast<ISmes*>(object));
}

int measure(const wchar_t* library, const wchar_t* database) {
    const auto smes = createSmes(library);
    if (!smes) return 1;
    const com::Bstr path(SysAllocString(database));
    smes->put_AdrVELOR(path.get());
    const Passed substances(List({235, 1}));
    smes->DefSlozky(*substances);
    RecordingUserInterface boxes;
    Smes plain(boxes);
    plain.AdrVELOR(com::toText(path.get()));
    plain.DefSlozky(List({235, 1}));
    const Variant T = 330.0, X = Fractions({0.4, 0.6});
    const Passed passedT(T), passedX(X);
    OLECHAR name[] = L"ROLW";
    LPOLESTR names[] = {name};
    DISPID id = 0;
    smes->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
    VARIANT backwards[] = {*passedX, *passedT};
    DISPPARAMS parameters{backwards, nullptr, 2, 0};
    OwnVariant early, late;
    Variant direct;
    const double time = nanoseconds([&] { direct = plain.ROLW(T, X); });
    std::cout << "ROLW, two components: direct " << std::lround(time) << " ns\n";
    report("early-bound", nanoseconds([&] { smes->ROLW(*passedT, *passedX, early.get()); }), time, 3);
    const auto invoke = [&] {
        smes->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, late.get(), nullptr, nullptr);
    };
    report("late-bound", nanoseconds(invoke), time, 10);
    return early->dblVal == direct.toDouble() && late->dblVal == direct.toDouble() ? 0 : 1;
}

}  // namespace
}  // namespace velor::bench

int wmain(int argc, wchar_t** argv) {
    if (argc != 3 || FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 2;
    const int failed = velor::bench::measure(argv[1], argv[2]);
    CoUninitialize();
    return failed;
}
