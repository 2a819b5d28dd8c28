// The substance record of the database, field for field as the file holds it.
#pragma once

#include <array>
#include <cstdint>

namespace velor {

// One temperature correlation of one property.
struct TKorelace {
    std::array<float, 6> A{};  // coefficients A1..A6
    std::int16_t Typ = 0;      // equation type, docs/data.md
    std::int16_t Priznak = 0;  // 0: the property is not given
    std::int16_t Tmin = 0;     // validity range, whole kelvin
    std::int16_t Tmax = 0;

    bool operator==(const TKorelace&) const = default;
};

// One substance. Texts are fixed-width, padded with blanks, one Windows-1250 byte a character. A constant that is not
// known holds -9999.
struct TLatka {
    static constexpr int kConstants = 17;     // the single-precision constants from Mv on
    static constexpr int kCorrelations = 11;  // blocks 1..11, the last one reserved

    std::int16_t Cislo = 0;                           // substance number
    std::array<char, 30> Nazev{};                     // name
    std::array<char, 20> Vzorec{};                    // formula
    std::array<char, 30> Synonym{};                   // another name
    std::int16_t Rezerva2 = 0;                        // carried, never interpreted
    std::int32_t CAS = 0;                             // registry number, its digits without hyphens
    float Mv = 0;                                     // molar mass, kg/mol
    float Tkr = 0;                                    // critical temperature, K
    float Pkr = 0;                                    // critical pressure, Pa
    float Vkr = 0;                                    // critical volume, m3/mol
    float Acent = 0;                                  // acentric factor
    float Gyr = 0;                                    // radius of gyration, m
    float Nlomu = 0;                                  // refractive index
    float TNlomu = 0;                                 // its temperature, K
    float Dipol = 0;                                  // dipole moment, debye
    float TDipol = 0;                                 // its temperature, K
    float Permit = 0;                                 // relative permittivity
    float TPermit = 0;                                // its temperature, K
    float Htani = 0;                                  // enthalpy of fusion, J/mol
    float Ttani = 0;                                  // melting temperature, K
    float Tnbv = 0;                                   // normal boiling temperature, K
    float Rezerva57 = 0;                              // carried, never interpreted
    float Rezerva58 = 0;                              // carried, never interpreted
    std::array<TKorelace, kCorrelations> Korelace{};  // block k of property k at index k - 1

    bool operator==(const TLatka&) const = default;
};

}  // namespace velor
