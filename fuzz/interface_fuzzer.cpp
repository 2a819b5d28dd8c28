// The bytes as calls of the C interface, every function of it: with sizes, indices, strides and numbers that nobody
// would pass, and with arrays that are as long as is said, which is the one thing that it has to take on trust.
#include <array>
#include <climits>
#include <limits>
#include <memory>
#include <vector>

#include "support/sample_database.h"
#include "target.h"
#include "temporary_file.h"
#include "velor/velor.h"

namespace {

using namespace velor;

constexpr std::size_t kMostPoints = 40, kMostComponents = 20;
constexpr double kUntouched = -7.25;

class Caller : public fuzz::Bytes {
  public:
    using Bytes::Bytes;

    template <class Item, std::size_t count>
    Item oneOf(const std::array<Item, count>& items) {
        return items[take<std::uint8_t>() % count];
    }
    bool often() { return take<std::uint8_t>() % 8 != 0; }

    double number() {
        const std::array kOdd{0.0,
                              -1.0,
                              1e-300,
                              1e300,
                              1e5,
                              1e7,
                              101325.0,
                              std::nan(""),
                              273.15,
                              350.0,
                              400.0,
                              600.0,
                              std::numeric_limits<double>::infinity()};
        return often() ? oneOf(kOdd) : take<double>();
    }
    int index() { return often() ? take<std::uint8_t>() % 48 - 2 : oneOf(std::array{INT_MIN, INT_MAX, 1000}); }
    std::ptrdiff_t stride() {
        if (often()) return take<std::uint8_t>() % 24;
        return oneOf(std::array<std::ptrdiff_t, 5>{-1, PTRDIFF_MAX, PTRDIFF_MIN, PTRDIFF_MAX / 2, 1000});
    }
    std::size_t structureSize(std::size_t right) {
        return often() ? right : oneOf(std::array<std::size_t, 4>{0, 8, right - 1, SIZE_MAX});
    }
    int threads() { return often() ? take<std::uint8_t>() % 4 : oneOf(std::array{-1, INT_MAX, INT_MIN, 300}); }
    std::string text() { return std::string(takeText(take<std::uint8_t>() % 24)); }
    std::vector<double> numbers(std::size_t count) {
        std::vector<double> values(count);
        for (double& value : values) value = number();
        return values;
    }
    std::size_t pointCount() { return take<std::uint8_t>() % kMostPoints; }
};

struct Error : velor_error {
    explicit Error(Caller& caller) : velor_error{caller.structureSize(sizeof(velor_error)), 0, ""} {}
};

void checkStatus(int status, const velor_error& error) {
    fuzz::require(status >= VELOR_OK && status <= VELOR_NO_MEMORY, "an unexpected status");
    const bool isTold = error.text[0] != '\0';
    fuzz::require(isTold == (status != VELOR_OK && error.size >= sizeof(velor_error)), "a failure without its text");
}

void walk(const char* text) { fuzz::require(text && std::strlen(text) < 4096, "a text that does not end"); }

// ---- What is known beside mixtures -------------------------------------------------------------------------------

void askCatalogue(Caller& caller) {
    const int index = caller.index();
    for (const auto text :
         {velor_verdict_word, velor_verdict_mark, velor_verdict_note, velor_constant_key, velor_constant_unit})
        walk(text(index));
    velor_verdict_has_value(index);
    const std::string code = caller.text();
    for (const auto find : {velor_find_mixture_property, velor_find_pure_property})
        fuzz::require(find(code.c_str()) >= -1 && find(nullptr) == -1, "an index that is none");
    for (const auto row : {velor_mixture_property, velor_pure_property}) {
        velor_property property{};
        property.size = caller.structureSize(sizeof property);
        if (row(index, &property) != VELOR_OK) continue;
        for (const char* text : {property.code, property.caption, property.symbol, property.unit, property.rule})
            walk(text);
    }
    velor_mixture_property(index, nullptr);
}

void askDatabase(Caller& caller, const velor_database* database) {
    velor_substance substance{};
    substance.size = caller.structureSize(sizeof substance);
    if (velor_database_substance(database, caller.index(), &substance) == VELOR_OK)
        for (const char* text : {substance.name, substance.synonym, substance.formula, substance.cas}) walk(text);
    Error error(caller);
    int finding = 0, count = 0;
    std::array<int, 4> numbers{};
    const int capacity = caller.often() ? 4 : caller.oneOf(std::array{0, -1, INT_MIN});
    const int status =
        velor_database_find(database, caller.text().c_str(), &finding, numbers.data(), capacity, &count, &error);
    checkStatus(status, error);
    double constant = 0;
    velor_database_constant(database, caller.index(), caller.index(), &constant);
    velor_correlation correlation{};
    correlation.size = caller.structureSize(sizeof correlation);
    if (velor_database_correlation(database, caller.index(), caller.index(), &correlation) == VELOR_OK)
        walk(correlation.equation);
}

// ---- Mixtures ----------------------------------------------------------------------------------------------------

using Mixture = std::unique_ptr<velor_mixture, decltype(&velor_mixture_free)>;

Mixture makeMixture(Caller& caller, const velor_database* database) {
    std::vector<int> numbers(1 + caller.take<std::uint8_t>() % (kMostComponents + 2));
    for (int& number : numbers) number = caller.often() ? 1 + caller.take<std::uint8_t>() % 3 : caller.index();
    velor_settings settings{caller.structureSize(sizeof(velor_settings)), caller.often(), !caller.often()};
    Error error(caller);
    velor_mixture* mixture = nullptr;
    const int status = velor_mixture_create(database, numbers.data(), static_cast<int>(numbers.size()),
                                            caller.often() ? &settings : nullptr, &mixture, &error);
    checkStatus(status, error);
    fuzz::require((mixture != nullptr) == (status == VELOR_OK), "a mixture that was not made");
    return {mixture, velor_mixture_free};
}

// One number for all points or one each, mostly; the arrays live as long as it does.
struct Inputs {
    std::vector<double> T, P, x;
    velor_compositions compositions;

