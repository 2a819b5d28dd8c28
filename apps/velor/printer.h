// A report in each of its forms.
#pragma once

#include <string>

#include "report.h"

namespace velor::app {

enum class OutputForm { Text, Csv, Json };

// Aligned columns for people; wide tables are continued below with the first column repeated.
std::string asText(const Report& report);

// Either the report's one table, or the lines "klic,popis,hodnota,jednotka" of all its values. Lines end in LF.
std::string asCsv(const Report& report);

// One object with a member per section: entries become an object, tables an array of objects.
std::string asJson(const Report& report);

inline std::string print(const Report& report, OutputForm form) {
    switch (form) {
        case OutputForm::Csv:
            return asCsv(report);
        case OutputForm::Json:
            return asJson(report);
        case OutputForm::Text:
            break;
    }
    return asText(report);
}

}  // namespace velor::app
