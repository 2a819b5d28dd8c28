// What a command has to say, before it is known in which form: sections of named values and tables.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace velor::app {

// Nothing (not known, not computed), a whole number, a number as a record holds it (shown to people in full), a
// computed one (rounded for them) or a text.
using Value = std::variant<std::monostate, int, float, double, std::string>;

// One named value. A constant has a unit, an empty one where it is a pure number; a name or formula has none.
struct Entry {
    std::string key;
    std::string caption;
    Value value;
    std::optional<std::string> unit;
};

struct Cell {
    Value value;
    std::string mark;  // a sign behind the number that a note of the section explains; for people only
};

inline Cell textCell(std::string_view text) { return {std::string(text), {}}; }

struct Column {
    enum class Audience { Everyone, Machines };

    std::string key;
    std::string caption;
    std::string unit;
    Audience audience = Audience::Everyone;
};

// The first column names the row.
struct Table {
    std::vector<Column> columns;
    std::vector<std::vector<Cell>> rows;
};

using Entries = std::vector<Entry>;

struct Section {
    std::string key;
    std::string title;  // a section without one is for machines only
    std::variant<Entries, Table> content;
    std::vector<std::string> notes;
};

struct Report {
    std::vector<Section> sections;
    std::string csvTable = {};  // key of the section that CSV consists of; empty: all values, one a line
    std::string text = {};      // what people read instead of the sections, where it is not empty
};

}  // namespace velor::app
