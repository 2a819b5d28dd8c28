// What the way through COM adds to a call: measured and printed, not judged.
#include <chrono>
#include <iostream>

#include "com/box_watcher.h"
#include "com/com_client.h"
#include "velor/smes.h"

namespace velor::test {
namespace {

template <class Call>
double nanoseconds(const Call& call) {
    constexpr int kCalls = 20'000;
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < kCalls; ++i) call();
    return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count() / kCalls;
}

TEST(Overhead, isMeasured) {
    const Apartment apartment;
    const auto smes = createSmes();
    define(*smes, std::array{235, 1});
    RecordingUserInterface boxes;
    Smes plain(boxes);
    plain.AdrVELOR(VELOR_DATABASE);
    plain.DefSlozky(List({235, 1}));
    const Variant T = 330.0, X = Fractions({0.4, 0.6});
    Passed passedT(T), passedX(X);
    OLECHAR name[] = L"ROLW";
    LPOLESTR names[] = {name};
    DISPID id = 0;
    ASSERT_EQ(smes->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id), S_OK);
    VARIANT backwards[] = {passedX, passedT};
    DISPPARAMS parameters{backwards, nullptr, 2, 0};
    OwnVariant early, late;
    Variant direct;
    const double directTime = nanoseconds([&] { direct = plain.ROLW(T, X); });
    const double earlyTime = nanoseconds([&] { smes->ROLW(passedT, passedX, early.get()); });
    const double lateTime = nanoseconds([&] {
        smes->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters, late.get(), nullptr, nullptr);
    });
    EXPECT_EQ(early->dblVal, direct.toDouble());
    EXPECT_EQ(late->dblVal, direct.toDouble());
    std::cout << "overhead of ROLW, two components: direct " << directTime << " ns, early-bound " << earlyTime
              << " ns, late-bound " << lateTime << " ns\n";
}

}  // namespace
}  // namespace velor::test
