// What every method of a mixture does with arguments that it cannot read: one contract for all of them.
#include <functional>

#include "support/sample_test.h"

namespace velor::test {
namespace {

using S = Smes;
using V = Variant;
using Call = std::function<Variant(Smes&, const Variant& T, const Variant& P, const Variant& X)>;

Call ofX(Variant (S::*method)(const V&)) {
    return [=](S& s, const V&, const V&, const V& X) { return (s.*method)(X); };
}
Call ofT(Variant (S::*method)(const V&, const V&)) {
    return [=](S& s, const V& T, const V&, const V& X) { return (s.*method)(T, X); };
}
Call ofP(Variant (S::*method)(const V&, const V&)) {
    return [=](S& s, const V&, const V& P, const V& X) { return (s.*method)(P, X); };
}
Call ofTP(Variant (S::*method)(const V&, const V&, const V&)) {
    return [=](S& s, const V& T, const V& P, const V& X) { return (s.*method)(T, P, X); };
}
Call converting(Variant (S::*method)(const V&, V&)) {
    return [=](S& s, const V&, const V&, const V& X) {
        Variant converted = Fractions({0, 0});
        return (s.*method)(X, converted);
    };
}

enum class Errors {
    Trapped,  // Empty, and in mode -1 raised under a title
    OfParts,  // the same for T and P, but an unreadable X makes an Empty part count as 0, and that a 0/0
    AsZero,   // the same, but the part's 0 is the result
    Raised
};

struct Method {
    std::string name;
    Call call;
    Errors errors;
    std::string trap = "", told = "T";  // whose trap it is, and what its title tells
};

// clang-format off
const Method kMethods[] = {
    {"VSM", ofX(&S::VSM), Errors::Trapped, "VSM", ""}, {"KsumX", ofX(&S::KsumX), Errors::Raised},
    {"Cohmo", converting(&S::Cohmo), Errors::Raised}, {"Comol", converting(&S::Comol), Errors::Raised},
    {"Normal", [](S& s, const V&, const V&, V X) { return s.Normal(X), X; }, Errors::Raised},
    {"PSEUD", [](S& s, const V&, const V&, const V& X) { return s.PSEUD(X, "T"); }, Errors::Raised},
    {"ETAG", ofT(&S::ETAG), Errors::Trapped, "ETAG"}, {"ALAG", ofT(&S::ALAG), Errors::Trapped, "ALAG"},
    {"CPG", ofT(&S::CPG), Errors::Raised}, {"CPGW", ofT(&S::CPGW), Errors::Raised},
    {"ROGW", ofTP(&S::ROGW), Errors::AsZero, "ROGW"},
    {"ROLW", ofT(&S::ROLW), Errors::Trapped, "ROLW"}, {"ETAL", ofT(&S::ETAL), Errors::Trapped, "ETAL"},
    {"ALAL", ofT(&S::ALAL), Errors::Trapped, "ALAL"}, {"SL", ofT(&S::SL), Errors::Trapped, "SL"},
    {"SIGMA", ofT(&S::SIGMA), Errors::Trapped, "SIGMA"}, {"TENS", ofT(&S::TENS), Errors::Trapped, "TENS"},
    {"CPL", ofT(&S::CPL), Errors::Raised}, {"CPLW", ofT(&S::CPLW), Errors::Raised},
    {"DHV", ofT(&S::DHV), Errors::Raised}, {"DHVW", ofT(&S::DHVW), Errors::Raised},
    {"HL", ofT(&S::HL), Errors::Raised}, {"HLW", ofT(&S::HLW), Errors::Raised}, {"PrL", ofT(&S::PrL), Errors::Raised},
    {"SLW", ofT(&S::SLW), Errors::OfParts, "SL"}, {"ObjRozL", ofT(&S::ObjRozL), Errors::OfParts, "ROLW", "T-3"},
    {"ReL", [](S& s, const V& T, const V&, const V& X) { return s.ReL(T, X, 1, 1); }, Errors::OfParts, "ROLW"},
    {"TEVRP", [](S& s, const V& T, const V& P, const V& X) { return s.TEVRP(1, T, P, X); }, Errors::Trapped, "TEVRP", "TP"},
    {"RHG", ofTP(&S::RHG), Errors::Trapped, "TEVRP", "TP"}, {"RHGW", ofTP(&S::RHGW), Errors::Trapped, "TEVRP", "TP"},
    {"RSG", ofTP(&S::RSG), Errors::Trapped, "TEVRP", "TP"}, {"RSGW", ofTP(&S::RSGW), Errors::Trapped, "TEVRP", "TP"},
    {"RUG", ofTP(&S::RUG), Errors::Trapped, "TEVRP", "TP"}, {"RUGW", ofTP(&S::RUGW), Errors::Trapped, "TEVRP", "TP"},
    {"RCPG", ofTP(&S::RCPG), Errors::Trapped, "TEVRP", "TP"}, {"RCPGW", ofTP(&S::RCPGW), Errors::Trapped, "TEVRP", "TP"},
    {"RCVG", ofTP(&S::RCVG), Errors::Trapped, "TEVRP", "TP"}, {"RCVGW", ofTP(&S::RCVGW), Errors::Trapped, "TEVRP", "TP"},
    {"LnFug", ofTP(&S::LnFug), Errors::Trapped, "TEVRP", "TP"}, {"Kapa", ofTP(&S::Kapa), Errors::Trapped, "TEVRP", "TP"},
    {"JTkoef", ofTP(&S::JTkoef), Errors::Trapped, "TEVRP", "TP"}, {"PrG", ofTP(&S::PrG), Errors::Trapped, "TEVRP", "TP"},
    {"RROGW", ofTP(&S::RROGW), Errors::Trapped, "RROGW", "TP"},
    {"ReG", [](S& s, const V& T, const V& P, const V& X) { return s.ReG(T, P, X, 1, 1); }, Errors::Trapped, "RROGW", "TP"},
    {"RETAG", ofTP(&S::RETAG), Errors::Trapped, "RETAG"}, {"RALAG", ofTP(&S::RALAG), Errors::Trapped, "RALAG", "TP"},
    {"TBV", ofP(&S::TBV), Errors::Trapped, "TBV", "P"}, {"TRB", ofP(&S::TRB), Errors::Trapped, "TRB", "P"}};
// clang-format on

std::string titleOf(const Method& method, const std::string& T, const std::string& P) {
    if (method.trap.empty()) return {};
    std::string title = "VELOR - " + method.trap;
    if (method.told.starts_with('T')) title += "; T(K)= " + T;
    if (method.told == "TP") title += " ,P(Pa)= " + P;
    if (method.told == "P") title += "; P(Pa)= " + P;
    return title;
}

struct TrapTest : SampleTest {
    TrapTest() : SampleTest(sampleSubstances(3)) { smes.DefSlozky(List({2, 3})); }

