// FFce: every message to the letter, every mode, the budget, and the temperature that is worked with.
#include "support/sample_test.h"

namespace velor::test {
namespace {

// Component 2 lacks ETAG (block zero); 3 has a type of 99 in CPG, 4 a type of -3 there; 5 divides by zero in ALAG.
std::vector<TLatka> substances() {
    std::vector<TLatka> records = sampleSubstances(6);
    records[2].Korelace[0] = {};
    records[3].Korelace[1].Typ = 99;
    records[4].Korelace[1].Typ = -3;
    records[5].Korelace[2] = {{1, 1, -300}, 6, 1, 200, 400};
    return records;
}

struct FFceTest : SampleTest {
    FFceTest() : SampleTest(substances()) { smes.DefSlozky(List({2, 3, 4, 5, 6})); }
};

const std::string kName = "Látka" + std::string(25, ' ');

TEST_F(FFceTest, showsEachMessage) {
    const auto warning = [](const std::string& text) {
        return std::vector<Message>{{"FFce: " + text, Icon::Exclamation, "VELOR"}};
    };
    const auto noType = [](const std::string& text, const std::string& T) {
        return Message{"FFce: Typ.korel.vzt." + text + "\r\nTeplota(K)= " + T, Icon::Exclamation, "VELOR Chyba"};
    };
    const Message notGiven{"FFce:  2.složka  3  " + kName + " vlast. ETAG neni v bázi!", Icon::None, "VELOR"};
    // clang-format off
    const std::tuple<Variant, int, int, double, std::vector<Message>> cases[] = {
        {300, 1, 11, 0, warning("Chyba č.vlastnosti(1-10):  11")}, {300, 9, -1, 0, warning("Chyba č.vlastnosti(1-10): -1")},
        {300, 0, 1, 0, warning("Chyba č.složky směsi (1- 5) :  0")},
        {"text", 6, 1, 0, warning("Chyba č.složky směsi (1- 5) :  6")},
        {300, 2, 1, 1E-8, {notGiven, noType(" 0 u látky:  3  " + kName + " vlast. ETAG", "300.0")}},
        {"300,25", 4, 2, 1E-8, {noType("-3 u látky:  5  " + kName + " vlast. CPG", "300.3")}},
        // Errors in the evaluation: positive numbers show no box.
        {300, 5, 3, 1E-8, {}}, {"abc", 1, 1, 1E-8, {}}, {std::nan(""), 1, 1, 1E-8, {}},
        {Variant(), 1, 1, 1, {}}, {"350", 1, 1, 351, {}}, {-20, 1, 1, -19, {}},
    };
    // clang-format on
    for (const auto& [T, i, k, result, expected] : cases) {
        messages.clear();
        const int before = smes.PocHlasek();
        EXPECT_EQ(smes.FFce(T, i, k), Variant(result)) << i << ' ' << k;
        EXPECT_EQ(messages, expected) << i << ' ' << k;
        EXPECT_EQ(smes.PocHlasek() - before, static_cast<int>(expected.size()));
    }
    EXPECT_EQ(errorNumber([&] { smes.FFce(300, 40000, 1); }), RunTimeError::kOverflow);
}

TEST_F(FFceTest, raisesInModeMinusOne) {
    smes.ChyboveHlasky(-1);
    const std::string failed = "Chyba při výpočtu vlastnosti!";
    const std::tuple<int, int, std::string, std::string> cases[] = {
        {3, 2, "VELOR - FFce", failed + "\r\nLátka:  4  " + kName + " vlast. CPG\r\nTeplota(K)= 300.0"},
        {5, 3, "FFce", failed}};
    for (const int limit : {20, 0}) {  // the error is raised whether or not the box may be shown
        smes.MaxErrHlas(limit);
        for (const auto& [i, k, source, description] : cases)
            EXPECT_EQ(raised([&, i = i, k = k] { smes.FFce(300, i, k); }),
                      (Raised{static_cast<std::int32_t>(0x80040258), source, description}));
    }
    EXPECT_EQ(messages.size(), 1U);
    smes.MaxErrHlas(20);
    EXPECT_EQ(smes.FFce(300, 1, 11), Variant(0.0));  // a rejection is never raised
}

TEST_F(FFceTest, choosesTheWorkingTemperature) {
    // Below property 5 nothing is clamped at the critical temperature of 500 K; at it neither; else at 0.98 of it. The
    // caller's temperature is compared, so the range wins.
    // clang-format off
    const std::tuple<double, int, bool, double> cases[] = {
        {600, 4, false, 600}, {600, 5, false, 490}, {500, 10, false, 500}, {10, 5, false, 10}, {10, 1, true, 200},
        {450, 1, true, 400}, {600, 5, true, 400},
    };
    // clang-format on
    for (const auto& [T, k, limits, Tx] : cases) {
        limits ? smes.MezeZap() : smes.MezeVyp();
        EXPECT_DOUBLE_EQ(smes.FFce(T, 1, k).toDouble(), Tx + k) << T << ' ' << k;
    }
    // Where the range ends above 0.98 of the critical temperature, that one stays.
    smes.VLRConst(1, 5, 10, 700);
    smes.MezeZap();
    EXPECT_DOUBLE_EQ(smes.FFce(600, 1, 5).toDouble(), 490 + 5);
    // Up to 15 K no critical temperature clamps.
    smes.MezeVyp();
    smes.Bod(1, 2, 15);
    EXPECT_DOUBLE_EQ(smes.FFce(20, 1, 9).toDouble(), 29);
}

TEST(ShownNumbers, haveTheirFormats) {
    // clang-format off
    const std::pair<Variant, const char*> cases[] = {
        {-9999, " neobsazeno "},   {-9999.00001, " neobsazeno "}, {-9998.9, "    -9999    "}, {0, "   0.0000   "},
        {5e-7, "   0.0000   "},    {1e-6, " 1.0000E-06 "},        {9.9e-5, " 9.9000E-05 "},   {1e-4, "  0.000100  "},
        {0.00989, "  0.009890  "}, {0.0099, "   0.0099   "},      {0.99996, "   1.0000   "},  {1, "    1.000    "},
        {-1, "   -1.000   "},      {59.9999, "   60.000   "},     {60, "    60.00    "},      {100, "    100.0    "},
        {999.99, "   1000.0   "},  {1000, "    1000    "},        {999998.4, "   999998   "}, {999999, " 1.0000E+06 "},
        {-101325, "  -101325  "},  {12345, "    12345    "},      {-12.345, "  -12.345  "},   {"1,5", "    1.500    "},
    };
    // clang-format on
    for (const auto& [value, text] : cases) EXPECT_EQ(Smes::GFormat(value), text) << value.toText();
    EXPECT_EQ(errorNumber([] { Smes::GFormat("x"); }), RunTimeError::kTypeMismatch);
}

TEST(Names, areFixed) {
    EXPECT_EQ(Smes::ChybRozv(11), "Rezerva");
    for (const int k : {0, 12, -32768}) EXPECT_EQ(Smes::ChybRozv(k), "Nedef. ");
    EXPECT_EQ(Smes::Vztah(13),
              " ln(y/A6) = (A1.t + A2.t^1.5 + A3.t^3 + A4.t^6) /T.A5   t=1-T/A5; A5=Tkr; A6=Pkr Wagner ");
    for (const int type : {0, 99}) EXPECT_EQ(Smes::Vztah(type), " Neznámý vztah! ");
    EXPECT_DOUBLE_EQ(Smes::Log10("1000").toDouble(), 3);
    EXPECT_EQ(errorNumber([] { Smes::Log10(0); }), RunTimeError::kInvalidCall);
}

}  // namespace
}  // namespace velor::test
