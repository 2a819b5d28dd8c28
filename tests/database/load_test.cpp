// Loading records: which count, what they hold, and what is said of those that are missing or damaged.
#include <limits>

#include "support/sample_test.h"

namespace velor::test {
namespace {

// Records 1, 2 and 4 are substances, 3 is blank, 5 begins with zero bytes, the rest is blank; the file ends at 8.
std::vector<TLatka> substances() {
    std::vector<TLatka> records = sampleSubstances(5);
    records[2] = blankRecord();
    records[4].Nazev.fill('\0');
    return records;
}

struct LoadTest : SampleTest {
    LoadTest() : SampleTest(substances()) {}
};

TEST_F(LoadTest, countsTheLeadingSlots) {
    smes.ZapisNslozky(1, 2);
    smes.ZapisNslozky(2, 4);
    smes.ZapisNslozky(4, 1);
    EXPECT_EQ(smes.Inivlr(), Variant(std::int16_t{2}));
    EXPECT_EQ(smes.Mvi(2), Variant(0.046F));
    EXPECT_EQ(smes.Mvi(4), Variant(0.0F));  // defined, not loaded
    // Once for a definition.
    mixture.folder.write("VELOR.DRC", "");
    EXPECT_EQ(smes.Inivlr(), Variant(std::int16_t{2}));
    smes.ZapisNslozky(1, 2);
    EXPECT_EQ(smes.Inivlr(), Variant(std::int16_t{0}));
}

TEST_F(LoadTest, stopsAtTheFirstMissingSubstance) {
    smes.MaxErrHlas(0);
    for (const int number : {3, 5, 9, 32767}) {  // blank, zero bytes, beyond the end
        smes.ZapisNslozky(1, 4);
        smes.ZapisNslozky(2, number);
        smes.ZapisNslozky(3, 1);
        for (int time = 0; time < 2; ++time) {  // tries again
            EXPECT_EQ(smes.Inivlr(), Variant(std::int16_t{0})) << number;
            EXPECT_EQ(messages.back(), (Message{"INIVLR: Látka č.  " + std::to_string(number) + " není v bázi!",
                                                Icon::Exclamation, "VELOR"}));
        }
        EXPECT_EQ(smes.Nslozky(1).toInt16(), 4);
        EXPECT_EQ(smes.Nslozky(2).toInt16(), 0);
    }
    EXPECT_EQ(messages.size(), 8U);
}

TEST_F(LoadTest, acceptsZeroBytesWhileMessagesAreOff) {
    for (const int mode : {1, 2}) {
        smes.ZapisNslozky(1, 5);
        smes.ChyboveHlasky(mode);
        EXPECT_EQ(smes.Inivlr(), Variant(std::int16_t{1}));
        smes.ZapisNslozky(1, 9);  // beyond the end: a record of zero bytes as well
        EXPECT_EQ(smes.Inivlr(), Variant(std::int16_t{1}));
        smes.ZapisNslozky(1, 3);
        EXPECT_EQ(smes.Inivlr(), Variant(std::int16_t{0}));  // blanks never pass
    }
}

TEST(RegistryNumber, isWrittenInBrackets) {
    // clang-format off
    const std::pair<std::int32_t, const char*> cases[] = {
        {64175, "[ 64-17-5]"}, {7732185, "[ 7732-18-5]"}, {2147483647, "[ 2147483-64-7]"}, {0, " "}, {-64175, " "},
        {12, "[- 1-2]"}, {123, "[ -12-3]"}, {7, nullptr},
    };
    // clang-format on
    for (const auto& [number, text] : cases) {
        TLatka record = sampleSubstance(1, "Voda");
        record.CAS = number;
        SampleMixture mixture({record});
        mixture.smes.DefSlozky(List({1}));
        if (text == nullptr) {
            EXPECT_EQ(errorNumber([&] { mixture.smes.CAS(1); }), RunTimeError::kInvalidCall);
        } else {
            EXPECT_EQ(mixture.smes.CAS(1), Variant(text)) << number;
        }
    }
}

TEST(RecordLayout, isTheFilesToTheByte) {
    std::array<char, kRecordSize> bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<char>(i * 37 + 11);
    EXPECT_EQ(encodeRecord(decodeRecord(bytes)), bytes);
    bytes.fill(' ');
    const auto put = [&](std::size_t offset, std::initializer_list<int> values) {
        for (const int value : values) bytes[offset++] = static_cast<char>(value);
    };
    put(0, {0x34, 0x12});
    put(84, {0x59, 0xFB, 0x75, 0x00});
    put(88, {0x00, 0x00, 0x80, 0x3F});
    put(144, {0x00, 0x00, 0x20, 0xC1});
    put(156 + 32 * 8 + 20, {0x00, 0x00, 0x00, 0x40});
    put(156 + 32 * 8 + 24, {18, 0, 0xFF, 0xFF, 0x10, 0x01, 0xE8, 0x03});
    const TLatka record = decodeRecord(bytes);
    const TKorelace& block = record.Korelace[8];
    EXPECT_EQ(std::tuple(record.Cislo, record.CAS, record.Mv, record.Tnbv), std::tuple(0x1234, 7732057, 1.0F, -10.0F));
    EXPECT_EQ(std::tuple(block.A[5], block.Typ, block.Priznak, block.Tmin, block.Tmax),
              std::tuple(2.0F, 18, -1, 272, 1000));
}

TEST_F(LoadTest, handsOutConstants) {
    TLatka record = sampleSubstance(2, "Žluťoučký kůň");
    for (int k = 1; k <= TLatka::kConstants; ++k) record.*constantMember(k) = static_cast<float>(100 * k);
    record.Ttani = 273.15F;
    SampleMixture other({sampleSubstance(1, "Voda"), record});
    other.smes.DefSlozky(List({2}));
    using Accessor = Variant (Smes::*)(int) const;
    // clang-format off
    const std::pair<Accessor, double> variants[] = {
        {&Smes::Mvi, 100}, {&Smes::Tkri, 200}, {&Smes::TkriC, 200 - 273.15}, {&Smes::Pkri, 300}, {&Smes::Vkri, 400},
        {&Smes::Acenti, 500}, {&Smes::Gyr, 600}, {&Smes::Nlomui, 700}, {&Smes::TNlomui, 800}, {&Smes::TDipolm, 1000},
        {&Smes::Permiti, 1100}, {&Smes::TPermiti, 1200}, {&Smes::Htani, 1300}, {&Smes::Ttani, 273.15F},
        {&Smes::TtaniC, 0}, {&Smes::Tnbvi, 1500}, {&Smes::TnbviC, 1500 - 273.15}};
    // clang-format on
    for (const auto& [accessor, value] : variants) {
        EXPECT_EQ((other.smes.*accessor)(1).toDouble(), value);
        EXPECT_EQ(errorNumber([&, read = accessor] { (other.smes.*read)(21); }), 9);
    }
    EXPECT_EQ(other.smes.Dipolm(1), 900.0F);
    // An empty slot: a text for most, the field for the rest.
    for (const Accessor accessor : {&Smes::Mvi, &Smes::TkriC, &Smes::TnbviC, &Smes::TtaniC, &Smes::Htani, &Smes::Nlomui,
                                    &Smes::Nazev, &Smes::Vzorec, &Smes::Synonym})
        EXPECT_EQ((other.smes.*accessor)(2), Variant(""));
    for (const Accessor accessor : {&Smes::TNlomui, &Smes::TDipolm, &Smes::Permiti, &Smes::TPermiti, &Smes::Gyr})
        EXPECT_EQ((other.smes.*accessor)(2), Variant(0.0F));
    EXPECT_EQ(other.smes.CAS(2), Variant(" "));
}

TEST(DamagedRecord, yieldsErrorsAndNoNonsense) {
    TLatka record = sampleSubstance(1, "Voda");
    record.Mv = std::numeric_limits<float>::quiet_NaN();
    record.Tnbv = std::numeric_limits<float>::infinity();
    record.Korelace[0].A[1] = std::numeric_limits<float>::quiet_NaN();
    SampleMixture mixture({record});
    mixture.smes.DefSlozky(List({1}));
    EXPECT_EQ(errorNumber([&] { mixture.smes.Mvi(1); }), 6);
    EXPECT_EQ(errorNumber([&] { mixture.smes.TnbviC(1); }), 6);
    EXPECT_EQ(errorNumber([&] { mixture.smes.VLRConst(1, 1, 2); }), 6);
    EXPECT_EQ(mixture.smes.FFce(300, 1, 1), Variant(1E-8));
}

}  // namespace
}  // namespace velor::test
