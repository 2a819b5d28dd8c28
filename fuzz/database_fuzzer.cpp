// The bytes as a database, with everything asked of it. Before the records stand: mode and settings (1 byte), a
// temperature and a pressure of any bits.
#include <memory>
#include <span>

#include "sample_points.h"
#include "target.h"
#include "temporary_file.h"
#include "velor/smes.h"

namespace {

using namespace velor;

constexpr int kMostComponents = 3;

struct Settings {
    unsigned bits = 0;
    std::string database;

    int components() const { return 1 + static_cast<int>((bits >> 4U) % kMostComponents); }

    void define(Smes& smes) const {
        smes.AdrVELOR(database);
        smes.MaxErrHlas(fuzz::kAmpleBudget);
        smes.Redlich(static_cast<int>(bits >> 2U & 1U));
        if ((bits >> 3U & 1U) != 0) smes.MezeZap();
        // A negative number defines silently: records of zero bytes are taken.
        const int numbers[] = {(bits & 1U) != 0 ? -1 : 1, 2, 3};
        smes.DefSlozky(List(std::span<const int>(numbers)));
        fuzz::tryCall("Nsloz", [&] { smes.Nsloz(components()); });
        if ((bits >> 1U & 1U) != 0) smes.ChyboveHlasky(-1);
    }
};

void askPure(Smes& smes, const Settings& settings, double oddTemperature) {
    for (int i = 1; i <= settings.components(); ++i) {
        fuzz::askConstants(smes, i);
        for (int k = 0; k <= 12; ++k)
            for (const double T : {1e-300, 1.0, 273.15, 373.15, 1500.0, 1e300, -1e300, -1.0, 0.0, oddTemperature})
                fuzz::tryCall("FFce", [&] { return smes.FFce(T, i, k); });
    }
}

Variant fractions(int count) {
    const std::vector<double> x(static_cast<std::size_t>(count), 1.0 / count);
    return Numbers(x);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fuzz::TemporaryFolder folder;
    fuzz::Bytes bytes(data, size);
    Settings settings{bytes.take<std::uint8_t>(), {}};
    const auto oddTemperature = bytes.take<double>();
    const auto oddPressure = bytes.take<double>();
    settings.database = folder.write("VELOR.DRC", bytes.takeRest());
    const Variant X = fractions(settings.components());

    RecordingUserInterface boxes;
    const auto defined = [&] {
        auto smes = std::make_unique<Smes>(boxes, std::vector<std::string>());
        fuzz::tryCall("definition", [&] { settings.define(*smes); });
        return smes;
    };
    const auto smes = defined();
    fuzz::tryCall("Inivlr", [&] { return smes->Inivlr(); });
    askPure(*smes, settings, oddTemperature);
    for (const auto& [T, P] : {std::pair{350.0, 1e5}, {700.0, 2e7}, {oddTemperature, 1e5}, {350.0, oddPressure}}) {
        fuzz::askMixture(*smes, T, P, X);
        fuzz::askSaturation(defined, P, X);
    }
    return 0;
}
