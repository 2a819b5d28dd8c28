#include "properties/flash_report.h"

#include <cstddef>
#include <initializer_list>
#include <string_view>

#include "runtime/numbers.h"
#include "runtime/physical_constants.h"
#include "runtime/text.h"

namespace velor {

namespace {

constexpr double kKilopascal = 1000.0;

// A label padded as it stands, then each value behind a TAB.
void appendLine(std::string& report, std::string_view label, std::initializer_list<double> values,
                const NumberPattern& pattern) {
    report += label;
    for (const double value : values) {
        report += '\t';
        pattern.append(report, value);
    }
    report += kLineBreak;
}

}  // namespace

void appendFlashReport(std::string& report, const FlashReport& conditions, const FlashRecord& result,
                       std::span<const std::string> names) {
    report.reserve(report.size() + 400 + 60 * names.size());
    const NumberPattern fraction("0.0000"), temperature("0.0"), pressure("0.000");
    const auto celsius = [](double T) { return T - kZeroCelsius; };
    appendLine(report, "Poměr parní fáze k nástřiku: ", {result.vapourFraction}, fraction);
    appendLine(report, "Teplota poč., koncová (°C)   : ",
               {celsius(conditions.startTemperature), celsius(conditions.endTemperature)}, temperature);
    appendLine(report, "Tlak poč., koncový (kPa)     : ",
               {conditions.startPressure / kKilopascal, conditions.endPressure / kKilopascal}, pressure);
    appendLine(report, "Bod varu(°C), rosný bod(°C)  : ", {celsius(result.bubblePoint), celsius(result.dewPoint)},
               temperature);
    report += "Složka\t\t\t\t\t\t\tPára\tKapalina\tNástřik";
    report += kLineBreak;
    for (std::size_t i = 0; i < names.size(); ++i)
        appendLine(report, names[i], {result.vapour[i], result.liquid[i], result.feed[i]}, fraction);
    report += kLineBreak;
}

}  // namespace velor
