// The real gas of the database's substances against published figures, each within what is known of the equation.
// NIST: NIST Chemistry WebBook, SRD 69, fluid properties (saturated vapour unless the pressure says otherwise); CRC:
// CRC Handbook of Chemistry and Physics, 97th edition, "Virial coefficients of selected gases".
#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <map>
#include <vector>

#include "database/record_file.h"
#include "velor/smes.h"

namespace velor {
namespace {

constexpr double R = 8.314;

constexpr int kWater = 7732185, kMethane = 74828, kNitrogen = 7727379, kCarbonDioxide = 124389, kAmmonia = 7664417,
              kEthylene = 74851, kPropane = 74986, kOxygen = 7782447, kArgon = 7440371, kEthane = 74840;

int numberOf(std::int32_t registryNumber) {
    static const std::map<std::int32_t, int> numbers = [] {
        std::map<std::int32_t, int> found;
        const RecordFile database(VELOR_DATABASE);
        for (int number = 1; number <= database.count(); ++number) found[database.read(number).CAS] = number;
        return found;
    }();
    return numbers.at(registryNumber);
}

struct Gas {
    RecordingUserInterface boxes;
    Smes smes{boxes};
    Variant X;

    Gas(std::initializer_list<int> registryNumbers, std::initializer_list<double> x) : X(Fractions(x)) {
        smes.AdrVELOR(VELOR_DATABASE);
        std::vector<int> numbers;
        for (const int registryNumber : registryNumbers) numbers.push_back(numberOf(registryNumber));
        smes.DefSlozky(List(numbers));
    }
    explicit Gas(int registryNumber) : Gas({registryNumber}, {1.0}) {}
};

void expectWithin(double percent, double value, double published, const char* what, int substance, double T) {
    EXPECT_NEAR(value, published, std::abs(published) * percent / 100)
        << what << " of " << substance << " at " << T << ": " << 100 * (value / published - 1) << " %";
}

struct State {
    int substance;
    double T, P, value, redlichKwong, soave;  // the last two: per cent
};

TEST(PublishedValues, densitiesOfTheVapour) {
    const State states[] = {
        {kMethane, 111.67, 101325, 1.816, 1.5, 1.5},    {kMethane, 150.0, 1.0400e6, 16.33, 3, 2},
        {kNitrogen, 77.355, 101325, 4.612, 1.5, 1.5},   {kNitrogen, 100.0, 0.7783e6, 31.96, 3, 3},
        {kEthylene, 169.38, 101325, 2.09, 1.5, 1.5},    {kPropane, 231.04, 101325, 2.416, 2, 1.5},
        {kPropane, 293.15, 0.8365e6, 18.08, 5, 3},      {kCarbonDioxide, 250.0, 1.785e6, 46.64, 5, 3},
        {kCarbonDioxide, 273.15, 3.4851e6, 97.6, 8, 4}, {kAmmonia, 239.82, 101325, 0.890, 2, 2},
        {kAmmonia, 293.15, 0.8575e6, 6.703, 5, 4},      {kWater, 373.12, 101325, 0.5977, 1.5, 1.5},
        {kWater, 473.15, 1.5549e6, 7.861, 5, 4},        {kOxygen, 90.19, 101325, 4.467, 1.5, 1.5},
        {kArgon, 87.30, 101325, 5.774, 1.5, 1.5},
    };
    for (const State& s : states) {
        Gas gas(s.substance);
        expectWithin(s.redlichKwong, gas.smes.RROGW(s.T, s.P, gas.X).toDouble(), s.value, "density", s.substance, s.T);
        gas.smes.Redlich(1);
        expectWithin(s.soave, gas.smes.RROGW(s.T, s.P, gas.X).toDouble(), s.value, "density", s.substance, s.T);
        EXPECT_TRUE(gas.boxes.messages.empty());
    }
}

// B of the CRC tables, sum of a_k (298.15/T - 1)^(k - 1), cm3/mol, and the isotherm's enthalpy B - T dB/dT.
struct Virial {
    int substance;
    std::vector<double> a;
    double from;  // K; below it the polynomial is too near the end of its data to be differentiated
    double percentOfZ, percentOfH;

