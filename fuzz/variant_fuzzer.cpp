// Variants of every kind: their conversions, and what a mixture of three sound substances does with them.
#include <memory>
#include <vector>

#include "runtime/numbers.h"
#include "sample_points.h"
#include "support/sample_database.h"
#include "target.h"
#include "temporary_file.h"
#include "velor/smes.h"

namespace {

using namespace velor;

constexpr int kDeepest = 3;

Variant takeVariant(fuzz::Bytes& bytes, int depth) {
    const auto kind = bytes.take<std::uint8_t>();
    switch (kind % (depth < kDeepest ? 14 : 12)) {
        case 0:
            return {};
        case 1:
            return Variant::null();
        case 2:
            return Variant::missing();
        case 3:
            return bytes.take<std::uint8_t>() % 2 == 1;
        case 4:
            return bytes.take<std::int16_t>();
        case 5:
            return bytes.take<std::int32_t>();
        case 6:
            return bytes.take<float>();
        case 7:
            return bytes.take<double>();
        case 8:
            return Variant::date(bytes.take<double>());
        case 9:
            return bytes.take<std::int64_t>();
        case 10:
        case 11:
            return bytes.takeText(bytes.take<std::uint8_t>());
        default:
            break;
    }
    const int lowerBound = kind >= 128 ? bytes.take<std::int32_t>() : kind / 14 % 2;
    std::vector<Variant> elements(bytes.take<std::uint8_t>() % 24);
    for (Variant& element : elements) element = takeVariant(bytes, depth + 1);
    try {
        return Variant::array(lowerBound, std::move(elements));
    } catch (const RunTimeError&) {
        return {};
    }
}

void checkConversions(const Variant& value) {
    fuzz::tryCall("toDouble", [&] {
        const double number = value.toDouble();
        fuzz::require(std::isfinite(number), "toDouble");
        if (value.kind() != Variant::Kind::Text && value.kind() != Variant::Kind::Boolean && !value.isEmpty()) {
            const double read = parseWholeNumber(value.toText()).value_or(-number);
            const double precision = value.kind() == Variant::Kind::Single ? 1e-6 : 1e-14;
            fuzz::require(std::abs(read - number) <= precision * std::abs(number), "toText says another number");
        }
    });
    fuzz::tryCall("toSingle", [&] { return value.toSingle(); });
    fuzz::tryCall("toInt16", [&] {
        const std::int16_t whole = value.toInt16();
        const double distance = std::abs(value.toDouble() - whole);
        fuzz::require(distance < 0.5 || (distance == 0.5 && whole % 2 == 0), "rounded to another integer");
    });
    fuzz::tryCall("toText", [&] { value.toText(); });
    fuzz::tryCall("array", [&] {
        for (std::int64_t i = value.lowerBound() - 1; i <= value.upperBound() + 1; ++i)
            fuzz::tryCall("at", [&] { value.at(static_cast<int>(i)); });
    });
}

// The value stands where the host's argument stands, all others being sound.
void checkArguments(Smes& smes, const Variant& value) {
    const Variant X = Fractions({0.2, 0.3, 0.5});
    fuzz::askMixture(smes, 350.0, 1e5, value);
    fuzz::askMixture(smes, value, 1e5, X);
    fuzz::askMixture(smes, 350.0, value, X);
    Variant changed = value;
    fuzz::tryCall("Normal", [&] { smes.Normal(changed); });
    fuzz::tryCall("GFormat", [&] { return smes.GFormat(value); });
    fuzz::tryCall("Log10", [&] { return smes.Log10(value); });
    fuzz::tryCall("FFce", [&] { return smes.FFce(value, 1, 9); });
    fuzz::tryCall("FindFiles", [&] { smes.FindFiles("/nowhere", "*", "*", changed); });
    fuzz::tryCall("PocetSmesi", [&] { return smes.PocetSmesi(value); });
    for (int k = 0; k <= 18; ++k) fuzz::tryCall("Bod", [&] { smes.Bod(2, k, value); });
    for (int j = 0; j <= 11; ++j) fuzz::tryCall("VLRConst", [&] { smes.VLRConst(3, 4, j, value); });
    fuzz::askConstants(smes, 2);
    fuzz::askMixture(smes, 350.0, 1e5, X);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fuzz::TemporaryFolder folder;
    static const std::string database = folder.write(
        "VELOR.DRC", test::acceptableDatabase({test::sampleSubstance(1, "Voda"), test::sampleSubstance(2, "Ethanol"),
                                               test::sampleSubstance(3, "Methanol")}));
    fuzz::Bytes bytes(data, size);
    const Variant value = takeVariant(bytes, 0);
    const auto number = bytes.take<std::int16_t>();
    checkConversions(value);

    RecordingUserInterface boxes;
    const auto defined = [&](const Variant& numbers) {
        auto smes = std::make_unique<Smes>(boxes, std::vector<std::string>());
        smes->AdrVELOR(database);
        smes->MaxErrHlas(fuzz::kAmpleBudget);
        fuzz::tryCall("DefSlozky", [&] { smes->DefSlozky(numbers); });
        return smes;
    };
    const Variant three = List({1, 2, 3});
    checkArguments(*defined(three), value);
    const auto undefined = defined(value);
    fuzz::tryCall("DefSmes", [&] { undefined->DefSmes(number, value); });
    fuzz::tryCall("Nsloz", [&] { undefined->Nsloz(value); });
    fuzz::askMixture(*undefined, 350.0, 1e5, Fractions({0.2, 0.3, 0.5}));
    fuzz::askSaturation([&] { return defined(three); }, value, Fractions({0.2, 0.3, 0.5}));
    fuzz::askSaturation([&] { return defined(three); }, 1e5, value);
    return 0;
}
