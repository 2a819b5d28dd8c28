#include "baze/row_reader.h"

#include <cmath>
#include <utility>

#include "velor/smes.h"

namespace velor::baze {

template <class Value>
std::optional<Value> RowReader::taken(std::string_view column, Parsed<Value> parsed) {
    if (auto* value = std::get_if<Value>(&parsed)) return std::move(*value);
    fault(column, std::get<Fault>(parsed).reason);
    return std::nullopt;
}

std::optional<float> RowReader::single(std::string_view column, float whenEmpty) {
    if (cell(column).empty()) return whenEmpty;
    const std::optional<float> value = taken(column, readSingle(cell(column)));
    if (value && !std::isfinite(*value)) doubt(column, "hodnota není konečné číslo");
    return value;
}

std::optional<std::int16_t> RowReader::integer(std::string_view column, std::optional<std::int16_t> whenEmpty) {
    if (!cell(column).empty()) return taken(column, readInteger(cell(column)));
    if (!whenEmpty) fault(column, "hodnota chybí");
    return whenEmpty;
}

std::optional<std::int32_t> RowReader::registryNumber(std::string_view column) {
    const std::string_view text = cell(column);
    if (text.empty()) return 0;
    const std::optional<std::int32_t> value = taken(column, readCas(text));
    if (!value) return std::nullopt;
    if (!hasCasForm(text)) {
        doubt(column, quoted(text) + " nemá tvar 7732-18-5");
    } else if (!hasCasCheckDigit(text)) {
        doubt(column, "kontrolní číslice čísla " + std::string(text) + " nesouhlasí");
    }
    return value;
}

std::optional<std::string> RowReader::bytes(std::string_view column, std::size_t width) {
    return taken(column, readBytes(cell(column), width));
}

std::optional<int> RowReader::recordNumber(std::string_view column) {
    const auto number = integer(column);
    if (!number) return std::nullopt;
    if (*number >= 1) return *number;
    fault(column, "číslo látky má být 1 až 32767, ne " + std::to_string(*number));
    return std::nullopt;
}

std::optional<int> RowReader::property(std::string_view column) {
    for (int k = 1; k <= TLatka::kCorrelations; ++k)
        if (Smes::ChybRozv(k) == cell(column)) return k;
    fault(column, quoted(cell(column)) + " není vlastnost (ETAG, CPG … SIGMA, Rezerva)");
    return std::nullopt;
}

void RowReader::fault(std::string_view column, std::string_view reason) {
    faults_.push_back({row_.line, std::string(column).append(": ").append(reason)});
}

void RowReader::doubt(std::string_view column, std::string_view reason) {
    if (checks_ == Checks::Full) fault(column, reason);
}

}  // namespace velor::baze
