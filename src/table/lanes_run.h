// How a run is computed with some instructions; included by the translation unit of each.
#pragma once

#include "properties/property_point_rules.h"
#include "properties/saturation_point_rules.h"
#include "table/lanes.h"

namespace velor {

template <class Instructions>
class LaneRun {
  public:
    static bool mixture(const PreparedComponents& mixture, std::span<const double> fractions,
                        const PointProperty& property, const Run& run) {
        BasicPropertyPoint<Number> point(mixture, fractions);
        const Evaluation<Number> evaluate = kEvaluations<Number>[property.evaluation].function;
        const bool mayBeMetastable = run.standings && isOfGasAtPressure(property.row);
        return inGroups(run, [&](const Number& T, const Number& P, Standing* standings, std::size_t count) {
            const Number found = point.at(T, P).value(property.row, evaluate);
            if (!standings) return found;
            double condensing[Number::kCount]{};
            const Number sum = mayBeMetastable ? point.condensing() : Number(0.0);
            sum.store(condensing);
            for (std::size_t lane = 0; lane < count; ++lane)
                standings[lane] =
                    concluded(property.row, point.standings().worst(lane), condensing[lane] > Raoult::kMostOfGas);
            return found + 0.0 * sum;
        });
    }

    static bool pure(const PreparedComponent& component, int property, const Run& run) {
        return inGroups(run, [&](const Number& T, const Number&, Standing* standings, std::size_t count) {
            Standings<Number> judged;
            const Number found = finite(component.pure(property, BasicTemperature<Number>(T), judged));
            for (std::size_t lane = 0; standings && lane < count; ++lane) standings[lane] = judged.worst(lane);
            return found;
        });
    }

  private:
    using Number = Lanes<Instructions>;

    // The last group is filled up with its last point.
    static Number take(const double* values, std::size_t step, std::size_t count) {
        if (step == 0) return *values;
        if (count == Number::kCount) return Number::load(values);
        double filled[Number::kCount];
        for (std::size_t lane = 0; lane < Number::kCount; ++lane)
            filled[lane] = values[lane < count ? lane : count - 1];
        return Number::load(filled);
    }

    static void give(const Number& found, double* values, std::size_t count) {
        if (count == Number::kCount) return found.store(values);
        double filled[Number::kCount];
        found.store(filled);
        for (std::size_t lane = 0; lane < count; ++lane) values[lane] = filled[lane];
    }

    template <class Compute>
    static bool inGroups(const Run& run, const Compute& compute) {
        bool isComplete = true;
        for (std::size_t from = 0; from < run.points; from += Number::kCount) {
            const std::size_t rest = run.points - from, count = rest < Number::kCount ? rest : Number::kCount;
            const Number T = take(run.T + from * run.stepT, run.stepT, count);
            const Number P = take(run.P + from * run.stepP, run.stepP, count);
            Standing* const standings = run.standings ? run.standings + from : nullptr;
            const Number found = computed(compute, T, P, standings, count);
            isComplete = isComplete && !isAny(isNan(found));
            give(found, run.values + from, count);
        }
        return isComplete;
    }

    template <class Compute>
    static Number computed(const Compute& compute, const Number& T, const Number& P, Standing* standings,
                           std::size_t count) {
        try {
            return compute(T, P, standings, count);
        } catch (const RunTimeError&) {
            return numbers::kNan;  // each alone tells its own
        }
    }
};

template <class Instructions>
constexpr LaneFunctions laneFunctionsOf() {
    return {&LaneRun<Instructions>::mixture, &LaneRun<Instructions>::pure};
}

}  // namespace velor
