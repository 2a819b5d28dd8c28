// Defining and loading 20 components. The floor reads the same bytes and nothing else.
#include <array>
#include <cstdio>

#include "comparison.h"
#include "mixture.h"
#include "records/record_layout.h"

namespace velor::bench {

namespace {

double readRecords(const std::vector<int>& numbers) {
    std::FILE* file = std::fopen(VELOR_DATABASE, "rb");
    if (!file) return 0.0;
    std::array<char, kRecordSize> bytes{};
    std::size_t whole = 0;
    for (const int number : numbers) {
        std::fseek(file, static_cast<long>(kRecordSize) * (number - 1), SEEK_SET);
        whole += std::fread(bytes.data(), bytes.size(), 1, file);
        benchmark::DoNotOptimize(bytes);
    }
    std::fclose(file);
    return static_cast<double>(whole);
}

}  // namespace

void addLoading() {
    const auto mixture = mixtureOf(20);
    compare(
        "loading 20 components", Goal::nanoseconds(1e6),
        std::vector<Variant>{List(std::span<const int>(mixture->numbers))},
        [mixture](const Variant& numbers) {
            mixture->smes.ResetujSmes();
            mixture->smes.DefSlozky(numbers);
            return mixture->smes.Inivlr().toDouble();
        },
        [mixture](const Variant&) { return readRecords(mixture->numbers); });
}

}  // namespace velor::bench
