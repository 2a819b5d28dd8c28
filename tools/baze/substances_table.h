// The table of substances: names, registry number and constants, one row a record.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "baze/fault.h"
#include "velor/record.h"

namespace velor::baze {

struct Substances {
    std::map<int, TLatka> records;  // by record number, without correlations
    bool complete = false;          // whether every row gave a number of its own
};

// A faulty row still claims its number, so that its correlations are not reported too.
Substances readSubstances(std::string_view text, Checks checks, LineFaults& faults);

// The record that stands for a number without a substance: blank texts, all else zero.
TLatka blankRecord();

// The rows of the table, cells in the order of its columns.
std::vector<std::string> substanceCells(int number, const TLatka& record);
std::string writeSubstances(const std::vector<std::vector<std::string>>& rows);

}  // namespace velor::baze
