// Ethanol and water, two parts to three by moles: the boiling point at atmospheric pressure as an ideal mixture, and
// the density of the liquid at room temperature.
#include <velor/smes.h>

#include <cmath>
#include <filesystem>
#include <iostream>

int main() {
    velor::Smes mixture;
    // Where the database lies, this file says; without it the first use would search every disk. Paths are UTF-8.
    const std::string configuration = mixture.CFGPath() + mixture.CFGName();
    if (!std::filesystem::exists(std::u8string(configuration.begin(), configuration.end()))) {
        std::cerr << "there is no " << configuration << "; its second line is to be the path of VELOR.DRC\n";
        return 1;
    }
    mixture.DefSlozky(velor::List({235, 1}));
    if (mixture.Inivlr().toInt16() != 2) return 1;
    const velor::Variant fractions = velor::Fractions({0.4, 0.6});

    const velor::Variant boilingPoint = mixture.TBV(101325.0, fractions);  // Empty after an error
    const velor::Variant density = mixture.ROLW(293.15, fractions);
    if (boilingPoint.isEmpty() || density.isEmpty()) return 1;
    std::cout << "boiling point " << std::lround(boilingPoint.toDouble()) << " K\n"
              << "density " << std::lround(density.toDouble()) << " kg/m3\n";
}

// It prints:
// > boiling point 362 K
// > density 865 kg/m3
