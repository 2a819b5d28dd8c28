// Many points at once: beside the same loops written by hand for this machine's vector instructions, and bubble points,
// dew points and flashes beside the object.
#include <functional>
#include <numeric>

#include "comparison.h"
#include "mixture.h"
#include "vector_floor.h"
#include "velor/flash_table.h"

namespace velor::bench {

namespace {

constexpr std::size_t kPoints = 4096;
constexpr double kTolerance = 1e-7;  // of the loops, which do not care for last bits and stop with the slowest point

struct States {
    Points T, P;
};

double sumOfAll(const Points& values) { return std::accumulate(values.begin(), values.end(), 0.0); }

// Both ways fill an array; its sum is compared once, its making is timed.
void compareArrays(const std::string& task, double goal, const States& states,
                   std::function<void(const States&, Points&)> ours, std::function<void(const States&, Points&)> floor,
                   double tolerance = kTolerance) {
    const auto filled = [](std::function<void(const States&, Points&)> fill) {
        return [fill, values = std::make_shared<Points>(kPoints)](const States& at) {
            fill(at, *values);
            return values->front() + values->back();
        };
    };
    Points one(kPoints), other(kPoints);
    ours(states, one);
    floor(states, other);
    requireAgreement(task, sumOfAll(one), sumOfAll(other), tolerance);
    compare(task, Goal::ratio(goal), std::vector<States>{states}, filled(ours), filled(floor), tolerance);
}

struct Table {
    std::shared_ptr<Mixture> mixture;
    PreparedMixture prepared;

    explicit Table(int n) : mixture(mixtureOf(n)), prepared(VELOR_DATABASE, mixture->numbers) {}

    std::function<void(const States&, Points&)> of(const char* code) const {
        return [table = *this, row = findMixtureProperty(code)](const States& at, Points& values) {
            evaluate(table.prepared, *row, at.T, at.P, {table.mixture->fractions}, values, {});
        };
    }
    std::function<void(const States&, Points&)> pure(const char* code) const {
        return [table = *this, row = findPureProperty(code)](const States& at, Points& values) {
            evaluate(table.prepared, *row, 1, at.T, values, {});
        };
    }
    const TKorelace& correlation(const char* code) const {
        return mixture->records[0].Korelace[static_cast<std::size_t>(findPureProperty(code)->number - 1)];
    }
};

// Halfway between bubble and dew point, of an adiabatic flash a feed that much warmer.
States flashStates(const Table& table, const Points& P, FlashKind kind) {
    States states{Points(kPoints), P};
    Points bubble(kPoints), dew(kPoints);
    table.of("TBV")(states, bubble);
    table.of("TRB")(states, dew);
    for (std::size_t k = 0; k < kPoints; ++k)
        states.T[k] = 0.5 * (bubble[k] + dew[k]) + (kind == FlashKind::Adiabatic ? 30.0 : 0.0);
    return states;
}

// The object writes its report, which the table spares; both solve the same passes.
void compareFlashes(const std::string& task, const Table& table, const Points& pressures, FlashKind kind) {
    compareArrays(
        task, kind == FlashKind::Isothermal ? 0.6 : 0.75, flashStates(table, pressures, kind),
        [table, kind](const States& at, Points& values) {
            flash(table.prepared, kind, at.T, at.P, {table.mixture->fractions}, kPoints, {.vapourFractions = values});
        },
        [table, kind](const States& at, Points& values) {
            for (std::size_t k = 0; k < kPoints; ++k) {
                Variant kelvin = at.T[k], pascals = at.P[k];
                benchmark::DoNotOptimize(
                    table.mixture->smes.FLASH(kind == FlashKind::Adiabatic ? 1 : 0, kelvin, pascals, table.mixture->X));
                values[k] = table.mixture->smes.lastFlash().vapourFraction;
            }
        },
        1e-3);
}

}  // namespace

void addTable() {
    const States gas{evenly(430.0, 530.0, kPoints), evenly(1e5, 3e5, kPoints)};
    const States liquid{evenly(300.0, 450.0, kPoints), evenly(0.5e5, 2e5, kPoints)};
    const Table five(5), three(3), one(1);
    for (const auto& [code, goal] : {std::pair{"TENS", 1.3}, {"ROLW", 1.4}})
        compareArrays(std::string("table pure ") + code, goal, liquid, one.pure(code),
                      [one, block = one.correlation(code)](const States& at, Points& values) {
                          vectorEquation(block, at.T, values);
                      });
    compareArrays("table ETAG 5", 1.4, gas, five.of("ETAG"), [five](const States& at, Points& values) {
        vectorGasViscosity(five.mixture->records, five.mixture->fractions, at.T, values);
    });
    const auto realGas = RealGasFloor(three.mixture->records).mix(three.mixture->fractions);
    compareArrays("table RHG 3", 1.6, gas, three.of("RHG"),
                  [realGas](const States& at, Points& values) { vectorGasEnthalpy(realGas, at.T, at.P, values); });
    const double M = three.mixture->smes.VSM(three.mixture->X).toDouble();
    compareArrays("table RROGW 3", 1.6, gas, three.of("RROGW"), [realGas, M](const States& at, Points& values) {
        vectorGasVolume(realGas, at.T, at.P, values);
        for (double& value : values) value = M / value * 1e6;
    });
    // The object stops within 0.02 K; the sum agrees within a part in ten thousand.
    for (const char* code : {"TBV", "TRB"})
        compareArrays(
            std::string("table ") + code + " 3 beside the object", 0.34, liquid, three.of(code),
            [three, row = findMixtureProperty(code)](const States& at, Points& values) {
                for (std::size_t k = 0; k < kPoints; ++k)
                    values[k] = row->method(three.mixture->smes, {}, at.P[k], three.mixture->X).toDouble();
            },
            1e-4);
    compareFlashes("table FLASH 5 beside the object", five, liquid.P, FlashKind::Isothermal);
    compareFlashes("table FLASH 5 adiabatic beside the object", five, liquid.P, FlashKind::Adiabatic);
}

}  // namespace velor::bench
