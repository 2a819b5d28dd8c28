// The equations below the public interface.
#include "rules/equations.h"

#include <algorithm>
#include <stdexcept>
#include <string>

#include "comparison.h"
#include "floor_equation.h"

namespace velor::bench {

namespace {

struct Sample {
    int type;
    Coefficients A;
    const char* note = "";
};

// Coefficients of the size that substances have; no real one's where the database uses the type for none.
const std::vector<Sample> kSamples{
    {1, {1200.0F, -1.1F}},
    {2, {0.2F, -1e-4F, -1e-7F}},
    {3, {0.257F, -3.27e-4F, -4.27e-7F, 8.6e-10F}},
    {4, {178.3F, -0.155F, 2.9e-4F, 2.1e-6F, -2.3e-9F}},
    {5, {1.66F, 0.166F, 6.6e-4F, -1.27e-6F, 8.6e-10F, -2e-13F}},
    {6, {20.79F, -2788.5F, -52.4F}},
    {7, {0.3F, 0.27F, 562.0F}},
    {8, {0.0436F, 177.0F, 1.291F, 591.75F}},
    {9, {9.74F, 6.86F, -573.3F, -2.71F, 6.8e-3F, -5.9e-6F}},
    {10, {4.5F, 12.5F, -1e-3F, 1e-7F, -573.0F}},
    {11, {-11.0F, 1000.0F, 2000.0F, 3000.0F}},
    {12, {1.4e-6F, 110.0F}},
    {13, {-7.26F, 1.46F, -2.88F, -2.11F, 469.7F, 3.37e6F}},
    {14, {0.07F, 562.0F}},
    {15, {78.06F, 0.2635F, 562.05F, 0.27856F}},
    {16, {3e7F, 0.7F, 0.2F, 0.1F, 0.0F, 562.0F}},
    {17, {500.0F, 250.0F, -3.0F}},
    {18, {88.37F, -6712.9F, -10.022F, 7.694e-6F, 2.0F}, ", A5 = 2"},
    {18, {88.37F, -6712.9F, -10.022F, 7.694e-6F, 1.98F}, ", any A5"},
    {19, {3.14e-8F, 0.9675F, 8.03F, -35.6F}},
};

std::string nameOf(const Sample& sample) {
    return (sample.type < 10 ? "equation 0" : "equation ") + std::to_string(sample.type) + sample.note;
}

void requireEveryEquation() {
    for (int type = 1; isEquationType(type); ++type)
        if (std::none_of(kSamples.begin(), kSamples.end(), [&](const Sample& sample) { return sample.type == type; }))
            throw std::logic_error("no sample of equation " + std::to_string(type));
}

}  // namespace

void addEquations() {
    requireEveryEquation();
    for (const Sample& sample : kSamples)
        compare(
            nameOf(sample), Goal::ratio(1.3), evenly(290.0, 450.0),
            [equation = PreparedEquation(sample.type, sample.A)](double T) { return equation(T); },
            [equation = FloorEquation({sample.A, static_cast<std::int16_t>(sample.type)})](double T) {
                return equation(T);
            });
}

}  // namespace velor::bench
