#include "dialogs/component_texts.h"

#include <cmath>

#include "rules/equations.h"
#include "runtime/numbers.h"
#include "runtime/text.h"
#include "velor/constants.h"
#include "velor/properties.h"
#include "velor/smes.h"

namespace velor {

namespace {

bool isKnown(float constant) { return constant != kNoConstant && std::isfinite(constant); }

std::string constantText(const ConstantDescription& constant, float value) {
    if (!isKnown(value)) return value == kNoConstant ? "neobsazeno" : "poškozeno";
    return Format(value, constant.pattern);
}

std::string coefficientText(float coefficient) {
    return std::isfinite(coefficient) ? std::string(trimBlanks(Smes::GFormat(coefficient))) : "poškozeno";
}

CorrelationText correlationText(const PureProperty& property, const TKorelace& block) {
    CorrelationText text;
    text.code = property.code;
    text.caption = property.caption;
    text.unit = property.unit;
    text.isGiven = block.Priznak != 0;
    if (!text.isGiven) return text;
    text.Typ = block.Typ;
    text.Vztah = trimBlanks(equationText(block.Typ));
    for (std::size_t j = 0; j < text.A.size(); ++j) text.A[j] = coefficientText(block.A[j]);
    text.range = std::to_string(block.Tmin) + " – " + std::to_string(block.Tmax) + " K";
    return text;
}

std::string padded(std::string_view text, std::size_t width) {
    return std::string(text) + std::string(width - std::min(width, characterCount(text)), ' ');
}

}  // namespace

std::array<frmLatka::Constant, frmLatka::kConstants> constantTexts(const TLatka& record) {
    std::array<frmLatka::Constant, frmLatka::kConstants> texts;
    for (std::size_t k = 0; k < texts.size(); ++k) {
        const ConstantDescription& constant = kConstantTable[k];
        const float value = record.*constant.member;
        texts[k] = {std::string(constant.caption), constantText(constant, value),
                    std::string(isKnown(value) ? constant.unit : "")};
    }
    return texts;
}

std::array<CorrelationText, frmLatka::kProperties> correlationTexts(const TLatka& record) {
    std::array<CorrelationText, frmLatka::kProperties> texts;
    for (std::size_t k = 0; k < texts.size(); ++k) {
        texts[k] = correlationText(pureProperties()[k], record.Korelace[k]);
        texts[k].note = correlationNote(record.Cislo, pureProperties()[k].number);
    }
    return texts;
}

std::vector<std::string> propertyLines() {
    constexpr std::size_t kCodeWidth = 7, kCaptionWidth = 35;
    std::vector<std::string> lines;
    for (const PureProperty& property : pureProperties())
        lines.push_back(padded(property.code, kCodeWidth) + padded(property.caption, kCaptionWidth) +
                        std::string(property.unit));
    return lines;
}

}  // namespace velor