    Inputs(Caller& caller, std::size_t points)
        : T(caller.numbers(caller.often() ? points : caller.pointCount())),
          P(caller.numbers(caller.often() ? 1 : caller.pointCount())),
          x(caller.numbers(caller.take<std::uint8_t>() % 200)) {
        compositions = {caller.structureSize(sizeof compositions),
                        x.data(),
                        x.size(),
                        caller.stride(),
                        caller.stride(),
                        caller.often() ? 0 : 1,
                        caller.often() ? 1 : 0};
    }
    velor_series temperatures() const { return {T.data(), T.size()}; }
    velor_series pressures() const { return {P.data(), P.size()}; }
};

void requireSame(const std::vector<double>& one, const std::vector<double>& other) {
    const auto same = [](double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); };
    fuzz::require(std::equal(one.begin(), one.end(), other.begin(), other.end(), same), "threads change the values");
}

void checkValues(int status, const std::vector<double>& values, const std::vector<int>& verdicts) {
    for (std::size_t i = 0; i < values.size(); ++i)
        fuzz::require(status == VELOR_OK ? velor_verdict_has_value(verdicts[i]) != std::isnan(values[i])
                                         : values[i] == kUntouched && verdicts[i] == -1,
                      "a value that does not fit its verdict");
}

void evaluate(Caller& caller, const velor_mixture* mixture) {
    const std::size_t points = caller.pointCount();
    const Inputs inputs(caller, points);
    const int index = caller.index(), component = caller.index();
    const bool isPure = !caller.often();
    std::vector<double> first;
    for (const int threads : {1, caller.threads()}) {
        std::vector<double> values(points, kUntouched);
        std::vector<int> verdicts(points, -1);
        velor_error error = VELOR_ERROR_INIT;
        const int status =
            isPure ? velor_evaluate_pure(mixture, index, component, inputs.temperatures(), points, values.data(),
                                         verdicts.data(), threads, &error)
                   : velor_evaluate(mixture, index, inputs.temperatures(), inputs.pressures(), &inputs.compositions,
                                    points, values.data(), verdicts.data(), threads, &error);
        checkStatus(status, error);
        checkValues(status, values, verdicts);
        if (threads == 1 && first.empty()) first = values;
        requireSame(first, values);
    }
}

