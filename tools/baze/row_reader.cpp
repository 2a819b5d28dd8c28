#include "baze/row_reader.h"

#include <cmath>

#include "records/field_text.h"

namespace velor::baze {

std::optional<float> RowReader::single(std::string_view column, float whenEmpty) {
    float value = whenEmpty;
    if (cell(column).empty()) return value;
    if (const std::string reason = readSingle(cell(column), value); !reason.empty()) {
        fault(column, reason);
        return std::nullopt;
    }
    if (!std::isfinite(value)) doubt(column, "hodnota není konečné číslo");
    return value;
}

std::optional<std::int16_t> RowReader::integer(std::string_view column, std::optional<std::int16_t> whenEmpty) {
    if (cell(column).empty()) {
        if (!whenEmpty) fault(column, "hodnota chybí");
        return whenEmpty;
    }
    std::int16_t value = 0;
    const std::string reason = readInteger(cell(column), value);
    if (reason.empty()) return value;
    fault(column, reason);
    return std::nullopt;
}

std::optional<std::int32_t> RowReader::registryNumber(std::string_view column) {
    const std::string_view text = cell(column);
    std::int32_t value = 0;
    if (text.empty()) return value;
    if (const std::string reason = readCas(text, value); !reason.empty()) {
        fault(column, reason);
        return std::nullopt;
    }
    if (!hasCasForm(text)) {
        doubt(column, quoted(text) + " nemá tvar 7732-18-5");
    } else if (!hasCasCheckDigit(text)) {
        doubt(column, "kontrolní číslice čísla " + std::string(text) + " nesouhlasí");
    }
    return value;
}

std::optional<std::string> RowReader::bytes(std::string_view column, std::size_t width) {
    std::string value;
    const std::string reason = readBytes(cell(column), width, value);
    if (reason.empty()) return value;
    fault(column, reason);
    return std::nullopt;
}

std::optional<int> RowReader::recordNumber(std::string_view column) {
    const auto number = integer(column);
    if (!number) return std::nullopt;
    if (*number >= 1) return *number;
    fault(column, "číslo látky má být 1 až 32767, ne " + std::to_string(*number));
    return std::nullopt;
}

void RowReader::fault(std::string_view column, std::string_view reason) {
    faults_.push_back({row_.line, std::string(column).append(": ").append(reason)});
}

void RowReader::doubt(std::string_view column, std::string_view reason) {
    if (checks_ == Checks::Full) fault(column, reason);
}

}  // namespace velor::baze
