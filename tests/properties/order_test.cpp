// The order in which a method asks for the pure values: each one that is missing may be a message, and messages count.
#include "properties/pure_value.h"
#include "support/sample_test.h"

namespace velor::test {
namespace {

struct OrderTest : SampleTest {
    OrderTest() : SampleTest(sampleSubstances(2)) {
        smes.DefSlozky(List({1, 2}));
        smes.Inivlr();
        for (int i = 1; i <= 2; ++i)
            for (int k = kETAG; k <= kSIGMA; ++k) smes.VLRConst(i, k, 8, 0);  // not given, but evaluated
    }

    // "1ETAG 2ETAG ", as the boxes tell; they are put away.
    std::string takeMissing() {
        std::string asked;
        for (const Message& message : messages) {
            const std::size_t name = message.text.find("vlast. ") + 7;
            asked += message.text.substr(7, 1);
            asked += message.text.substr(name, message.text.find(" neni v bázi!") - name) + " ";
        }
        messages.clear();
        return asked;
    }
};

TEST_F(OrderTest, isTheDocumentedOne) {
    const std::string density = "1ROLW 2ROLW ", viscosity = "1ETAL 1ROLW 2ETAL 2ROLW " + density;
    const std::pair<const char*, std::string> cases[] = {{"ROLW", density},
                                                         {"ETAL", viscosity},
                                                         {"SIGMA", "1ROLW 1SIGMA 2ROLW 2SIGMA " + density},
                                                         {"PRL", "1CPL 2CPL " + viscosity + "1ALAL 2ALAL "},
                                                         {"TENS", "1TENS 2TENS "},
                                                         {"ETAG", "1ETAG 2ETAG "},
                                                         {"ALAG", "1ETAG 2ETAG 1ALAG 2ALAG "},
                                                         {"SLW", ""}};
    for (const auto& [name, order] : cases)
        for (const int mode : {-1, 0, 1, 2}) {  // a missing property alone raises nothing
            smes.MaxErrHlas(1000);
            smes.ChyboveHlasky(mode);
            smes.Vlastnost(name, Fractions({0.5, 0.5}), 350, 1e5);
            EXPECT_EQ(takeMissing(), mode < 1 ? order : "") << name;
        }
    smes.ChyboveHlasky(0);
    smes.MaxErrHlas(smes.PocHlasek() + 3);
    smes.PrL(350, Fractions({0.5, 0.5}));
    EXPECT_EQ(messages.size(), 3U);  // the budget ends inside a call
}

}  // namespace
}  // namespace velor::test
