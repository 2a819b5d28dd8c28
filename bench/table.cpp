// Many points at once, per thousand points: beside the scalar floors, and bubble and dew points and flashes beside the
// object.
#include <array>
#include <functional>
#include <numeric>

#include "comparison.h"
#include "floor_equation.h"
#include "gas_floor.h"
#include "mixture.h"
#include "properties/pure_value.h"
#include "velor/flash_table.h"

namespace velor::bench {

namespace {

constexpr std::size_t kPoints = 1000;

using Points = std::vector<double>;

double sumOfAll(const Points& values) { return std::accumulate(values.begin(), values.end(), 0.0); }

// The sum over all points by the other way.
std::function<double(const Points&)> eachOf(std::function<double(double)> value) {
    return [value](const Points& points) {
        double sum = 0;
        for (const double point : points) sum += value(point);
        return sum;
    };
}

struct Table {
    std::shared_ptr<Mixture> mixture;
    PreparedMixture prepared;
    std::shared_ptr<Points> values = std::make_shared<Points>(kPoints);

    explicit Table(int n) : mixture(mixtureOf(n)), prepared(VELOR_DATABASE, mixture->numbers) {}

    double of(const char* code, const Points& T, const Points& P) const {
        evaluate(prepared, *findMixtureProperty(code), T, P, {mixture->fractions}, *values, {});
        return sumOfAll(*values);
    }
};

// Halfway between bubble and dew point, of an adiabatic flash a feed that much warmer.
struct Flashes {
    FlashKind kind;
    Points T, P;

    Flashes(FlashKind kind, const Table& table) : kind(kind), T(kPoints), P(evenly(0.5e5, 2e5, kPoints)) {
        Points dew(kPoints);
        evaluate(table.prepared, *findMixtureProperty("TBV"), {}, P, {table.mixture->fractions}, T, {});
        evaluate(table.prepared, *findMixtureProperty("TRB"), {}, P, {table.mixture->fractions}, dew, {});
        for (std::size_t i = 0; i < kPoints; ++i)
            T[i] = 0.5 * (T[i] + dew[i]) + (kind == FlashKind::Adiabatic ? 30.0 : 0.0);
    }
};

void compareFlashes(const std::string& name, const Table& table, const Flashes& flashes) {
    compare(
        name, Goal::ratio(0.34), std::vector{flashes},
        [=](const Flashes& at) {
            flash(table.prepared, at.kind, at.T, at.P, {table.mixture->fractions}, kPoints,
                  {.vapourFractions = *table.values});
            return sumOfAll(*table.values);
        },
        [=](const Flashes& at) {
            double sum = 0;
            for (std::size_t i = 0; i < kPoints; ++i) {
                Variant T = at.T[i], P = at.P[i];
                benchmark::DoNotOptimize(
                    table.mixture->smes.FLASH(at.kind == FlashKind::Adiabatic ? 1 : 0, T, P, table.mixture->X));
                sum += table.mixture->smes.lastFlash().vapourFraction;
            }
            return sum;
        },
        1e-3);
}

}  // namespace

void addTable() {
    const std::vector<Points> temperatures{evenly(350.0, 550.0, kPoints)}, pressures{evenly(0.5e5, 2e5, kPoints)};
    const Table five(5), three(3), one(1);
    const GasFloor gas(five.mixture->records);
    compare(
        "table ETAG 5", Goal::ratio(2.0), temperatures, [=](const Points& T) { return five.of("ETAG", T, {}); },
        eachOf([=](double T) { return gas.viscosity(T, five.mixture->fractions); }));
    compare(
        "table ALAG 5", Goal::ratio(2.0), temperatures, [=](const Points& T) { return five.of("ALAG", T, {}); },
        eachOf([=](double T) { return gas.conductivity(T, five.mixture->fractions); }));
    const FloorEquation tension(one.mixture->records[0].Korelace[kTENS - 1]);
    compare(
        "table vapour pressure", Goal::ratio(2.0), temperatures,
        [=](const Points& T) {
            evaluate(one.prepared, *findPureProperty("TENS"), 1, T, *one.values, {});
            return sumOfAll(*one.values);
        },
        eachOf([=](double T) { return tension(T); }));
    for (const char* code : {"TBV", "TRB"}) {
        // The object stops within 0.02 K; the sum of a thousand points agrees within a part in ten thousand.
        compare(
            std::string("table ") + code + " 3 beside the object", Goal::ratio(0.34), pressures,
            [=](const Points& P) { return three.of(code, {}, P); },
            eachOf([=, row = findMixtureProperty(code)](double P) {
                return row->method(three.mixture->smes, {}, P, three.mixture->X).toDouble();
            }),
            1e-4);
    }
    compareFlashes("table FLASH 5 beside the object", five, {FlashKind::Isothermal, five});
    compareFlashes("table FLASH 5 adiabatic beside the object", five, {FlashKind::Adiabatic, five});
}

}  // namespace velor::bench
