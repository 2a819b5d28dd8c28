// What every method of a mixture does with arguments that it cannot read: one contract for all of them.
#include "support/methods.h"
#include "support/sample_test.h"

namespace velor::test {
namespace {

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
