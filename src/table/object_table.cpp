// The table of an object: its components and settings at the moment of the call, prepared and evaluated at many points.
#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include "object/load.h"
#include "properties/fractions.h"
#include "runtime/checked.h"
#include "velor/smes.h"
#include "velor/table.h"

namespace velor {

namespace {

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

// Nobody is told or asked while it lasts.
class Silence {
  public:
    explicit Silence(State& state)
        : messages_(state.messages), Tichy_(messages_.Tichy), userInterface_(messages_.userInterface) {
        messages_.Tichy = 1;
        messages_.userInterface = &state.nobody;
    }
    ~Silence() {
        messages_.Tichy = Tichy_;
        messages_.userInterface = userInterface_;
    }
    Silence(const Silence&) = delete;
    Silence& operator=(const Silence&) = delete;

  private:
    Messages& messages_;
    std::int16_t Tichy_;
    UserInterface* userInterface_;
};

std::vector<TLatka> loadedRecords(const Definition& definition) {
    std::vector<TLatka> records;
    for (int i = 1; i <= definition.PocSlozek; ++i) {
        records.push_back(definition.slots.Latka(i));
        records.back().Cislo = definition.slots.CisloLatky(i);
    }
    return records;
}

std::vector<double> fractionsOf(const Variant& X, int count) {
    const Composition composition(X);
    std::vector<double> fractions;
    for (int i = 1; i <= count; ++i) fractions.push_back(composition.at(i));
    return fractions;
}

// NaN where there is none: that point has no value then.
double numberOf(const Variant& value) {
    if (value.isEmpty()) return kNone;
    try {
        return value.toDouble();
    } catch (const RunTimeError&) {
        return kNone;
    }
}

std::size_t lengthOf(const Variant& array) {
    return static_cast<std::size_t>(array.upperBound() - array.lowerBound() + 1);
}

// One number or one each; none of what is not needed.
std::vector<double> numbersOf(const Variant& argument, bool isNeeded) {
    if (!isNeeded) return {};
    if (argument.isMissing()) checked::raise(RunTimeError::kTypeMismatch);
    if (!argument.isArray()) return {numberOf(argument)};
    std::vector<double> numbers;
    numbers.reserve(lengthOf(argument));
    for (int i = argument.lowerBound(); i <= argument.upperBound(); ++i) numbers.push_back(numberOf(argument.at(i)));
    return numbers;
}

Variant orEmpty(double value) { return std::isnan(value) ? Variant() : Variant(value); }

}  // namespace

Variant Smes::Tabulka(const std::string& Name, const Variant& X, const Variant& T, const Variant& P) {
    State& state = *state_;
    const PublicCall call(state);
    const Silence silence(state);
    const MixtureProperty* const property = findMixtureProperty(Name);
    if (!property) checked::raise(RunTimeError::kInvalidCall);
    const std::vector<double> temperatures = numbersOf(T, property->needsTemperature);
    const std::vector<double> pressures = numbersOf(P, property->needsPressure);
    if (T.isArray() && P.isArray() && lengthOf(T) != lengthOf(P)) checked::raise(RunTimeError::kSubscript);
    const Variant& shape = T.isArray() ? T : P;
    std::vector<double> values(shape.isArray() ? lengthOf(shape) : 1, kNone);
    const bool isLoaded = loadComponents(state) != 0;
    if (state.definition.PocSlozek == 0) checked::raise(RunTimeError::kSubscript);
    if (isLoaded) {
        const std::vector<TLatka> records = loadedRecords(state.definition);
        const PreparedMixture mixture(records, {state.settings.Redlich != 0, state.settings.MezeTeplot > 0});
        evaluate(mixture, *property, temperatures, pressures, {fractionsOf(X, mixture.size())}, values, {});
    }
    if (!shape.isArray()) return orEmpty(values[0]);
    std::vector<Variant> answer;
    answer.reserve(values.size());
    for (const double value : values) answer.push_back(orEmpty(value));
    return Variant::array(shape.lowerBound(), std::move(answer));
}

}  // namespace velor