    double B(double T) const {
        double sum = 0.0;
        for (std::size_t k = a.size(); k-- > 0;) sum = sum * (298.15 / T - 1) + a[k];
        return sum;
    }
    double enthalpy(double T) const { return B(T) - T * (B(T + 0.1) - B(T - 0.1)) / 0.2; }
};

// A known weakness, not an error of ours: without a parameter for polarity the equation gives ammonia and water only
// about 60 % of their residual enthalpy. Their bounds were set by what was found; the equation's own enthalpy,
// b - 2.5 a/(R T^1.5), is checked beside it and shows that the fault is the equation's.
constexpr double kPolar = 45.0;

TEST(PublishedValues, compressibilityFactorsAndResidualEnthalpiesOfModerateGases) {
    const Virial gases[] = {
        {kMethane, {-43, -114, -19, -7}, 0, 0.1, 20},     {kNitrogen, {-4, -56, -12}, 0, 0.1, 20},
        {kCarbonDioxide, {-127, -288, -118}, 0, 0.2, 20}, {kEthylene, {-140, -296, -101}, 0, 0.2, 20},
        {kPropane, {-386, -844, -720, -574}, 0, 0.3, 20}, {kAmmonia, {-271, -1022, -2716, -4189}, 320, 0.4, kPolar},
    };
    constexpr double P = 1e5, p = P / 1e6;  // where the third coefficient adds less than 1e-4 to Z
    for (const Virial& v : gases)
        for (const double T : {298.15, 350.0, 400.0}) {
            Gas gas(v.substance);
            expectWithin(v.percentOfZ, gas.smes.TEVRP(1, T, P, gas.X).toDouble(), 1 + v.B(T) * p / (R * T), "Z",
                         v.substance, T);
            const double residual = gas.smes.RHG(T, P, gas.X).toDouble() - gas.smes.RHG(T, P * 1e-6, gas.X).toDouble();
            if (T > v.from)
                expectWithin(v.percentOfH, residual, v.enthalpy(T) * p, "residual enthalpy", v.substance, T);
            const double Tc = gas.smes.Bod(1, 2), volume = R * Tc / (gas.smes.Bod(1, 3) / 1e6);
            const double ofTheEquation = volume * (0.0867 - 2.5 * 0.4278 * std::pow(Tc / T, 1.5));
            expectWithin(2, residual, ofTheEquation * p, "the equation's enthalpy", v.substance, T);
        }
}

TEST(PublishedValues, compressibilityFactorsOfDenseGases) {
    const State states[] = {
        {kMethane, 300, 1e6, 0.983, 0.5, 0.5},     // NIST
        {kMethane, 300, 1e7, 0.846, 3, 3},         // NIST
        {kNitrogen, 300, 1e6, 0.9985, 0.5, 0.5},   // NIST
        {kNitrogen, 300, 1e7, 1.004, 2, 2},        // NIST
        {kCarbonDioxide, 300, 1e6, 0.9495, 1, 1},  // NIST
    };
    for (const State& s : states) {
        Gas gas(s.substance);
        expectWithin(s.redlichKwong, gas.smes.TEVRP(0, s.T, s.P, gas.X).toDouble(), s.value, "Z", s.substance, s.T);
        gas.smes.Redlich(1);
        expectWithin(s.soave, gas.smes.TEVRP(0, s.T, s.P, gas.X).toDouble(), s.value, "Z", s.substance, s.T);
    }
}

// IAPWS-IF97 at 300 and 400 degrees Celsius, relative to 10 kPa, kJ/kg. Steam is the equation's hardest gas.
TEST(PublishedValues, enthalpiesOfSteam) {
    const State states[] = {{kWater, 573.15, 1e6, -25.5, kPolar, kPolar},
                            {kWater, 573.15, 5e6, -151.3, kPolar, kPolar},
                            {kWater, 673.15, 1e7, -182.5, kPolar, kPolar}};
    for (const State& s : states) {
        Gas gas(s.substance);
        for (const int choice : {0, 1}) {
            gas.smes.Redlich(choice);
            const double difference =
                gas.smes.RHGW(s.T, s.P, gas.X).toDouble() - gas.smes.RHGW(s.T, 1e4, gas.X).toDouble();
            expectWithin(choice ? s.soave : s.redlichKwong, difference / 1e3, s.value, "enthalpy", s.substance, s.T);
        }
    }
}

// Away from the boiling point too, the vapour's enthalpy less the liquid's is the heat of vaporisation: the reference
// state is shared.
TEST(PublishedValues, vapourLessLiquidIsTheHeatOfVaporisation) {
    for (const int substance : {kMethane, kNitrogen, kPropane, kEthylene, kAmmonia, kWater}) {
        Gas gas(substance);
        gas.smes.Redlich(1);
        gas.smes.Inivlr();
        for (const double factor : {0.95, 1.05, 1.15}) {
            const double T = factor * gas.smes.Tnbvi(1).toDouble(), P = gas.smes.TENS(T, gas.X).toDouble();
            const double DHV = gas.smes.DHV(T, gas.X).toDouble();
            const double heat = gas.smes.RHG(T, P, gas.X).toDouble() - gas.smes.HL(T, gas.X).toDouble();
            expectWithin(3, heat, DHV, "heat of vaporisation", substance, T);
            const double entropy = gas.smes.RSG(T, P, gas.X).toDouble() - gas.smes.SL(T, gas.X).toDouble();
            expectWithin(3, entropy, DHV / T, "entropy of vaporisation", substance, T);
        }
    }
}

// Lemmon and Jacobsen, Int. J. Thermophys. 25 (2004) 21: air at 300 K.
TEST(PublishedValues, transportOfAir) {
    Gas air({kNitrogen, kOxygen, kArgon}, {0.7812, 0.2096, 0.0092});
    expectWithin(2, air.smes.RETAG(300, 1e5, air.X).toDouble(), 18.54e-6, "viscosity", 0, 300);
    expectWithin(5, air.smes.RETAG(300, 1e7, air.X).toDouble(), 20.1e-6, "viscosity at 100 bar", 0, 300);
    expectWithin(3, air.smes.RALAG(300, 1e5, air.X).toDouble(), 0.02638, "conductivity", 0, 300);
    expectWithin(1, air.smes.RCPGW(300, 1e5, air.X).toDouble(), 1007, "heat capacity", 0, 300);
    expectWithin(3, air.smes.PrG(300, 1e5, air.X).toDouble(), 0.71, "Prandtl number", 0, 300);
}

// Lee, Gonzalez and Eakin, J. Petrol. Technol. 18 (1966) 997: the viscosity of natural gas in Pa s; degrees Rankine and
// g/cm3 are the units of its constants.
double naturalGasViscosity(double T, double grams, double density) {
    const double rankine = 1.8 * T;
    const double K = (9.4 + 0.02 * grams) * std::pow(rankine, 1.5) / (209 + 19 * grams + rankine);
    const double X = 3.5 + 986 / rankine + 0.01 * grams;
    return 1e-7 * K * std::exp(X * std::pow(density / 1000, 2.4 - 0.2 * X));
}

TEST(PublishedValues, viscosityOfNaturalGas) {
    Gas gas({kMethane, kEthane, kPropane, kNitrogen, kCarbonDioxide}, {0.89, 0.06, 0.02, 0.02, 0.01});
    for (const double T : {300.0, 350.0})
        for (const double P : {1e5, 1e7}) {
            const double density = gas.smes.RROGW(T, P, gas.X).toDouble();
            const double grams = 1000 * gas.smes.VSM(gas.X).toDouble();
            expectWithin(6, gas.smes.RETAG(T, P, gas.X).toDouble(), naturalGasViscosity(T, grams, density), "viscosity",
                         0, T);
        }
}

// NIST: pure gases at 300 K and 100 bar.
TEST(PublishedValues, viscositiesUnderPressure) {
    for (const State& s : {State{kMethane, 300, 1e7, 13.9e-6, 6, 0}, State{kNitrogen, 300, 1e7, 19.9e-6, 5, 0}}) {
        Gas gas(s.substance);
        expectWithin(s.redlichKwong, gas.smes.RETAG(s.T, s.P, gas.X).toDouble(), s.value, "viscosity", s.substance,
                     s.T);
    }
}

}  // namespace
}  // namespace velor
