// Text to bytes and back: nothing may be lost, whatever the bytes.
#include <gtest/gtest.h>

#include <bit>
#include <limits>
#include <random>
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
    const auto firstReason = [&] {
        const LineFaults& faults =
            compiled.substanceFaults.empty() ? compiled.correlationFaults : compiled.substanceFaults;
        return std::to_string(faults.front().line) + ": " + faults.front().reason;
    };
    ASSERT_TRUE(compiled.succeeded()) << firstReason();
    EXPECT_TRUE(compiled.bytes == bytes);
}

TEST(RoundTrip, ourOwnDatabaseNeedsNoSwitch) { expectSameBytes(test::readFile(VELOR_DATABASE), Checks::Full); }

TEST(RoundTrip, ourOwnDatabaseIsWhatTheTablesSay) {
    const std::string data = VELOR_DATA "/";
    const Compilation compiled = compile(test::readFile(data + std::string(kSubstancesFile)),
                                         test::readFile(data + std::string(kCorrelationsFile)), Checks::Full);
    EXPECT_TRUE(compiled.bytes == test::readFile(VELOR_DATABASE));
}

TLatka oddRecord(void (*change)(TLatka&)) {
    TLatka record = test::sampleSubstance(2, "Látka");
    change(record);
    return record;
}

struct OddCase {
    std::string_view name;
    void (*change)(TLatka&);
};

constexpr OddCase kOddCases[] = {
    {"reserved fields",
     [](TLatka& r) {
         r.Rezerva2 = -7;
         r.Rezerva57 = -0.0F;
         r.Rezerva58 = -9999.0F;
     }},
    {"another number", [](TLatka& r) { r.Cislo = -32768; }},
    {"no name", [](TLatka& r) { test::setText(r.Nazev, ""); }},
    {"name of zero bytes", [](TLatka& r) { r.Nazev.fill('\0'); }},
    {"zero bytes after the text", [](TLatka& r) { r.Synonym[29] = '\0'; }},
    {"leading blanks", [](TLatka& r) { test::setText(r.Nazev, "   x"); }},
    {"undefined bytes",
     [](TLatka& r) {
         for (std::size_t i = 0; i < 5; ++i) r.Vzorec[i] = "\x81\x83\x88\x90\x98"[i];
     }},
    {"what the text form itself uses", [](TLatka& r) { test::setText(r.Nazev, "\",\\x41\\\\\n\r\""); }},
    {"registry number too short", [](TLatka& r) { r.CAS = 9999; }},
    {"registry number too long", [](TLatka& r) { r.CAS = std::numeric_limits<std::int32_t>::max(); }},
    {"negative registry number", [](TLatka& r) { r.CAS = std::numeric_limits<std::int32_t>::min(); }},
    {"zero, negative zero and unknown",
     [](TLatka& r) {
         r.Mv = 0.0F;
         r.Tkr = -0.0F;
         r.Pkr = -9999.0F;
     }},
    {"least and greatest single",
     [](TLatka& r) {
         r.Mv = std::numeric_limits<float>::denorm_min();
         r.Tkr = -std::numeric_limits<float>::max();
     }},
    {"not finite",
     [](TLatka& r) {
         r.Mv = std::numeric_limits<float>::infinity();
         r.Korelace[0].A[0] = std::numeric_limits<float>::quiet_NaN();
     }},
    {"equation type and flag",
     [](TLatka& r) {
         r.Korelace[0].Typ = -1;
         r.Korelace[1].Typ = 32767;
         r.Korelace[2].Priznak = 0;
         r.Korelace[3].Priznak = -5;
     }},
    {"coefficients that the type does not use",
     [](TLatka& r) {
         r.Korelace[0].A[5] = 1.0F;
         r.Korelace[1].A[5] = -0.0F;
     }},
    {"only a negative zero in a block",
     [](TLatka& r) {
         r.Korelace[10] = {{-0.0F}, 0, 0, 0, 0};
     }},
    {"range upside down", [](TLatka& r) { r.Korelace[4].Tmin = 30000; }},
};

TEST(RoundTrip, oddRecordsSurvive) {
    for (const OddCase& item : kOddCases) {
        SCOPED_TRACE(item.name);
        const std::string first = test::databaseBytes({{test::sampleSubstance(1, "První")}});
        const std::string odd = test::databaseBytes({{oddRecord(item.change)}});
        expectSameBytes(first + odd + first, Checks::FormOnly);
    }
}

TEST(RoundTrip, recordsWithoutASubstanceSurvive) {
    const std::string blank = test::databaseBytes({{test::blankRecord()}});
    const std::string zeros(kRecordSize, '\0');
    const std::string sample = test::databaseBytes({{test::sampleSubstance(2, "Látka")}});
    for (const std::string& bytes : {std::string(), blank, blank + blank, blank + sample,
                                     blank + sample + blank + blank, zeros, zeros + blank + zeros})
        expectSameBytes(bytes, Checks::FormOnly);
}

TEST(RoundTrip, garbageSurvives) {
    std::mt19937 random(20240501);
    const auto randomByte = [&] { return static_cast<char>(static_cast<unsigned char>(random() & 0xFFU)); };
    for (int round = 0; round < 50; ++round) {
        SCOPED_TRACE(round);
        std::string bytes(kRecordSize * (1 + random() % 20), '\0');
        for (char& byte : bytes) byte = randomByte();
        expectSameBytes(bytes, Checks::FormOnly);
    }
    std::string damaged = test::readFile(VELOR_DATABASE);
    for (int flips = 0; flips < 5000; ++flips) damaged[random() % damaged.size()] = randomByte();
    expectSameBytes(damaged, Checks::FormOnly);
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
