// A mixture of substances of the real database, chosen by their CAS numbers without hyphens, with its boxes recorded.
#pragma once

#include <cstdint>
#include <map>
#include <vector>

#include "records/record_file.h"
#include "velor/smes.h"

namespace velor::test {

struct RealMixture {
    RecordingUserInterface boxes;
    Smes smes{boxes};

    explicit RealMixture(const std::vector<std::int32_t>& registryNumbers) {
        static const std::map<std::int32_t, int> numbers = [] {
            std::map<std::int32_t, int> found;
            const RecordFile database(VELOR_DATABASE);
            for (int number = 1; number <= database.count(); ++number) found[database.read(number).CAS] = number;
            return found;
        }();
        std::vector<int> chosen;
        for (const std::int32_t registryNumber : registryNumbers) chosen.push_back(numbers.at(registryNumber));
        smes.AdrVELOR(VELOR_DATABASE);
        smes.DefSlozky(List(chosen));
    }
};

}  // namespace velor::test
