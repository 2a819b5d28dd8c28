// How a run is computed with some instructions; included by the translation unit of each.
#pragma once

#include "properties/property_point_rules.h"
#include "properties/saturation_point_rules.h"
#include "table/lanes.h"

namespace velor {

template <class Instructions>
class LaneRun {
  public:
    static void mixture(const PreparedComponents& mixture, std::span<const double> fractions,
                        const MixtureProperty& property, std::size_t evaluation, const Run& run) {
        BasicPropertyPoint<Number> point(mixture, fractions);
        const Evaluation<Number> evaluate = kEvaluations<Number>[evaluation].function;
        const bool mayBeMetastable = run.standings && isOfGasAtPressure(property);
        inGroups(run, [&](const Number& T, const Number& P, Judgement& judgement) {
            const Number found = point.at(T, P).value(property, evaluate);
            judgement.standings = point.standings();
            judgement.property = &property;
            if (!mayBeMetastable) return found;
            const Number condensing = point.condensing();
            condensing.store(judgement.condensing);
            return select(isNan(condensing), condensing, found);
        });
    }

    static void pure(const PreparedComponent& component, int property, const Run& run) {
        inGroups(run, [&](const Number& T, const Number&, Judgement& judgement) {
            return component.pure(property, BasicTemperature<Number>(T), judgement.standings);
        });
    }

  private:
    using Number = Lanes<Instructions>;

    struct Judgement {
        Standings<Number> standings;
        const MixtureProperty* property = nullptr;  // none of a pure substance
        double condensing[Number::kCount]{};

        Standing of(std::size_t lane) const {
            const Standing worst = standings.worst(lane);
            return property ? concluded(*property, worst, condensing[lane] > Raoult::kMostOfGas) : worst;
        }
    };

    // The last group is filled up with its last point.
    static Number take(const double* values, std::size_t step, std::size_t count) {
        if (step == 0) return *values;
        if (count == Number::kCount) return Number::load(values);
        double filled[Number::kCount];
        for (std::size_t lane = 0; lane < Number::kCount; ++lane) filled[lane] = values[lane < count ? lane : count - 1];
        return Number::load(filled);
    }

    static void give(const Number& found, double* values, std::size_t count) {
        if (count == Number::kCount) return found.store(values);
        double filled[Number::kCount];
        found.store(filled);
        for (std::size_t lane = 0; lane < count; ++lane) values[lane] = filled[lane];
    }

    template <class Compute>
    static void inGroups(const Run& run, const Compute& compute) {
        for (std::size_t from = 0; from < run.points; from += Number::kCount) {
            const std::size_t rest = run.points - from, count = rest < Number::kCount ? rest : Number::kCount;
            const Number T = take(run.T + from * run.stepT, run.stepT, count);
            const Number P = take(run.P + from * run.stepP, run.stepP, count);
            Judgement judgement;
            give(computed(compute, T, P, judgement), run.values + from, count);
            if (!run.standings) continue;
            for (std::size_t lane = 0; lane < count; ++lane) run.standings[from + lane] = judgement.of(lane);
        }
    }

    template <class Compute>
    static Number computed(const Compute& compute, const Number& T, const Number& P, Judgement& judgement) {
        try {
            return compute(T, P, judgement);
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
