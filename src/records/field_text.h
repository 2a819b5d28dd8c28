// The values of the record as text, each way without loss. A "reading" function returns what is wrong with the text in
// Czech, an empty text where nothing is, and sets the value only then.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace velor {

// A decimal number, rounded to single precision; "#" and eight hexadecimal digits are the bits of a value that is not
// finite.
std::string readSingle(std::string_view text, float& value);
// The shortest text that reads back as the same bits.
std::string singleText(const float& value);

std::string readInteger(std::string_view text, std::int16_t& value);
std::string readInteger(std::string_view text, std::int32_t& value);

// Whether the text has the form of a registry number, and whether the last digit of one fits the others.
bool hasCasForm(std::string_view text);
bool hasCasCheckDigit(std::string_view cas);
// A registry number, or a plain integer where none has that number of digits.
std::string readCas(std::string_view text, std::int32_t& value);
std::string registryText(std::int32_t value);

// Windows-1250 bytes of at most the width, filled up with blanks. "\xNN" stands for the byte of that hexadecimal code
// and "\\" for a backslash.
std::string readBytes(std::string_view text, std::size_t width, std::string& bytes);
// Without the blanks at the end; control characters, undefined bytes and the backslash are escaped.
std::string bytesText(std::string_view bytes);
bool isControlByte(char byte);

// A cell's text in a message: in quotes, cut where it is long, harmless to a terminal.
std::string quoted(std::string_view cell);

}  // namespace velor
