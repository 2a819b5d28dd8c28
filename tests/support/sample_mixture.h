// A mixture object on a small database of the test's own, with its boxes recorded.
#pragma once

#include <string>
#include <vector>

#include "support/sample_database.h"
#include "support/temporary_folder.h"
#include "velor/smes.h"

namespace velor::test {

class SampleMixture {
  public:
    TemporaryFolder folder;
    RecordingUserInterface boxes;
    Smes smes;

    explicit SampleMixture(const std::vector<TLatka>& records) : smes(boxes, {folder.path()}) {
        smes.CFGPath(folder.path());
        smes.AdrVELOR(folder.write("VELOR.DRC", acceptableDatabase(records)));
    }
};

// The classic number of the error that the body raises, 0 when it raises none.
template <class Body>
int errorNumber(const Body& body) {
    try {
        body();
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return 0;
}

}  // namespace velor::test
