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

TEST(RoundTrip, oddRecordsSurvive) {
    using Limits = std::numeric_limits<float>;
    void (*const changes[])(TLatka&) = {
        // clang-format off
        [](TLatka& r) { r.Rezerva2 = -7, r.Rezerva57 = -0.0F, r.Rezerva58 = -9999.0F, r.Cislo = -32768; },
        [](TLatka& r) { r.Nazev.fill('\0'); },
        [](TLatka& r) { test::setText(r.Nazev, "   x"); },
        [](TLatka& r) { std::copy_n("\x81\x83\x88\x90\x98", 5, r.Vzorec.begin()); },  // undefined
        [](TLatka& r) { test::setText(r.Nazev, "\",\\x41\\\\\n\r\""); },  // what the text form itself uses
        [](TLatka& r) { r.CAS = 9999; },  // too short
        [](TLatka& r) { r.CAS = std::numeric_limits<std::int32_t>::min(); },
        [](TLatka& r) { r.Mv = 0.0F, r.Tkr = -0.0F, r.Pkr = -9999.0F; },
        [](TLatka& r) { r.Mv = Limits::denorm_min(), r.Tkr = -Limits::max(); },
        [](TLatka& r) { r.Mv = Limits::infinity(), r.Korelace[0].A[0] = Limits::quiet_NaN(); },
        [](TLatka& r) { r.Korelace[0].Typ = -1, r.Korelace[1].Typ = 32767, r.Korelace[2].Priznak = 0; },
        [](TLatka& r) { r.Korelace[0].A[5] = 1.0F, r.Korelace[1].A[5] = -0.0F; },  // not used by the type
        [](TLatka& r) { r.Korelace[10] = {{-0.0F}, 0, 0, 0, 0}; },
        [](TLatka& r) { r.Korelace[4].Tmin = 30000; },  // upside down
        // clang-format on
    };
    const std::string first = test::databaseBytes({{test::sampleSubstance(1, "První")}});
    for (std::size_t i = 0; i < std::size(changes); ++i) {
        SCOPED_TRACE(i);
        TLatka record = test::sampleSubstance(2, "Látka");
        changes[i](record);
        expectSameBytes(first + test::databaseBytes({{record}}) + first, Checks::FormOnly);
    }
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
