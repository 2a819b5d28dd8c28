// The mixtures that the tasks are timed with: hydrocarbons of the database, found by their registry numbers.
#pragma once

#include <memory>
#include <vector>

#include "velor/record.h"
#include "velor/smes.h"

namespace velor::bench {

struct Mixture {
    RecordingUserInterface boxes;
    Smes smes{boxes, {}};
    std::vector<int> numbers;
    std::vector<TLatka> records;
    std::vector<double> fractions;  // as the floors take them
    Variant X;                      // as the library takes them

    std::size_t size() const { return records.size(); }
};

// n components with fractions of 1/n each, but for three. 1: benzene; 3: hexane, benzene, toluene (0.3, 0.3, 0.4); 5:
// with pentane and heptane; 20: with fifteen hydrocarbons from butane to decane.
std::shared_ptr<Mixture> mixtureOf(int n);

}  // namespace velor::bench
