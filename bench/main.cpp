#include "comparison.h"

int main(int argc, char** argv) {
    using namespace velor::bench;
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    addEquations();
    addPureValues();
    addLoading();
    addLiquid();
    addGas();
    addSaturation();
    addRealGas();
    addByName();
    addFlash();
    addTable();
    benchmark::RunSpecifiedBenchmarks();
}
