#include "mixture.h"

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <span>

#include "records/record_file.h"

namespace velor::bench {

namespace {

// Registry numbers without hyphens, as the records hold them.
constexpr std::int32_t kPentane = 109660, kHexane = 110543, kHeptane = 142825, kBenzene = 71432, kToluene = 108883;

std::vector<std::int32_t> registryNumbers(int n) {
    switch (n) {
        case 1:
            return {kBenzene};
        case 3:
            return {kHexane, kBenzene, kToluene};
        case 5:
            return {kPentane, kHexane, kHeptane, kBenzene, kToluene};
        default:
            return {kPentane, kHexane, kHeptane, kBenzene, kToluene, 106978, 111659, 111842, 124185, 78784,
                    75832,    107835,  540841,   287923,   110827,   108872, 100414, 95476,  108383, 106423};
    }
}

int numberOf(const RecordFile& database, std::int32_t CAS) {
    for (int number = 1; number <= database.count(); ++number)
        if (database.read(number).CAS == CAS) return number;
    std::cerr << "The database has no substance " << CAS << '\n';
    std::exit(1);
}

}  // namespace

std::shared_ptr<Mixture> mixtureOf(int n) {
    auto mixture = std::make_shared<Mixture>();
    const RecordFile database(VELOR_DATABASE);
    for (const std::int32_t CAS : registryNumbers(n)) {
        mixture->numbers.push_back(numberOf(database, CAS));
        mixture->records.push_back(database.read(mixture->numbers.back()));
    }
    mixture->fractions.assign(mixture->size(), 1.0 / static_cast<double>(mixture->size()));
    if (n == 3) mixture->fractions = {0.3, 0.3, 0.4};
    mixture->X = Fractions(mixture->fractions);
    mixture->smes.AdrVELOR(VELOR_DATABASE);
    mixture->smes.DefSlozky(List(std::span<const int>(mixture->numbers)));
    mixture->smes.Inivlr();
    return mixture;
}

}  // namespace velor::bench
