#include <gtest/gtest.h>

#include <filesystem>

#include "platform/file_system.h"
#include "support/sample_mixture.h"

namespace velor::test {
namespace {

TEST(CorrelationItems, areReadAndWritten) {
    TLatka record = sampleSubstance(1, "Voda");
    record.Korelace[10] = {{1, 2, 3, 4, 5, 6}, 7, 8, 9, 10};
    SampleMixture mixture({record});
    Smes& smes = mixture.smes;
    EXPECT_EQ(smes.VLRConst(1, 1, 1), -9999.0F);  // nothing defined yet
    smes.DefSlozky(List({1}));
    for (int j = 1; j <= 10; ++j) EXPECT_EQ(smes.VLRConst(1, 11, j), static_cast<float>(j));
    for (const int j : {0, 11, -1}) EXPECT_EQ(smes.VLRConst(1, 1, j), 0.0F);
    for (const auto& [i, k] : {std::pair{0, 1}, {2, 1}, {1, 0}, {1, 12}}) {
        EXPECT_EQ(smes.VLRConst(i, k, 1), -9999.0F);
        mixture.boxes.messages.clear();
        smes.VLRConst(i, k, 1, 5);
        EXPECT_EQ(mixture.boxes.messages,
                  (std::vector<Message>{{"VLRConst( ) - chybné zadání!", Icon::Exclamation, "VELOR"}}));
    }
    for (int j = 1; j <= 10; ++j) smes.VLRConst(1, 11, j, 2.5 + j);
    for (int j = 1; j <= 6; ++j) EXPECT_EQ(smes.VLRConst(1, 11, j), 2.5F + static_cast<float>(j));
    const float rounded[] = {10, 10, 12, 12};  // halves to even
    for (int j = 7; j <= 10; ++j) EXPECT_EQ(smes.VLRConst(1, 11, j), rounded[j - 7]);
    EXPECT_EQ(errorNumber([&] { smes.VLRConst(1, 11, 7, 40000); }), 6);
    EXPECT_EQ(errorNumber([&] { smes.VLRConst(1, 11, 1, 1e300); }), 6);
    // A definition counts as not loaded, so the next load takes the writing back, as built.
    smes.Inivlr();
    EXPECT_EQ(smes.VLRConst(1, 11, 7), 7.0F);
}

TEST(Settings, ignoreWhatTheyShould) {
    RecordingUserInterface boxes;
    Smes smes(boxes);
    smes.DataFileName("");
    EXPECT_EQ(smes.DataFileName(), "VELOR.DRC");
    const std::string folder = "velor", ended = folder + platform::kPathSeparator;
    for (const std::string& written : {"  " + folder + " ", std::string(), ended}) {
        smes.CFGPath(written);
        EXPECT_EQ(smes.CFGPath(), ended);
    }
    for (const int mode : {-1, 0, 1, 2, -2, 3, 32767}) {
        smes.ChyboveHlasky(mode);
        EXPECT_EQ(smes.ChyboveHlasky(), mode < -1 || mode > 2 ? 2 : mode);
    }
    smes.MaxErrHlas(0);
    smes.MaxErrHlas(-1);
    EXPECT_EQ(smes.MaxErrHlas(), 0);
    EXPECT_EQ(errorNumber([&] { smes.Redlich(32768); }), 6);
}

}  // namespace
}  // namespace velor::test
