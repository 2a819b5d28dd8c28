#include "velor/variant.h"

#include "runtime/checked.h"
#include "runtime/numbers.h"

namespace velor {

namespace {

template <class Element>
std::vector<Variant> asVariants(std::span<const Element> elements) {
    return {elements.begin(), elements.end()};
}

}  // namespace

Variant Variant::array(int lowerBound, std::vector<Variant> elements) {
    // So that bounds can be computed with, upperBound() + 1 and lowerBound() - 1 included.
    const auto behind = static_cast<std::int64_t>(elements.size()) + lowerBound;
    if (lowerBound == std::numeric_limits<int>::min() || behind > std::numeric_limits<int>::max())
        checked::raise(RunTimeError::kSubscript);
    return Variant(Storage(Array{lowerBound, std::move(elements)}));
}

double Variant::convertToDouble() const {
    switch (kind()) {
        case Kind::Empty:
            return 0.0;
        case Kind::Null:
            checked::raise(RunTimeError::kInvalidUseOfNull);
        case Kind::Boolean:
            return std::get<bool>(value_) ? -1.0 : 0.0;
        case Kind::Int16:
            return std::get<std::int16_t>(value_);
        case Kind::Int32:
            return std::get<std::int32_t>(value_);
        case Kind::Single:
            return checked::finite(std::get<float>(value_));
        case Kind::Double:
            return checked::finite(std::get<double>(value_));
        case Kind::Date:
            return checked::finite(std::get<Date>(value_).days);
        case Kind::Text:
            if (const std::optional<double> number = parseWholeNumber(std::get<std::string>(value_))) return *number;
            break;
        case Kind::Missing:
        case Kind::Array:
            break;
    }
    checked::raise(RunTimeError::kTypeMismatch);
}

float Variant::toSingle() const {
    const auto single = static_cast<float>(toDouble());
    checked::finite(single);
    return single;
}

std::int16_t Variant::toInt16() const { return roundToInt16(toDouble()); }

std::string Variant::toText() const {
    switch (kind()) {
        case Kind::Empty:
            return {};
        case Kind::Text:
            return std::get<std::string>(value_);
        case Kind::Boolean:
            return std::get<bool>(value_) ? "True" : "False";
        case Kind::Single:
            return shortestText(std::get<float>(value_));
        default:
            return shortestText(toDouble());
    }
}

int Variant::upperBound() const {
    const Array& array = heldArray();
    return array.lowerBound + static_cast<int>(array.elements.size()) - 1;
}

void Variant::raise(RunTimeError::Number number) { checked::raise(number); }

Variant List(std::initializer_list<Variant> elements) { return Variant::array(0, elements); }
Variant List(std::span<const int> elements) { return Variant::array(0, asVariants(elements)); }
Variant Numbers(std::span<const double> elements) { return Variant::array(1, asVariants(elements)); }
Variant Fractions(std::span<const double> elements) { return Numbers(elements); }
Variant Fractions(std::initializer_list<double> elements) {
    return Numbers(std::span<const double>(elements.begin(), elements.size()));
}

}  // namespace velor
