// VARIANT and Variant: the only place that knows both.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "com/holders.h"
#include "velor/variant.h"

namespace velor::com {

// The value of an automation argument. By-reference ones are followed; an object gives its default property. Integers
// beyond 32 bits, currency and decimals become doubles. Arrays of any element type keep their lower bound. Error 13:
// what has no counterpart, arrays of several dimensions included.
Variant toVariant(const VARIANT& value);

// An array of any number of dimensions, as a worksheet's range is one of two, or a single value.
struct Grid {
    std::vector<SAFEARRAYBOUND> bounds;  // of each dimension; none of a single value
    Variant values;                      // the value, or all of them from 1 as they lie in memory

    bool isArray() const { return !bounds.empty(); }
};
bool haveOneShape(const Grid& one, const Grid& other);
// As toVariant otherwise.
Grid toGrid(const VARIANT& value);
// Fills an empty VARIANT.
void fromGrid(const Grid& grid, VARIANT& result);

// Fills an empty VARIANT. Arrays hold VARIANTs, as scripting hosts need them.
void fromVariant(const Variant& value, VARIANT& result);

// Writes into a by-reference argument what the library made of it: into a variable of a fixed type with a conversion,
// into an array with the same bounds element by element, so that its element type stays. Error 13: the value does not
// fit the variable; 10: the array is locked or of fixed size.
void writeBack(const Variant& value, VARIANT& argument);

std::string toText(BSTR text);
Bstr toBstr(const std::string& text);

}  // namespace velor::com
