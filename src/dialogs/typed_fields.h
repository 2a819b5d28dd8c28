// Fields of a record as a form's boxes show them and as they are typed.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "velor/component_forms.h"
#include "velor/record.h"

namespace velor {

// A typed text that a field cannot take; what() is the Czech sentence for the user.
class InvalidField : public std::runtime_error {
  public:
    InvalidField(int field, const std::string& text) : std::runtime_error(text), field_(field) {}
    int field() const { return field_; }

  private:
    int field_;
};

// What stands before a box of F_Zmenaz, with the unit in brackets, and in it.
std::string fieldCaption(int field);
std::string fieldText(const TLatka& record, int field);
// Puts the typed text into the record's field. Throws InvalidField.
void readField(const std::string& text, int field, TLatka& record);

// The texts of frmOprav's boxes for one correlation, and the correlation that they stand for: without a type it is not
// given. Throws InvalidField.
std::array<std::string, frmOprav::kFields> blockTexts(const TKorelace& block);
TKorelace readBlock(const std::array<std::string, frmOprav::kFields>& texts);

// The equation type typed; 0 for none, -1 for a text that is no whole number or zero.
int typedType(std::string_view text);

}  // namespace velor
