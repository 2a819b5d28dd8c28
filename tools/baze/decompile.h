// From the bytes of any database back to the two tables.
#pragma once

#include <string>
#include <string_view>

namespace velor::baze {

struct TextDatabase {
    std::string substances;
    std::string correlations;
    std::string refusal;  // why there is no text, in Czech; empty where there is
};

// Compiling the tables gives the same bytes: without content checks always, with them for a sound database. Refused are
// only bytes that are no whole number of records and more records than there are numbers.
TextDatabase decompile(std::string_view bytes);

}  // namespace velor::baze
