// What the component computes is what the native library computes.
#include <cmath>
#include <fstream>
#include <iostream>
#include <sstream>

#include "com/box_watcher.h"
#include "com/com_client.h"

namespace velor::test {
namespace {

constexpr double kTolerance = 1e-12;  // the two mathematical libraries differ in the last bits

struct Table {
    ComPointer<ISmes> smes = createSmes();
    Variant X;
    int calls = 0;
    double worst = 0;

    void define(std::istringstream& words) {
        int redlich = 0;
        std::size_t count = 0;
        words >> redlich >> count;
        std::vector<int> substances(count);
        std::vector<double> fractions(count);
        for (int& substance : substances) words >> substance;
        for (double& fraction : fractions) words >> fraction;
        smes = createSmes();
        test::define(*smes, substances);
        smes->put_Redlich(static_cast<short>(redlich));
        X = Fractions(fractions);
    }

    void compare(const std::string& line, const std::string& member, std::istringstream& words) {
        std::vector<Variant> arguments;
        for (std::string word; words >> word;) {
            if (word == "X") {
                arguments.push_back(X);
            } else {
                arguments.push_back(word);
            }
        }
        const double expected = arguments.back().toDouble();
        arguments.pop_back();
        const LateCall call(*smes, platform::toWide(member), arguments);
        ASSERT_EQ(call.result, S_OK) << line << ": " << call.failure.description;
        const double value = call.value.toDouble();
        const double difference = expected == 0 ? std::abs(value) : std::abs(value / expected - 1);
        EXPECT_LE(difference, kTolerance) << line << ": " << value;
        worst = std::max(worst, difference);
        ++calls;
    }
};

TEST(Numbers, equalTheNativeOnes) {
    const Apartment apartment;
    const BoxWatcher boxes;
    std::ifstream file(VELOR_NUMBERS);
    Table table;
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        std::string member;
        words >> member;
        if (member == "mixture") {
            table.define(words);
        } else {
            table.compare(line, member, words);
        }
    }
    EXPECT_GT(table.calls, 300);
    std::cout << table.calls << " calls, worst relative difference " << table.worst << "\n";
}

}  // namespace
}  // namespace velor::test