void flash(Caller& caller, const velor_mixture* mixture) {
    const std::size_t points = caller.pointCount(), room = caller.often() ? points * 20 : caller.pointCount();
    const Inputs inputs(caller, points);
    const int kind = caller.often() ? caller.take<std::uint8_t>() % 2 : caller.index();
    const unsigned wanted = caller.often() ? ~0U : caller.take<std::uint16_t>();
    const std::ptrdiff_t byComponent = caller.often() ? 1 : caller.stride();
    const std::ptrdiff_t byPoint = caller.often() ? 0 : caller.stride();
    const std::size_t size = caller.structureSize(sizeof(velor_flash_results));
    std::vector<double> first;
    for (const int threads : {1, caller.threads()}) {
        std::array<std::vector<int>, 3> integers;
        for (auto& each : integers) each.assign(points, -1);
        std::vector<double> numbers(6 * points, kUntouched), fractions(3 * room, kUntouched);
        const auto ifWanted = [&](unsigned bit, auto* array) { return (wanted >> bit & 1U) != 0 ? array : nullptr; };
        const auto column = [&](unsigned i) { return ifWanted(3 + i, numbers.data() + i * points); };
        const auto phase = [&](unsigned i) { return ifWanted(9 + i, fractions.data() + i * room); };
        const velor_flash_results results = {size,
                                             ifWanted(0, integers[0].data()),
                                             ifWanted(1, integers[1].data()),
                                             ifWanted(2, integers[2].data()),
                                             column(0),
                                             column(1),
                                             column(2),
                                             column(3),
                                             column(4),
                                             column(5),
                                             phase(0),
                                             phase(1),
                                             phase(2),
                                             room,
                                             byComponent,
                                             byPoint};
        velor_error error = VELOR_ERROR_INIT;
        const int status = velor_flash(mixture, kind, inputs.temperatures(), inputs.pressures(), &inputs.compositions,
                                       points, &results, threads, &error);
        checkStatus(status, error);
        for (std::size_t i = 0; wanted == ~0U && i < points && status == VELOR_OK; ++i)
            fuzz::require(std::isnan(numbers[i]) == (integers[0][i] == 0 || integers[0][i] == 4),
                          "a vapour fraction that does not fit its outcome");
        numbers.insert(numbers.end(), fractions.begin(), fractions.end());
        if (threads == 1 && first.empty()) first = numbers;
        requireSame(first, numbers);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fuzz::TemporaryFolder folder;
    static const std::string sample = test::databaseBytes(test::sampleSubstances(3));
    Caller caller(data, size);
    // A byte that tells how many records of the input come first; without any the sample is opened.
    const std::string_view records = caller.takeText(caller.take<std::uint8_t>() % 4 * kRecordSize);
    const std::string path = folder.write("VELOR.DRC", records.empty() ? sample : records);
    walk(velor_version());
    velor_database* opened = nullptr;
    Error error(caller);
    checkStatus(velor_database_open(path.c_str(), &opened, &error), error);
    const std::unique_ptr<velor_database, decltype(&velor_database_close)> database(opened, velor_database_close);
    Mixture mixture = makeMixture(caller, database.get());
    for (int call = 0; call < 16 && !caller.empty(); ++call) {
        switch (caller.take<std::uint8_t>() % 6) {
            case 0:
                askCatalogue(caller);
                break;
            case 1:
                askDatabase(caller, database.get());
                break;
            case 2:
                mixture = makeMixture(caller, database.get());
                break;
            case 3:
                evaluate(caller, mixture.get());
                break;
            default:
                flash(caller, mixture.get());
        }
    }
    return 0;
}
