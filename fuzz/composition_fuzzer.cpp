// A composition typed as one line.
#include "dialogs/typed_composition.h"
#include "target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velor;
    fuzz::Bytes bytes(data, size);
    fuzz::tryCall("composition", [&] {
        const std::vector<double> fractions = parseComposition(std::string(bytes.takeRest()));
        fuzz::require(fractions.size() <= 20, "more than 20 fractions");
        return Numbers(fractions);
    });
    return 0;
}
