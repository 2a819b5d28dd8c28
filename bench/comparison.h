// A task of the library beside its floor: the same numbers by the bare arithmetic, written by hand, with everything
// prepared that depends on the substances alone. Both are timed in the same run, because only their ratio tells
// something on a machine that does other work too.
#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace velor::bench {

// What the library's time is to stay within, told to ratios.py by a counter of this name.
struct Goal {
    const char* kind;
    double limit;

    static Goal ratio(double most) { return {"goal_ratio", most}; }              // times the floor
    static Goal overhead(double most) { return {"goal_overhead", most}; }        // nanoseconds more than the floor
    static Goal nanoseconds(double most) { return {"goal_nanoseconds", most}; }  // whatever the floor takes
};

// Ends the program when the relative difference is above the tolerance: a floor that computes something else is none.
void requireAgreement(const std::string& task, double ours, double floor, double tolerance);

std::vector<double> evenly(double first, double last, std::size_t count = 64);

// One evaluation at one of the points, in turn. The composition and the constants live in memory that the optimiser
// has to read anew each time.
template <class Point, class Function>
void add(const std::string& name, Goal goal, std::shared_ptr<const std::vector<Point>> points, Function function) {
    benchmark::RegisterBenchmark(name.c_str(), [goal, points, function](benchmark::State& state) {
        std::size_t k = 0;
        for (auto _ : state) {
            benchmark::DoNotOptimize(function((*points)[k]));
            benchmark::ClobberMemory();
            if (++k == points->size()) k = 0;
        }
        state.counters[goal.kind] = goal.limit;
    });
}

// Registers "task/velor" and "task/floor". Both functions take a point and give a double.
template <class Point, class Ours, class Floor>
void compare(const std::string& task, Goal goal, std::vector<Point> points, Ours ours, Floor floor,
             double tolerance = 1e-9) {
    for (const Point& point : points) requireAgreement(task, ours(point), floor(point), tolerance);
    const auto shared = std::make_shared<const std::vector<Point>>(std::move(points));
    add(task + "/velor", goal, shared, std::move(ours));
    add(task + "/floor", goal, shared, std::move(floor));
}

// The tasks, one function a file.
void addEquations();
void addPureValues();
void addLoading();
void addLiquid();
void addGas();
void addSaturation();
void addRealGas();
void addByName();
void addFlash();
void addTable();

}  // namespace velor::bench
