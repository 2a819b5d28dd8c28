#include "command_line/typed_values.h"

#include <charconv>
#include <cmath>
#include <optional>
#include <string>

#include "people/people.h"
#include "velor/run_time_error.h"
#include "velor/text.h"

namespace velor::app {

namespace {

[[noreturn]] void refuse(const std::string& text) { throw Failure(ExitCode::WrongUse, text); }

std::string given(std::string_view text) { return ", zadáno: " + std::string(trimBlanks(text)) + "."; }

// What a number is for: how the sentence begins that says that it is missing, and how the one ends that refuses a text.
struct Field {
    std::string_view place;
    std::string_view advice;
};

constexpr Field kTemperature{"V zápisu teplot", "teplota se zadává v kelvinech bez jednotky, např. 298.15"};
constexpr Field kPressure{"V zápisu tlaku", "tlak se zadává v pascalech bez jednotky, např. 101325"};
constexpr Field kFraction{"V zápisu složení", "složení se zadává zlomky, např. 0.4,0.6"};
constexpr Field kTimeLimit{"V časovém limitu", "limit se zadává v sekundách bez jednotky, např. 60"};

// A text that is one finite number, with "," or "." as the decimal separator.
double typedNumber(std::string_view text, const Field& field) {
    if (trimBlanks(text).empty()) refuse(std::string(field.place) + " chybí číslo.");
    std::optional<double> value;
    try {
        value = parseWholeNumber(text);
    } catch (const RunTimeError&) {
        refuse("Číslo „" + std::string(text) + "“ je příliš velké.");
    }
    if (!value) refuse("„" + std::string(text) + "“ není číslo; " + std::string(field.advice) + ".");
    return *value;
}

}  // namespace

double typedPressure(std::string_view text) {
    const double P = typedNumber(text, kPressure);
    if (!(P > 0)) refuse("Tlak musí být kladný (v pascalech)" + given(text));
    return P;
}

std::vector<double> typedFractions(std::string_view text) {
    std::vector<double> fractions;
    for (const std::string& item : splitItems(text)) {
        fractions.push_back(typedNumber(item, kFraction));
        if (fractions.back() < 0) refuse("Zlomek ve složení nesmí být záporný" + given(item));
    }
    return fractions;
}

int typedCount(std::string_view text, std::string_view name, int least, int most) {
    const std::string place = std::string("V zápisu: ").append(name);
    const double count = typedNumber(text, {place, "zadává se celým číslem, např. 21"});
    if (!(count >= least && count <= most) || count != static_cast<int>(count)) {
        refuse(std::string(name) + " musí být celé číslo od " + std::to_string(least) + " do " + std::to_string(most) +
               given(text));
    }
    return static_cast<int>(count);
}

double typedSeconds(std::string_view text) {
    const double seconds = typedNumber(text, kTimeLimit);
    constexpr double kMost = 1e9;  // beyond any clock's trouble
    if (!(seconds > 0 && seconds <= kMost))
        refuse("Časový limit musí být kladný počet sekund, nejvýše 1e9" + given(text));
    return seconds;
}

namespace {

constexpr double kMostPoints = 10000;

double number(std::string_view text) { return typedNumber(text, kTemperature); }

double temperature(std::string_view text) {
    const double T = number(text);
    if (!(T > 0)) refuse("Teplota musí být kladná (v kelvinech), zadáno: " + std::string(trimBlanks(text)) + ".");
    return T;
}

// Free of the noise of adding: 300.3, not 300.30000000000001.
double tidy(double T) {
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, T, std::chars_format::general, 15);
    std::from_chars(digits, end.ptr, T);
    return T;
}

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

bool isOneNumber(std::string_view text) {
    try {
        return parseWholeNumber(text).has_value();
    } catch (const RunTimeError&) {
        return false;  // too large, which the items tell
    }
}

// One comma may separate two temperatures or be the decimal comma of one: nobody is to guess.
void refuseAmbiguity(std::string_view text) {
    const std::vector<std::string> items = splitItems(text);
    if (items.size() != 2 || text.find(';') != std::string_view::npos || !isOneNumber(text)) return;
    refuse("„" + std::string(text) + "“ může být jedna teplota i dvě: jednu zapište " + items[0] + "." + items[1] +
           ", dvě " + items[0] + ";" + items[1] + ".");
}

}  // namespace

std::vector<double> parseTemperatures(std::string_view text) {
    if (text.find(':') != std::string_view::npos) return parseRange(text);
    refuseAmbiguity(trimBlanks(text));
    const std::vector<std::string> items = splitItems(text);
    if (static_cast<double>(items.size()) > kMostPoints) refuse("Teplot je příliš mnoho.");
    std::vector<double> temperatures;
    for (const std::string& item : items) temperatures.push_back(temperature(item));
    return temperatures;
}

double parseTemperature(std::string_view text) { return temperature(text); }

}  // namespace velor::app
