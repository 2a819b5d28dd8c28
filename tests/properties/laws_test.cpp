// Laws of the mixture that every method keeps.
#include <gtest/gtest.h>

#include <cmath>
#include <set>

#include "support/methods.h"
#include "support/real_mixture.h"

namespace velor::test {
namespace {

constexpr std::int32_t kWater = 7732185, kBenzene = 71432, kToluene = 108883, kHexane = 110543, kOctane = 111659;

struct System {
    std::vector<std::int32_t> substances;
    std::vector<double> x;
};

const std::set<std::string> kOfNoSystem{"KsumX", "Cohmo", "Comol", "Normal"};

TEST(Laws, orderSplitAndZeroComponentsDoNotMatter) {
    const System whole{{kHexane, kBenzene, kOctane}, {0.2, 0.3, 0.5}}, pure{{kHexane}, {1}};
    const std::tuple<const char*, System, System> same[] = {
        {"order", whole, {{kOctane, kHexane, kBenzene}, {0.5, 0.2, 0.3}}},
        {"zeros", whole, {{kWater, kHexane, kBenzene, kToluene, kOctane}, {0, 0.2, 0.3, 0, 0.5}}},
        {"pure", pure, {{kHexane, kBenzene}, {1, 0}}},
        {"split", whole, {{kHexane, kOctane, kBenzene, kOctane}, {0.2, 0.25, 0.3, 0.25}}}};
    // The gas's conductivity has a factor of five decimals, and a split adds an entropy of mixing.
    const std::set<std::string> changedByASplit{"ALAG", "RALAG", "PrG", "RSG", "RSGW"};
    for (const auto& [what, one, other] : same)
        for (const Method& method : kMethods) {
            if (kOfNoSystem.contains(method.name)) continue;
            if (what == std::string("split") && changedByASplit.contains(method.name)) continue;
            RealMixture a(one.substances), b(other.substances);
            const double value = method(a.smes, 400, 1e5, Fractions(one.x));
            EXPECT_NE(value, 0.0) << method.name;
            EXPECT_NEAR(method(b.smes, 400, 1e5, Fractions(other.x)), value, 1e-9 * std::abs(value))
                << method.name << ' ' << what;
        }
}

}  // namespace
}  // namespace velor::test
