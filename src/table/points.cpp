#include "table/points.h"

#include <cmath>

#include "rules/composition.h"
#include "runtime/checked.h"

namespace velor {

void refuse() { checked::raise(RunTimeError::kSubscript); }

std::size_t lastOffset(std::size_t count, std::ptrdiff_t stride, std::size_t most) {
    if (count <= 1 || stride == 0) return 0;
    if (stride < 0 || static_cast<std::size_t>(stride) > most / (count - 1)) refuse();
    return (count - 1) * static_cast<std::size_t>(stride);
}

void requireInside(const Compositions& X, std::size_t components, std::size_t points) {
    if (X.values.empty()) refuse();
    const std::size_t most = X.values.size() - 1;
    if (lastOffset(components, X.componentStride, most) + lastOffset(points, X.pointStride, most) > most) refuse();
}

FractionReader::FractionReader(const PreparedComponents& mixture, const Compositions& X)
    : X_(X), count_(mixture.components.size()) {
    for (std::size_t i = 0; i < count_; ++i) molarMasses_[i] = mixture.components[i].record().Mv;
}

bool FractionReader::read(std::size_t point, std::array<double, kMostComponents>& x) const {
    double sum = 0;
    for (std::size_t i = 0; i < count_; ++i) {
        x[i] = X_.values[static_cast<std::size_t>(static_cast<std::ptrdiff_t>(i) * X_.componentStride +
                                                  static_cast<std::ptrdiff_t>(point) * X_.pointStride)];
        if (!(x[i] >= 0)) return false;
        sum += x[i];
    }
    const auto fractions = std::span(x).first(count_);
    if (X_.isNormalised && sum > 0 && std::isfinite(sum))
        for (double& fraction : fractions) fraction /= sum;
    else if (!(std::abs(1.0 - sum) <= kFractionTolerance))
        return false;
    return X_.kind == FractionKind::Mole || toMoles(fractions);
}

bool FractionReader::toMoles(std::span<double> fractions) const {
    const std::array<double, kMostComponents> masses = [&] {
        std::array<double, kMostComponents> copy{};
        std::ranges::copy(fractions, copy.begin());
        return copy;
    }();
    try {
        moleFractions(std::span(masses).first(count_), std::span(molarMasses_).first(count_), fractions);
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

}  // namespace velor
