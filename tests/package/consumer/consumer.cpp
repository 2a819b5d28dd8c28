// A program of somebody else's: the molar mass of water, from the database that the library finds itself or from the
// one given as the argument.
#include <velor/smes.h>
#include <velor/table.h>
#include <velor/version.h>

#include <cmath>
#include <iostream>

int main(int argc, char** argv) {
    velor::Smes smes;
    if (argc > 1) smes.AdrVELOR(argv[1]);
    smes.DefSlozky(velor::List({1}));
    const velor::Variant molarMass = smes.VSM(velor::Fractions({1.0}));
    std::cout << "M = " << molarMass.toText() << " kg/mol\n";
    const int water[] = {1};
    const double one[] = {1.0};
    double byTable = 0;
    const velor::PreparedMixture mixture(smes.AdrVELOR(), water);
    velor::evaluate(mixture, *velor::findMixtureProperty("VSM"), {}, {}, {one}, {&byTable, 1}, {});
    return std::abs(molarMass.toDouble() - 0.018015) < 1e-5 && byTable == molarMass.toDouble() ? 0 : 1;
}
