// From the bytes of any database back to the two tables.
#pragma once

#include <string>
#include <string_view>

#include "baze/supplement_table.h"
#include "velor/supplement.h"

namespace velor::baze {

struct TextDatabase {
    std::string substances;
    std::string correlations;
    SupplementTexts further;  // what else the supplement tells
    std::string refusal;      // why there is no text, in Czech; empty where there is
};

// Compiling the tables gives the same bytes: without content checks always, with them for a sound database. Refused are
// only bytes that are no whole number of records and more records than there are numbers.
// Groups of the list (skupina) are in no file; without a supplement sources, deviations and names are not told either.
TextDatabase decompile(std::string_view bytes, const Supplement& supplement = {});

}  // namespace velor::baze
