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

// A row of own substances: the number is given later, only the name, the CAS number and what is required have to be
// there.
struct OwnSubstance {
    int line = 0;
    TLatka record;                         // its number is the one of the row, 0 where there is none
    std::vector<std::string_view> untold;  // columns that the table lacks
};
std::vector<OwnSubstance> readOwnSubstances(std::string_view text, int firstLine, LineFaults& faults);

// What the table lacks of a substance that is there already stays as it was.
void keepUntold(TLatka& record, const TLatka& held, const std::vector<std::string_view>& untold);

// The record that stands for a number without a substance: blank texts, all else zero.
TLatka blankRecord();

// The rows of the table, cells in the order of its columns.
std::vector<std::string> substanceCells(int number, const TLatka& record);
// The first row of a table of own substances, and a sample of one.
std::string ownSubstancesHeader();
std::string writeSubstances(const std::vector<std::vector<std::string>>& rows);

}  // namespace velor::baze
