// Text to bytes and back: nothing may be lost, whatever the bytes.
#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>

#include "baze/compile.h"
#include "baze/decompile.h"
#include "support/sample_database.h"
#include "support/temporary_folder.h"

namespace velor::baze {
namespace {

void expectSameBytes(const std::string& bytes, Checks checks) {
    const TextDatabase text = decompile(bytes);
    ASSERT_EQ(text.refusal, "");
    const Compilation compiled = compile(text.substances, text.correlations, checks);
    ASSERT_TRUE(compiled.succeeded());
    EXPECT_TRUE(compiled.bytes == bytes);
}

TEST(RoundTrip, ourOwnDatabaseIsWhatTheTablesSay) {
    expectSameBytes(test::readFile(VELOR_DATABASE), Checks::Full);
    const std::string data = VELOR_DATA "/";
    const Compilation compiled = compile(test::readFile(data + std::string(kSubstancesFile)),
                                         test::readFile(data + std::string(kCorrelationsFile)), Checks::Full);
    EXPECT_TRUE(compiled.bytes == test::readFile(VELOR_DATABASE));
}

TEST(RoundTrip, whatIsNoDatabaseIsRefused) {
    EXPECT_NE(decompile(std::string(kRecordSize - 1, ' ')).refusal, "");
    EXPECT_NE(decompile(std::string(kRecordSize + 1, ' ')).refusal, "");
    const std::string blank = test::databaseBytes({{test::blankRecord()}});
    std::string most;
    for (int i = 0; i < 32767; ++i) most += blank;
    expectSameBytes(most, Checks::FormOnly);
    EXPECT_NE(decompile(most + blank).refusal.find("záznam 32768"), std::string::npos);
}

}  // namespace
}  // namespace velor::baze
