#include "dialogs/typed_fields.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

#include "dialogs/typed_temperature.h"
#include "records/field_text.h"
#include "rules/equations.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "velor/constants.h"
#include "velor/run_time_error.h"

namespace velor {

namespace {

enum class Sign { Positive, NotNegative, Any };

// Acentric factors may be negative, a monatomic gas has no radius of gyration and many substances no dipole.
Sign signOf(std::string_view key) {
    if (key == "Acent") return Sign::Any;
    return key == "Gyr" || key == "Dipol" ? Sign::NotNegative : Sign::Positive;
}

std::string fieldName(int field) {
    constexpr std::array<std::string_view, F_Zmenaz::kFirstConstant> kTexts{"název", "synonymum", "vzorec", "CAS"};
    if (field < F_Zmenaz::kFirstConstant) return std::string(kTexts[static_cast<std::size_t>(field)]);
    return std::string(kConstantTable[static_cast<std::size_t>(field) - F_Zmenaz::kFirstConstant].caption);
}

[[noreturn]] void refuse(int field, const std::string& why) {
    throw InvalidField(field, "Pole „" + fieldName(field) + "“: " + why);
}

std::string_view wanted(Sign sign) {
    switch (sign) {
        case Sign::Positive:
            return "kladné číslo";
        case Sign::NotNegative:
            return "nezáporné číslo";
        default:
            return "číslo";
    }
}

// A number of single precision; nothing where the text is none.
std::optional<float> typedSingle(std::string_view text) {
    try {
        const std::optional<double> number = parseWholeNumber(text);
        if (!number || std::isinf(static_cast<float>(*number))) return std::nullopt;
        return static_cast<float>(*number);
    } catch (const RunTimeError&) {  // beyond double precision
        return std::nullopt;
    }
}

template <std::size_t Width>
void readText(const std::string& text, int field, std::array<char, Width>& bytes) {
    const Parsed<std::string> read = readBytes(trimBlanks(text), Width);
    if (const auto* fault = std::get_if<Fault>(&read)) refuse(field, fault->reason + ".");
    if (field == F_Zmenaz::kNazev && trimBlanks(text).empty()) refuse(field, "název nesmí chybět.");
    std::ranges::copy(std::get<std::string>(read), bytes.begin());
}

// Hyphens as on paper, with or without the brackets of the display; nothing typed is no number.
void readCasField(const std::string& text, int field, TLatka& record) {
    std::string number(trimBlanks(text));
    if (number.starts_with('[') && number.ends_with(']')) number = trimBlanks(number.substr(1, number.size() - 2));
    if (number.empty()) {
        record.CAS = 0;
        return;
    }
    if (!hasCasForm(number) || !hasCasCheckDigit(number))
        refuse(field, "zadejte platné číslo ve tvaru 64-17-5, nebo pole nechte prázdné.");
    record.CAS = std::get<std::int32_t>(readCas(number));
}

void readConstant(const std::string& text, int field, TLatka& record) {
    const std::size_t k = static_cast<std::size_t>(field) - F_Zmenaz::kFirstConstant;
    const ConstantDescription& constant = kConstantTable[k];
    const bool isNeeded = constant.key == "Mv";  // without a molar mass nothing of the mixture can be computed
    float& member = record.*constant.member;
    if (!isNeeded && trimBlanks(text).empty()) {
        member = kNoConstant;
        return;
    }
    const std::optional<float> number = typedSingle(text);
    const Sign sign = signOf(constant.key);
    const bool fits = number && (sign == Sign::Any || *number > 0 || (sign == Sign::NotNegative && *number == 0));
    if (!fits)
        refuse(field,
               std::string("zadejte ").append(wanted(sign)).append(isNeeded ? "." : ", nebo pole nechte prázdné."));
    member = *number;
}

std::optional<std::int16_t> typedWholeNumber(std::string_view text) {
    const std::string_view digits = trimBlanks(text);
    std::int16_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
    return number;
}

std::int16_t readKelvin(const std::string& text, int field, const std::string& name) {
    const std::optional<std::int16_t> T = typedWholeNumber(text);
    if (!T || *T < 0) throw InvalidField(field, name + ": zadejte celé číslo kelvinů, nejvýše 32767.");
    return *T;
}

}  // namespace

std::optional<double> typedTemperature(std::string_view text) {
    try {
        const std::optional<double> T = parseWholeNumber(text);
        return T && *T > 0 ? T : std::nullopt;
    } catch (const RunTimeError&) {  // beyond double precision
        return std::nullopt;
    }
}

std::string fieldCaption(int field) {
    if (field < F_Zmenaz::kFirstConstant) return fieldName(field);
    const std::string_view unit = kConstantTable[static_cast<std::size_t>(field) - F_Zmenaz::kFirstConstant].unit;
    return unit.empty() ? fieldName(field) : fieldName(field).append(" [").append(unit).append("]");
}

std::string fieldText(const TLatka& record, int field) {
    switch (field) {
        case F_Zmenaz::kNazev:
            return bytesText({record.Nazev.data(), record.Nazev.size()});
        case F_Zmenaz::kSynonym:
            return bytesText({record.Synonym.data(), record.Synonym.size()});
        case F_Zmenaz::kVzorec:
            return bytesText({record.Vzorec.data(), record.Vzorec.size()});
        case F_Zmenaz::kCAS:
            return record.CAS == 0 ? std::string() : registryText(record.CAS);
        default:
            break;
    }
    const float constant = record.*kConstantTable[static_cast<std::size_t>(field) - F_Zmenaz::kFirstConstant].member;
    return constant == kNoConstant ? std::string() : singleText(constant);
}

void readField(const std::string& text, int field, TLatka& record) {
    switch (field) {
        case F_Zmenaz::kNazev:
            return readText(text, field, record.Nazev);
        case F_Zmenaz::kSynonym:
            return readText(text, field, record.Synonym);
        case F_Zmenaz::kVzorec:
            return readText(text, field, record.Vzorec);
        case F_Zmenaz::kCAS:
            return readCasField(text, field, record);
        default:
            return readConstant(text, field, record);
    }
}

std::array<std::string, frmOprav::kFields> blockTexts(const TKorelace& block) {
    std::array<std::string, frmOprav::kFields> texts;
    if (block.Priznak == 0) return texts;
    texts[frmOprav::kTyp] = std::to_string(block.Typ);
    for (std::size_t j = 0; j < block.A.size(); ++j) texts[frmOprav::kFirstCoefficient + j] = singleText(block.A[j]);
    texts[frmOprav::kTmin] = std::to_string(block.Tmin);
    texts[frmOprav::kTmax] = std::to_string(block.Tmax);
    return texts;
}

TKorelace readBlock(const std::array<std::string, frmOprav::kFields>& texts) {
    TKorelace block;
    const int type = typedType(texts[frmOprav::kTyp]);
    if (type == 0) return block;
    if (!isEquationType(type))
        throw InvalidField(frmOprav::kTyp,
                           "Typ rovnice: zadejte číslo " + equationTypesText() + ", nebo pole nechte prázdné.");
    block.Typ = static_cast<std::int16_t>(type);
    block.Priznak = 1;
    for (std::size_t j = 0; j < block.A.size(); ++j) {
        const std::string& text = texts[frmOprav::kFirstCoefficient + j];
        if (trimBlanks(text).empty()) continue;
        const std::optional<float> A = typedSingle(text);
        const int field = frmOprav::kFirstCoefficient + static_cast<int>(j);
        if (!A) throw InvalidField(field, "A" + std::to_string(j + 1) + ": zadejte číslo; prázdné pole je nula.");
        block.A[j] = *A;
    }
    block.Tmin = readKelvin(texts[frmOprav::kTmin], frmOprav::kTmin, "Tmin");
    block.Tmax = readKelvin(texts[frmOprav::kTmax], frmOprav::kTmax, "Tmax");
    if (block.Tmin > block.Tmax) throw InvalidField(frmOprav::kTmax, "Tmax: nesmí být nižší než Tmin.");
    return block;
}

int typedType(std::string_view text) {
    if (trimBlanks(text).empty()) return 0;
    const std::int16_t type = typedWholeNumber(text).value_or(std::int16_t{0});
    return type == 0 ? -1 : type;  // a typed zero is no way to leave a property out
}

}  // namespace velor
