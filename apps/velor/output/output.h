// What a command has to say, before it is known in which form, and the forms: text, CSV, JSON, pictures.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "velor/verdict.h"

namespace velor::app {

// ---- Reports: sections of named values and tables ---------------------------------------------------------------

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

// The signs behind values and, collected for the end of the table, what they mean.
class StandingNotes {
  public:
    // The cell of a value, with its sign.
    Cell cell(const PropertyValue& value);
    // One note for each sign given out.
    std::vector<std::string> notes() const;

  private:
    std::array<bool, kStandings> seen_{};
};

// ---- Their forms -------------------------------------------------------------------------------------------------

enum class OutputForm { Text, Csv, SafeCsv, Json };

// Aligned columns for people; wide tables are continued below with the first column repeated.
std::string asText(const Report& report);

// Either the report's one table, or the lines "klic,popis,hodnota,jednotka" of all its values. Lines end in LF. For a
// worksheet a text that it would take for a formula begins with an apostrophe.
enum class CsvReader { Program, Worksheet };
std::string asCsv(const Report& report, CsvReader reader);

// One object with a member per section: entries become an object, tables an array of objects.
std::string asJson(const Report& report);

inline std::string print(const Report& report, OutputForm form) {
    switch (form) {
        case OutputForm::Csv:
            return asCsv(report, CsvReader::Program);
        case OutputForm::SafeCsv:
            return asCsv(report, CsvReader::Worksheet);
        case OutputForm::Json:
            return asJson(report);
        case OutputForm::Text:
            break;
    }
    return asText(report);
}

// ---- Curves drawn into a picture file ----------------------------------------------------------------------------

struct Curve {
    struct Point {
        std::optional<double> x, y;  // where one is missing the curve is broken
        bool isSure = true;          // false for a value to be read with care: its piece of the curve is dashed

        bool isThere() const { return x && y; }
    };

    std::string name;
    std::vector<Point> points;
};

// The point of two cells of a table; a mark behind a value says that it is to be read with care.
Curve::Point pointOf(const Cell& x, const Cell& y);

struct Picture {
    std::string title;
    std::string horizontal;  // labels of the axes
    std::string vertical;
    std::vector<Curve> curves;
    bool isOverFractions = false;  // the horizontal axis goes from 0 to 1, wherever the points are
};

bool isPictureFileName(std::string_view name);  // ends in .svg or .png

// The name of a picture file must end in .svg or .png: Failure(WrongUse) otherwise.
std::string pictureFileName(std::string_view name);

// Draws the picture; the file is replaced as a whole. Failure(NothingComputed): gnuplot is not installed or failed, or
// the file cannot be written.
void drawPicture(const Picture& picture, const std::string& fileName);

// What there is to say of a picture that was drawn of a table: people read its notes, programs the whole table, too.
Report pictureReport(const std::string& fileName, Section drawn);

}  // namespace velor::app
