#include "number_text.h"

#include <charconv>

namespace velor::app {

namespace {

template <class... Form>
std::string text(auto value, Form... form) {
    char buffer[40];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, form...);
    return {buffer, end.ptr};
}

}  // namespace

std::string exactText(double value) { return text(value); }
std::string exactText(float value) { return text(value); }

std::string roundedText(double value) { return text(value, std::chars_format::general, 6); }

double decimalValue(float value) {
    const std::string digits = exactText(value);
    double decimal = value;
    std::from_chars(digits.data(), digits.data() + digits.size(), decimal);
    return decimal;
}

}  // namespace velor::app
