// The bytes as VELOR.CFG. Nobody answers, so every question gets No and nothing is deleted.
#include "object/configuration_file.h"
#include "runtime/text.h"
#include "target.h"
#include "temporary_file.h"
#include "velor/smes.h"

namespace {

using namespace velor;

// What was read is written and read again as the same path, unless it holds what no path in the file can hold.
void checkRoundTrip(const std::string& file) {
    const std::string path = readConfiguredPath(file);
    fuzz::require(path == trimBlanks(path), "blanks around the path");
    if (path.find_first_of("\"\r\n") != std::string::npos || path.empty()) return;
    writeConfiguredPath(file, path);
    fuzz::require(readConfiguredPath(file) == path, "the path changed on its way through the file");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fuzz::TemporaryFolder folder;
    fuzz::Bytes bytes(data, size);
    const std::string file = folder.write("VELOR.CFG", bytes.takeRest());
    RecordingUserInterface boxes;
    Smes smes(boxes, {});  // no drives: nothing is searched
    smes.CFGPath(folder.path());
    for (const int mode : {0, -1}) {
        smes.ChyboveHlasky(mode);
        fuzz::tryCall("Adrvlr", [&] { smes.Adrvlr(); });
        fuzz::tryCall("AdrVELOR", [&] { return smes.AdrVELOR(); });
    }
    fuzz::tryCall("round trip", [&] { checkRoundTrip(file); });
    return 0;
}
