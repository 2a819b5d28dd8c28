// What the tests of mixtures share: the fixture, the unreadable fractions, the trap's error, roots by bisection.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "support/sample_mixture.h"

namespace velor::test {

struct SampleTest : ::testing::Test {
    SampleMixture mixture;
    Smes& smes = mixture.smes;
    std::vector<Message>& messages = mixture.boxes.messages;

    explicit SampleTest(const std::vector<TLatka>& records) : mixture(records) {}
};

// What no method of two or more components can read, and the error that it is.
struct Unreadable {
    const char* what;
    Variant X;
    int error;
};
inline const Unreadable kUnreadable[] = {
    {"one too short", Fractions({1.0}), 9},
    {"counted from 0", List({0.5, 0.5}), 9},
    {"no array", 0.5, 13},
    {"a word inside", Variant::array(1, {0.5, "half"}), 13},
    {"Null inside", Variant::array(1, {0.5, Variant::null()}), 94},
    {"no number inside", Fractions({0.5, std::nan("")}), 6},
};

// The source of the error that the body raises in mode -1; its number and description are every trap's own.
template <class Body>
std::string trapSource(const Body& body) {
    const Raised error = raised(body);
    EXPECT_EQ(error.number, RunTimeError::kRaisedToHost);
    EXPECT_EQ(error.description, "Chyba při výpočtu vlastnosti!");
    return error.source;
}

// The root of a rising function.
template <class Function>
double bisect(double low, double high, const Function& rising) {
    for (int halving = 0; halving < 60; ++halving) {
        const double middle = (low + high) / 2;
        (rising(middle) < 0 ? low : high) = middle;
    }
    return (low + high) / 2;
}

}  // namespace velor::test
