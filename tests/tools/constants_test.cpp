// The constants of the substances against formulas, each other and their own vapour pressure.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "baze/csv.h"
#include "baze/values.h"
#include "correlations/equations.h"
#include "correlations/pure_value.h"
#include "real_data.h"
#include "support/temporary_folder.h"

namespace velor {
namespace {

constexpr double kGasConstant = 8.314462618;  // J/(mol K), CODATA 2018
constexpr double kAtmosphere = 101325.0;      // Pa

// Standard atomic weights, g/mol (IUPAC 2021, conventional or abridged).
const std::map<std::string, double> kAtomicWeights{
    {"H", 1.008}, {"He", 4.0026}, {"C", 12.011},  {"N", 14.007},  {"O", 15.999},  {"F", 18.998},   {"Ne", 20.180},
    {"S", 32.06}, {"Cl", 35.45},  {"Ar", 39.948}, {"Br", 79.904}, {"Kr", 83.798}, {"I", 126.9045}, {"Xe", 131.293}};

// Of a formula as C2H4O2; 0 where it holds something else.
double molarMass(std::string_view formula) {
    double mass = 0;
    while (!formula.empty()) {
        std::size_t length = 1;
        while (length < formula.size() && formula[length] >= 'a' && formula[length] <= 'z') ++length;
        const auto element = kAtomicWeights.find(std::string(formula.substr(0, length)));
        if (element == kAtomicWeights.end()) return 0;
        formula.remove_prefix(length);
        int atoms = 0;
        for (; !formula.empty() && formula[0] >= '0' && formula[0] <= '9'; formula.remove_prefix(1))
            atoms = 10 * atoms + (formula[0] - '0');
        mass += element->second * std::max(atoms, 1);
    }
    return mass;
}

double vapourPressure(const TLatka& record, double T) {
    const TKorelace& block = record.Korelace[kTENS - 1];
    return evaluateEquation(block.Typ, block.A, T);
}

TEST(Constants, registryNumbersAreValidAndDifferent) {
    std::set<std::int32_t> seen;
    for (const auto& [number, record] : test::realRecords()) {
        SCOPED_TRACE(test::label(record));
        const std::string text = baze::casText(record.CAS);
        EXPECT_TRUE(baze::hasCasForm(text) && baze::hasCasCheckDigit(text)) << text;
        EXPECT_TRUE(seen.insert(record.CAS).second);
    }
}

TEST(Constants, molarMassIsThatOfTheFormula) {
    for (const auto& [number, record] : test::realRecords()) {
        if (number == test::kAir) continue;
        const std::string formula = baze::bytesText({record.Vzorec.data(), record.Vzorec.size()});
        EXPECT_NEAR(record.Mv * 1000.0 / molarMass(formula), 1.0, 2e-4) << test::label(record) << " " << formula;
    }
}

struct Exception {
    int number;
    double expected;
    std::string_view reason;
};

const Exception* exceptionOf(const std::vector<Exception>& exceptions, int number) {
    const auto found = std::find_if(exceptions.begin(), exceptions.end(),
                                    [&](const Exception& exception) { return exception.number == number; });
    return found == exceptions.end() ? nullptr : &*found;
}

TEST(Constants, criticalCompressibilityIsThatOfAFluid) {
    const std::vector<Exception> exceptions{{28, 0.117, "hydrogen fluoride: chains in the vapour"},
                                            {62, 0.179, "hexacosane: estimated, decomposes before it is critical"},
                                            {320, 0.138, "formic acid: dimers in the vapour"}};
    for (const auto& [number, record] : test::realRecords()) {
        const double factor = double{record.Pkr} * record.Vkr / (kGasConstant * record.Tkr);
        if (const Exception* exception = exceptionOf(exceptions, number)) {
            EXPECT_NEAR(factor, exception->expected, 1e-3) << exception->reason;
        } else {
            EXPECT_TRUE(factor > 0.18 && factor < 0.33) << test::label(record) << " " << factor;
        }
    }
}

TEST(Constants, vapourPressureIsAnAtmosphereAtTheBoilingPoint) {
    const std::vector<Exception> exceptions{
        {13, 1.715, "carbon dioxide: Tnbv is that of sublimation, the liquid's pressure is extrapolated"},
        {35, 1.229, "sulphur hexafluoride: Tnbv is that of sublimation"},
        {115, 1.033, "3,3,5-trimethylheptane: constant and correlation have different sources"},
        {177, 1.055, "acetylene: Tnbv is that of sublimation"}};
    for (const auto& [number, record] : test::realRecords()) {
        const double ratio = vapourPressure(record, record.Tnbv) / kAtmosphere;
        if (const Exception* exception = exceptionOf(exceptions, number)) {
            EXPECT_NEAR(ratio, exception->expected, 1e-3) << exception->reason;
        } else {
            EXPECT_NEAR(ratio, 1.0, 0.03) << test::label(record);
        }
    }
}

TEST(Constants, acentricFactorIsThatOfTheVapourPressure) {
    for (const auto& [number, record] : test::realRecords()) {
        if (number == test::kAir) continue;
        const double reduced = vapourPressure(record, 0.7 * record.Tkr) / record.Pkr;
        EXPECT_NEAR(-std::log10(reduced) - 1.0, record.Acent, 0.03) << test::label(record);
    }
}

TEST(Constants, meltingBoilingAndCriticalTemperatureAreInOrder) {
    const std::set<int> subliming{13, 35, 177};
    for (const auto& [number, record] : test::realRecords()) {
        EXPECT_LT(record.Tnbv, record.Tkr) << test::label(record);
        EXPECT_EQ(record.Ttani >= record.Tnbv, subliming.contains(number)) << test::label(record);
    }
}

TEST(Sources, everyCorrelationNamesOneThatIsAttributed) {
    const std::string attribution = test::readFile(VELOR_DATA "/README.md");
    baze::LineFaults faults;
    const auto rows = baze::readCsv(test::readFile(VELOR_DATA "/korelace.csv"), faults);
    const auto& header = rows.front().cells;
    const auto column = static_cast<std::size_t>(std::find(header.begin(), header.end(), "zdroj") - header.begin());
    std::set<std::string> names;
    for (std::size_t i = 1; i < rows.size(); ++i) {
        std::string_view sources = rows[i].cells.at(column);
        EXPECT_NE(sources, "") << "line " << rows[i].line;
        while (!sources.empty()) {
            const std::string_view one = sources.substr(0, sources.find('+'));
            names.emplace(one);
            sources.remove_prefix(std::min(one.size() + 1, sources.size()));
        }
    }
    for (const std::string& name : names) EXPECT_NE(attribution.find("`" + name + "`"), std::string::npos) << name;
}

}  // namespace
}  // namespace velor
