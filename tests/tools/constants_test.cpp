// The constants of the substances against formulas, each other and their own vapour pressure.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <string>
#include <string_view>

#include "properties/pure_value.h"
#include "real_data.h"
#include "records/field_text.h"
#include "rules/equations.h"

namespace velor {
namespace {

constexpr double kGasConstant = 8.314462618;  // J/(mol K), CODATA 2018

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
        const std::string text = registryText(record.CAS);
        EXPECT_TRUE(hasCasForm(text) && hasCasCheckDigit(text) && seen.insert(record.CAS).second)
            << test::label(record) << ' ' << text;
    }
}

TEST(Constants, molarMassIsThatOfTheFormula) {
    for (const auto& [number, record] : test::realRecords()) {
        if (number == test::kAir) continue;
        const std::string formula = bytesText({record.Vzorec.data(), record.Vzorec.size()});
        EXPECT_NEAR(record.Mv * 1000.0 / molarMass(formula), 1.0, 2e-4) << test::label(record) << " " << formula;
    }
}

using Exceptions = std::map<int, double>;  // values by the substances' numbers

TEST(Constants, vapourPressureIsAnAtmosphereAtTheBoilingPoint) {
    const Exceptions tolerances{
        {115, 0.034}};  // 3,3,5-trimethylheptane: constant and correlation have different sources
    for (const auto& [number, record] : test::realRecords()) {
        // Where the solid evaporates, the liquid that is not there would press more by what melting takes.
        const double melting =
            record.Tnbv < record.Ttani ? record.Htani / kGasConstant * (1.0 / record.Tnbv - 1.0 / record.Ttani) : 0.0;
        EXPECT_NEAR(vapourPressure(record, record.Tnbv) / 101325.0 / std::exp(melting), 1.0,
                    tolerances.contains(number) ? tolerances.at(number) : 0.03)
            << test::label(record);
    }
}

}  // namespace
}  // namespace velor
