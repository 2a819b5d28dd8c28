#include "baze/fit/points.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "baze/csv.h"
#include "records/field_text.h"
#include "velor/run_time_error.h"
#include "velor/text.h"

namespace velor::baze {

namespace {

struct Unit {
    std::string_view base;  // the database's unit that it is converted to
    std::string_view name;
    double factor;
    double shift = 0;  // added after that
};

// As they are compared: without blanks, dots and superscripts.
constexpr std::array kUnits{
    Unit{"K", "K", 1},
    Unit{"K", "°C", 1, 273.15},
    Unit{"K", "C", 1, 273.15},
    Unit{"K", "°F", 5.0 / 9.0, 459.67 * 5.0 / 9.0},
    Unit{"Pa", "Pa", 1},
    Unit{"Pa", "hPa", 100},
    Unit{"Pa", "mbar", 100},
    Unit{"Pa", "kPa", 1e3},
    Unit{"Pa", "MPa", 1e6},
    Unit{"Pa", "bar", 1e5},
    Unit{"Pa", "atm", 101325},
    Unit{"Pa", "torr", 101325.0 / 760.0},
    Unit{"Pa", "mmHg", 101325.0 / 760.0},
    Unit{"kg/m3", "kg/m3", 1},
    Unit{"kg/m3", "g/cm3", 1e3},
    Unit{"kg/m3", "g/ml", 1e3},
    Unit{"Pas", "Pas", 1},
    Unit{"Pas", "mPas", 1e-3},
    Unit{"Pas", "cP", 1e-3},
    Unit{"Pas", "uPas", 1e-6},
    Unit{"Pas", "µPas", 1e-6},
    Unit{"J/(molK)", "J/(molK)", 1},
    Unit{"J/(molK)", "kJ/(molK)", 1e3},
    Unit{"J/(molK)", "cal/(molK)", 4.184},
    Unit{"W/(mK)", "W/(mK)", 1},
    Unit{"W/(mK)", "mW/(mK)", 1e-3},
    Unit{"J/mol", "J/mol", 1},
    Unit{"J/mol", "kJ/mol", 1e3},
    Unit{"N/m", "N/m", 1},
    Unit{"N/m", "mN/m", 1e-3},
    Unit{"N/m", "dyn/cm", 1e-3},
};

void replaceAll(std::string& text, std::string_view from, std::string_view to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

std::string plainUnit(std::string_view unit) {
    std::string plain(unit);
    for (const std::string_view dropped : {" ", "·", ".", "^"}) replaceAll(plain, dropped, "");
    replaceAll(plain, "³", "3");
    return plain;
}

struct Heading {
    std::string name;
    std::string unit;  // empty where none is told
};

Heading headingOf(std::string_view cell) {
    const std::size_t bracket = std::min(cell.find('['), cell.size());
    std::string_view unit = cell.substr(bracket);
    if (unit.size() >= 2 && unit.back() == ']') unit = unit.substr(1, unit.size() - 2);
    return {std::string(trimBlanks(cell.substr(0, bracket))), plainUnit(unit)};
}

class PointReader {
  public:
    PointReader(const PureProperty& property, LineFaults& faults) : property_(property), faults_(faults) {}

    std::vector<MeasuredPoint> read(std::string_view text) {
        std::vector<CsvRow> rows = readCsv(text, faults_);
        std::vector<MeasuredPoint> points;
        if (rows.empty()) faults_.push_back({1, "soubor neobsahuje žádné body"});
        if (!faults_.empty() || !readHeader(rows.front())) return points;
        const std::size_t columns = rows.front().cells.size();
        for (const CsvRow& row : std::span(rows).subspan(1)) {
            const auto surplus = std::span(row.cells).subspan(std::min(columns, row.cells.size()));
            if (std::ranges::any_of(surplus, [](const std::string& cell) { return !cell.empty(); })) {
                faults_.push_back({row.line, "polí je víc než sloupců; desetinnou čárku je třeba dát do uvozovek"});
                continue;
            }
            const MeasuredPoint point{value(row, T_, temperature_), value(row, value_, unit_), weight(row), row.line};
            constexpr double kHottest = 10000;
            if (point.T <= 0 || point.T > kHottest) fault(row, "T", "teplota má být od 0 do 10000 K");
            if (point.value <= 0) fault(row, property_.code, "hodnota má být kladná");
            if (point.weight < 0) fault(row, "vaha", "váha nemá být záporná");
            points.push_back(point);
        }
        const auto isOther = [&](const MeasuredPoint& point) { return point.T != points.front().T; };
        if (faults_.empty() && std::ranges::none_of(points, isOther))
            faults_.push_back({1, "body mají být aspoň dva, při různých teplotách"});
        return points;
    }

  private:
    bool readHeader(const CsvRow& header) {
        if (header.cells.size() == 1 && header.cells.front().find(';') != std::string::npos)
            faults_.push_back({header.line, "sloupce odděluje čárka, ne středník"});
        if (!faults_.empty()) return false;
        for (std::size_t i = 0; i < header.cells.size(); ++i) {
            const Heading heading = headingOf(header.cells[i]);
            if (heading.name == "T" || heading.name == "t") {
                T_ = i;
                temperature_ = unitOf(header, heading, "K");
            } else if (heading.name == property_.code || heading.name == "hodnota") {
                value_ = i;
                unit_ = unitOf(header, heading, plainUnit(property_.unit));
            } else if (heading.name == "vaha" || heading.name == "váha") {
                weight_ = i;
            } else if (!heading.name.empty()) {
                fault(header, heading.name,
                      "neznámý sloupec; očekává se T, " + std::string(property_.code) + " a vaha");
            }
        }
        if (!T_) faults_.push_back({header.line, "v záhlaví chybí sloupec T"});
        if (!value_) faults_.push_back({header.line, "v záhlaví chybí sloupec " + std::string(property_.code)});
        return faults_.empty();
    }

    Unit unitOf(const CsvRow& header, const Heading& heading, std::string_view base) {
        const std::string_view wanted = heading.unit.empty() ? base : heading.unit;
        const auto* const unit =
            std::ranges::find_if(kUnits, [&](const Unit& u) { return u.base == base && u.name == wanted; });
        if (unit != kUnits.end()) return *unit;
        std::string known;
        for (const Unit& u : kUnits)
            if (u.base == base) known += (known.empty() ? "" : ", ") + std::string(u.name);
        fault(header, heading.name, "jednotka „" + heading.unit + "“ není z těchto: " + known);
        return kUnits.front();
    }

    double number(const CsvRow& row, std::optional<std::size_t> column) {
        if (!column || *column >= row.cells.size()) return std::nan("");
        try {
            return parseWholeNumber(row.cells[*column]).value_or(std::nan(""));
        } catch (const RunTimeError&) {
            return std::nan("");
        }
    }

    double value(const CsvRow& row, std::optional<std::size_t> column, const Unit& unit) {
        const double given = number(row, column);
        if (std::isnan(given)) {
            fault(row, column == T_ ? "T" : property_.code,
                  quoted(*column < row.cells.size() ? row.cells[*column] : "") + " není číslo");
            return 1;
        }
        return given * unit.factor + unit.shift;
    }

    double weight(const CsvRow& row) {
        if (!weight_ || *weight_ >= row.cells.size() || row.cells[*weight_].empty()) return 1;
        const double given = number(row, weight_);
        if (std::isnan(given)) fault(row, "vaha", quoted(row.cells[*weight_]) + " není číslo");
        return std::isnan(given) ? 1 : given;
    }

    void fault(const CsvRow& row, std::string_view column, std::string_view reason) {
        faults_.push_back({row.line, std::string(column).append(": ").append(reason)});
    }

    const PureProperty& property_;
    LineFaults& faults_;
    std::optional<std::size_t> T_, value_, weight_;
    Unit temperature_ = kUnits.front();
    Unit unit_ = kUnits.front();
};

}  // namespace

std::vector<MeasuredPoint> readPoints(std::string_view text, const PureProperty& property, LineFaults& faults) {
    return PointReader(property, faults).read(text);
}

}  // namespace velor::baze
