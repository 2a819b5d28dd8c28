// The values of the record as text, each way without loss.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

namespace velor {

// What is wrong with a text, as a Czech clause.
struct Fault {
    std::string reason;
};

template <class Value>
using Parsed = std::variant<Value, Fault>;

// A decimal number, rounded to single precision; "#" and eight hexadecimal digits are the bits of a value that is not
// finite.
Parsed<float> readSingle(std::string_view text);
// The shortest text that reads back as the same bits.
std::string singleText(const float& value);

Parsed<std::int16_t> readInteger(std::string_view text);

// Whether the text has the form of a registry number, and whether the last digit of one fits the others.
bool hasCasForm(std::string_view text);
bool hasCasCheckDigit(std::string_view cas);
// A registry number, or a plain integer where none has that number of digits.
Parsed<std::int32_t> readCas(std::string_view text);
std::string registryText(std::int32_t value);

// Windows-1250 bytes of at most the width, filled up with blanks. "\xNN" stands for the byte of that hexadecimal code
// and "\\" for a backslash.
Parsed<std::string> readBytes(std::string_view text, std::size_t width);
// Without the blanks at the end; control characters, undefined bytes and the backslash are escaped.
std::string bytesText(std::string_view bytes);
bool isControlByte(char byte);

// A cell's text in a message: in quotes, cut where it is long, harmless to a terminal.
std::string quoted(std::string_view cell);

}  // namespace velor
