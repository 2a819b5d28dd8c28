#include "temperatures.h"

#include <cmath>
#include <string>

#include "failure.h"
#include "item_list.h"
#include "number_text.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "typed_number.h"

namespace velor::app {

namespace {

constexpr double kMostPoints = 10000;

[[noreturn]] void refuse(const std::string& text) { throw Failure(ExitCode::WrongUse, text); }

double number(std::string_view text) { return typedNumber(text, "V zápisu teplot"); }

double temperature(std::string_view text) {
    const double T = number(text);
    if (!(T > 0)) refuse("Teplota musí být kladná (v kelvinech), zadáno: " + std::string(trimBlanks(text)) + ".");
    return T;
}

// Free of the noise of adding: 300.3, not 300.30000000000001.
double tidy(double T) { return parseLeadingNumber(shortestText(T)); }

std::vector<double> range(double start, double end, double step) {
    if (step == 0) refuse("Krok rozsahu teplot nesmí být nula.");
    if (start != end && (end > start) != (step > 0))
        refuse("Krok " + exactText(step) + " nevede od teploty " + exactText(start) + " K k " + exactText(end) + " K.");
    constexpr double kRounding = 1e-9;  // of a step
    const double steps = std::floor((end - start) / step + kRounding);
    if (!(steps < kMostPoints)) {
        refuse("Rozsah teplot má příliš mnoho bodů; nejvýše jich může být " +
               std::to_string(static_cast<int>(kMostPoints)) + ".");
    }
    std::vector<double> points;
    for (int i = 0; i <= static_cast<int>(steps); ++i) points.push_back(tidy(start + i * step));
    if (std::abs(points.back() - end) <= std::abs(kRounding * step)) points.back() = end;
    return points;
}

std::vector<double> parseRange(std::string_view text) {
    const std::size_t first = text.find(':');
    const std::size_t second = text.find(':', first + 1);
    if (second == std::string_view::npos || text.find(':', second + 1) != std::string_view::npos)
        refuse("Rozsah teplot „" + std::string(text) + "“ nemá tvar OD:DO:KROK (např. 300:400:10).");
    return range(temperature(text.substr(0, first)), temperature(text.substr(first + 1, second - first - 1)),
                 number(text.substr(second + 1)));
}

}  // namespace

std::vector<double> parseTemperatures(std::string_view text) {
    if (text.find(':') != std::string_view::npos) return parseRange(text);
    const std::vector<std::string> items = splitItems(text);
    if (static_cast<double>(items.size()) > kMostPoints) refuse("Teplot je příliš mnoho.");
    std::vector<double> temperatures;
    for (const std::string& item : items) temperatures.push_back(temperature(item));
    return temperatures;
}

double parseTemperature(std::string_view text) { return temperature(text); }

}  // namespace velor::app
