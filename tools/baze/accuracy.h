// How far the figures of a database are from published reference equations, property by property.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "baze/fault.h"
#include "velor/record.h"

namespace velor::baze {

// The deviations of one property, %.
struct AccuracyRow {
    std::string property;  // its code; the heat capacities of liquids below their critical point at 320 K apart
    std::size_t points = 0;
    double median = 0;
    double p95 = 0;  // 95 of 100 points are not farther away
    double most = 0;
};

using AccuracyTable = std::vector<AccuracyRow>;

// Against the values of a table Cislo, vlastnost, T, value; every point of a property that the database gives.
AccuracyTable accuracyOf(const std::vector<TLatka>& records, std::string_view points, LineFaults& faults);

AccuracyTable readAccuracy(std::string_view text, LineFaults& faults);
std::string writeAccuracy(const AccuracyTable& table);

// What is worse than it was, by more than the digits told; a Czech sentence each.
std::vector<std::string> worsened(std::span<const AccuracyRow> now, std::span<const AccuracyRow> before);

}  // namespace velor::baze
