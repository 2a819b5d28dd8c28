// The bytes as a database that is taken apart into text and put together again.
#include "baze/compile.h"
#include "baze/decompile.h"
#include "records/record_layout.h"
#include "target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velor;
    fuzz::Bytes bytes(data, size);
    const std::string database(bytes.takeRest());
    const baze::TextDatabase text = baze::decompile(database);
    if (database.size() % kRecordSize != 0) {
        fuzz::require(!text.refusal.empty(), "part of a record was accepted");
        return 0;
    }
    fuzz::require(text.refusal.empty(), "whole records were refused");
    const auto compiled = baze::compile(text.substances, text.correlations, baze::Checks::FormOnly);
    fuzz::require(compiled.succeeded(), "the text was refused");
    fuzz::require(compiled.bytes == database, "the bytes changed");
    return 0;
}