    // An error raised in any mode, or the result in mode 0 and the title in mode -1.
    void expectFailure(const Method& method, const V& T, const V& P, const V& X, int error, const V& result,
                       const std::string& title) {
        const auto call = [&] { return method.call(smes, T, P, X); };
        smes.ChyboveHlasky(0);
        Variant found;
        EXPECT_EQ(errorNumber([&] { found = call(); }), error) << method.name;
        EXPECT_EQ(found, result) << method.name;
        smes.ChyboveHlasky(-1);
        if (!title.empty()) {
            EXPECT_EQ(trapSource(call), title) << method.name;
        }
        smes.ChyboveHlasky(0);
        EXPECT_TRUE(messages.empty()) << method.name;  // the reporter shows no box for classic errors
    }
};

TEST_F(TrapTest, compositionsThatCannotBeRead) {
    for (const Method& method : kMethods)
        for (const Unreadable& u : kUnreadable) {
            SCOPED_TRACE(u.what);
            const int error = method.errors == Errors::Raised ? u.error : method.errors == Errors::OfParts ? 11 : 0;
            const std::string T = method.told == "T-3" ? "297.3" : "300.3";
            expectFailure(method, 300.26, 101325.4, u.X, error, method.errors == Errors::AsZero ? V(0.0) : V(),
                          titleOf(method, T, "101325"));
        }
}

TEST_F(TrapTest, statesThatCannotBeRead) {
    const Variant X = Fractions({0.4, 0.6});
    for (const Method& method : kMethods) {
        const bool raises = method.errors == Errors::Raised || method.errors == Errors::OfParts;
        const auto expectTrap = [&](const V& T, const V& P, const std::string& shownT, const std::string& shownP) {
            expectFailure(method, T, P, X, raises ? 13 : 0, {}, raises ? "" : titleOf(method, shownT, shownP));
        };
        const Variant value = method.call(smes, 350, 380, X);
        ASSERT_FALSE(value.isEmpty()) << method.name;
        if (method.call(smes, 340, 380, X) != value) expectTrap("teplo", 380, "teplo", "380");
        if (method.call(smes, 350, 390, X) != value) expectTrap("300,26", "tlak", "300.3", "tlak");
    }
}

}  // namespace
}  // namespace velor::test
