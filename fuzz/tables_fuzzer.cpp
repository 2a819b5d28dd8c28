// The bytes as the two tables of the database's text form, the second one behind a byte of code 1.
#include "baze/compile.h"
#include "baze/decompile.h"
#include "target.h"

namespace {

using namespace velor;
using namespace velor::baze;

void checkCompilation(std::string_view substances, std::string_view correlations, Checks checks) {
    const Compilation compiled = compile(substances, correlations, checks);
    fuzz::require(compiled.succeeded() || compiled.bytes.empty(), "bytes in spite of a fault");
    if (!compiled.succeeded()) return;
    const TextDatabase text = decompile(compiled.bytes);
    fuzz::require(text.refusal.empty(), "a compiled database was refused");
    const Compilation again = compile(text.substances, text.correlations, checks);
    fuzz::require(again.succeeded() && again.bytes == compiled.bytes, "the database changed on its way through text");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::Bytes bytes(data, size);
    const std::string_view both = bytes.takeRest();
    const std::size_t border = std::min(both.find('\x01'), both.size());
    const std::string_view substances = both.substr(0, border);
    const std::string_view correlations = both.substr(std::min(border + 1, both.size()));
    for (const Checks checks : {Checks::Full, Checks::FormOnly}) checkCompilation(substances, correlations, checks);
    return 0;
}
