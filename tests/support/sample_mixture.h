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

// What an error says to the host; number 0 where none was raised.
struct Raised {
    std::int32_t number = 0;
    std::string source, description;

    bool operator==(const Raised&) const = default;
};

template <class Body>
Raised raised(const Body& body) {
    try {
        body();
    } catch (const RunTimeError& error) {
        return {error.number(), error.source(), error.description()};
    }
    return {};
}

template <class Body>
int errorNumber(const Body& body) {
    return raised(body).number;
}

}  // namespace velor::test
