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
