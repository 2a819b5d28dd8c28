#include "properties/flash_report.h"

#include <cstddef>
#include <initializer_list>

#include "runtime/numbers.h"
#include "runtime/physical_constants.h"
#include "runtime/text.h"

namespace velor {

namespace {

constexpr double kKilopascal = 1000.0;

// A label padded as it stands, then each value behind a TAB.
void appendLine(std::string& report, const std::string& label, std::initializer_list<double> values,
                const char* pattern) {
    report += label;
    for (const double value : values) {
        report += '\t';
        report += Format(value, pattern);
    }
    report += kLineBreak;
}

}  // namespace

std::string flashReport(const FlashReport& conditions, const FlashRecord& result, std::span<const std::string> names) {
    std::string report;
    report.reserve(400 + 60 * names.size());
    const auto celsius = [](double T) { return T - kZeroCelsius; };
    appendLine(report, "Poměr parní fáze k nástřiku: ", {result.vapourFraction}, "0.0000");
    appendLine(report, "Teplota poč., koncová (°C)   : ",
               {celsius(conditions.startTemperature), celsius(conditions.endTemperature)}, "0.0");
    appendLine(report, "Tlak poč., koncový (kPa)     : ",
               {conditions.startPressure / kKilopascal, conditions.endPressure / kKilopascal}, "0.000");
    appendLine(report, "Bod varu(°C), rosný bod(°C)  : ", {celsius(result.bubblePoint), celsius(result.dewPoint)},
               "0.0");
    report += "Složka\t\t\t\t\t\t\tPára\tKapalina\tNástřik";
    report += kLineBreak;
    for (std::size_t i = 0; i < names.size(); ++i)
        appendLine(report, names[i], {result.vapour[i], result.liquid[i], result.feed[i]}, "0.0000");
    report += kLineBreak;
    return report;
}

}  // namespace velor
