#include "com/variant_conversion.h"

#include <algorithm>
#include <new>
#include <utility>
#include <vector>

#include "com/holders.h"
#include "platform/windows/wide_text.h"
#include "runtime/checked.h"

namespace velor::com {

namespace {

constexpr int kMostNesting = 16;  // references to references and arrays in arrays; a host could make a circle
constexpr std::int32_t kArrayLocked = 10;

[[noreturn]] void raiseTypeMismatch() { checked::raise(RunTimeError::kTypeMismatch); }

void check(HRESULT result) {
    switch (result) {
        case S_OK:
            return;
        case E_OUTOFMEMORY:
            throw std::bad_alloc();
        case DISP_E_OVERFLOW:
            checked::raise(RunTimeError::kOverflow);
        case DISP_E_BADINDEX:
            checked::raise(RunTimeError::kSubscript);
        case DISP_E_ARRAYISLOCKED:
            throw RunTimeError(kArrayLocked, "VELOR", "This array is fixed or temporarily locked");
        default:
            raiseTypeMismatch();
    }
}

Variant valueOf(const VARIANT& value, int nesting);

std::size_t sizeOf(VARTYPE type) {
    switch (type) {
        case VT_I1:
        case VT_UI1:
            return 1;
        case VT_I2:
        case VT_UI2:
        case VT_BOOL:
            return 2;
        case VT_I4:
        case VT_UI4:
        case VT_INT:
        case VT_UINT:
        case VT_R4:
        case VT_ERROR:
            return 4;
        case VT_VARIANT:
            return sizeof(VARIANT);
        case VT_DECIMAL:
            return sizeof(DECIMAL);
        case VT_BSTR:
        case VT_DISPATCH:
            return sizeof(void*);
        default:
            return 8;
    }
}

// Whether the elements are what the variant says: a host that puts its arrays together by hand may be wrong there.
bool holds(SAFEARRAY* array, VARTYPE type) {
    constexpr USHORT kKinds = FADF_BSTR | FADF_VARIANT | FADF_DISPATCH | FADF_UNKNOWN | FADF_RECORD;
    const USHORT wanted = type == VT_BSTR       ? FADF_BSTR
                          : type == VT_VARIANT  ? FADF_VARIANT
                          : type == VT_DISPATCH ? FADF_DISPATCH
                                                : 0;
    return (array->fFeatures & kKinds) == wanted && SafeArrayGetElemsize(array) == sizeOf(type);
}

struct Bounds {
    LONG first = 0, last = 0;
};

Bounds boundsOf(SAFEARRAY* array, UINT dimension) {
    Bounds bounds;
    check(SafeArrayGetLBound(array, dimension, &bounds.first));
    check(SafeArrayGetUBound(array, dimension, &bounds.last));
    return bounds;
}

// Of an array, or of the one row or column that an array of two dimensions is: worksheets pass their ranges so.
Bounds boundsOf(SAFEARRAY* array) {
    const UINT dimensions = SafeArrayGetDim(array);
    const Bounds rows = boundsOf(array, 1);
    if (dimensions == 1) return rows;
    if (dimensions != 2) raiseTypeMismatch();
    const Bounds columns = boundsOf(array, 2);
    if (rows.first == rows.last) return columns;
    if (columns.first != columns.last) raiseTypeMismatch();
    return rows;
}

// So many from the first as they lie in memory.
std::vector<Variant> elementsOf(SAFEARRAY* array, VARTYPE type, std::size_t count, int nesting) {
    if (!holds(array, type)) raiseTypeMismatch();
    void* data = nullptr;
    check(SafeArrayAccessData(array, &data));
    const ArrayAccess access(array);
    const std::size_t size = SafeArrayGetElemsize(array);
    std::vector<Variant> elements;
    elements.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        VARIANT element{};
        element.vt = static_cast<VARTYPE>(type | VT_BYREF);
        element.byref = static_cast<char*>(data) + i * size;
        elements.push_back(valueOf(element, nesting));
    }
    return elements;
}

Variant arrayOf(SAFEARRAY* array, VARTYPE type, int nesting) {
    if (array == nullptr) return Variant::array(0, {});  // declared, but not yet sized
    const auto [first, last] = boundsOf(array);
    return Variant::array(first, elementsOf(array, type, static_cast<std::size_t>(last - first + 1), nesting));
}

Grid gridOfArray(SAFEARRAY* array, VARTYPE type, int nesting) {
    if (array == nullptr) return {{SAFEARRAYBOUND{}}, Variant::array(1, {})};
    Grid grid;
    std::size_t count = 1;
    for (UINT dimension = 1; dimension <= SafeArrayGetDim(array); ++dimension) {
        const auto [first, last] = boundsOf(array, dimension);
        grid.bounds.push_back({static_cast<ULONG>(last - first + 1), first});
        count *= grid.bounds.back().cElements;
    }
    grid.values = Variant::array(1, elementsOf(array, type, count, nesting));
    return grid;
}

// An object stands for its default property: a cell for its value.
void readDefaultProperty(IDispatch* object, OwnVariant& result) {
    if (object == nullptr) raiseTypeMismatch();
    DISPPARAMS none{};
    if (FAILED(object->Invoke(DISPID_VALUE, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_PROPERTYGET, &none, result.get(),
                              nullptr, nullptr)))
        raiseTypeMismatch();
}

Variant defaultPropertyOf(IDispatch* object, int nesting) {
    OwnVariant result;
    readDefaultProperty(object, result);
    return valueOf(*result, nesting);
}

// The conversion functions only read their source; some headers declare it without const.
VARIANT* readable(const VARIANT& value) { return const_cast<VARIANT*>(&value); }

Variant viaDouble(const VARIANT& value) {
    OwnVariant number;
    check(VariantChangeType(number.get(), readable(value), 0, VT_R8));
    return number->dblVal;
}

// A value that is no reference.
Variant directValue(const VARIANT& value, int nesting) {
    switch (value.vt) {
        case VT_EMPTY:
            return {};
        case VT_NULL:
            return Variant::null();
        case VT_ERROR:
            if (value.scode != DISP_E_PARAMNOTFOUND) raiseTypeMismatch();
            return Variant::missing();
        case VT_BOOL:
            return value.boolVal != VARIANT_FALSE;
        case VT_I1:
            return static_cast<std::int16_t>(static_cast<signed char>(value.cVal));
        case VT_UI1:
            return static_cast<std::int16_t>(value.bVal);
        case VT_I2:
            return static_cast<std::int16_t>(value.iVal);
        case VT_UI2:
            return value.uiVal;
        case VT_I4:
        case VT_INT:
            return value.lVal;
        case VT_UI4:
        case VT_UINT:
            return value.ulVal;
        case VT_I8:
            return value.llVal;
        case VT_UI8:
            return value.ullVal;
        case VT_R4:
            return value.fltVal;
        case VT_R8:
            return value.dblVal;
        case VT_DATE:
            return Variant::date(value.date);
        case VT_CY:
        case VT_DECIMAL:
            return viaDouble(value);
        case VT_BSTR:
            return toText(value.bstrVal);
        case VT_DISPATCH:
            return defaultPropertyOf(value.pdispVal, nesting);
        default:
            raiseTypeMismatch();
    }
}

Variant valueOf(const VARIANT& value, int nesting) {
    if (nesting > kMostNesting) raiseTypeMismatch();
    const bool isReference = (value.vt & VT_BYREF) != 0;
    if (isReference && value.byref == nullptr) raiseTypeMismatch();
    if ((value.vt & VT_ARRAY) != 0) {
        const auto type = static_cast<VARTYPE>(value.vt & VT_TYPEMASK);
        return arrayOf(isReference ? *value.pparray : value.parray, type, nesting + 1);
    }
    if (!isReference) return directValue(value, nesting + 1);
    if (value.vt == (VT_VARIANT | VT_BYREF)) return valueOf(*value.pvarVal, nesting + 1);
    OwnVariant copy;
    check(VariantCopyInd(copy.get(), readable(value)));
    return directValue(*copy, nesting + 1);
}

Grid gridOf(const VARIANT& value, int nesting) {
    if (nesting > kMostNesting) raiseTypeMismatch();
    const bool isReference = (value.vt & VT_BYREF) != 0;
    if (isReference && value.byref == nullptr) raiseTypeMismatch();
    if ((value.vt & VT_ARRAY) != 0) {
        const auto type = static_cast<VARTYPE>(value.vt & VT_TYPEMASK);
        return gridOfArray(isReference ? *value.pparray : value.parray, type, nesting + 1);
    }
    if (value.vt == (VT_VARIANT | VT_BYREF)) return gridOf(*value.pvarVal, nesting + 1);
    if (value.vt != VT_DISPATCH) return {{}, valueOf(value, nesting + 1)};
    OwnVariant content;
    readDefaultProperty(value.pdispVal, content);
    return gridOf(*content, nesting + 1);
}

VARIANT converted(const Variant& value, VARTYPE type) {
    OwnVariant result;
    fromVariant(value, *result.get());
    check(VariantChangeType(result.get(), result.get(), 0, type));
    return result.release();
}

void putElement(SAFEARRAY* array, VARTYPE type, LONG index, const Variant& value) {
    OwnVariant element;
    if (type == VT_VARIANT) {
        fromVariant(value, *element.get());
        return check(SafeArrayPutElement(array, &index, element.get()));
    }
    *element.get() = converted(value, type);
    void* content = &element->byref;
    if (type == VT_BSTR) content = element->bstrVal;
    if (type == VT_DECIMAL) content = &element->decVal;
    check(SafeArrayPutElement(array, &index, content));
}

SafeArray newArray(VARTYPE type, const Variant& value) {
    const auto size = static_cast<ULONG>(value.upperBound() - value.lowerBound() + 1);
    SafeArray array(SafeArrayCreateVector(type, value.lowerBound(), size));
    if (!array) throw std::bad_alloc();
    for (LONG i = value.lowerBound(); i <= value.upperBound(); ++i) putElement(array.get(), type, i, value.at(i));
    return array;
}

bool hasBoundsOf(SAFEARRAY* array, const Variant& value) {
    if (array == nullptr) return false;
    const auto [first, last] = boundsOf(array);
    return first == value.lowerBound() && last == value.upperBound();
}

// Exchanges the elements of two arrays of the same type and length; what each held goes with the other.
void exchangeElements(SAFEARRAY* one, SAFEARRAY* other, std::size_t count) {
    void *ofOne = nullptr, *ofOther = nullptr;
    check(SafeArrayAccessData(one, &ofOne));
    const ArrayAccess accessToOne(one);
    check(SafeArrayAccessData(other, &ofOther));
    const ArrayAccess accessToOther(other);
    auto* const bytes = static_cast<char*>(ofOne);
    std::swap_ranges(bytes, bytes + count * SafeArrayGetElemsize(one), static_cast<char*>(ofOther));
}

// Into the variable that holds an array.
void writeArray(const Variant& value, SAFEARRAY*& array, VARTYPE type) {
    if (!value.isArray()) raiseTypeMismatch();
    SafeArray fresh = newArray(type, value);
    if (hasBoundsOf(array, value)) {
        if (SafeArrayGetDim(array) == 1) return check(SafeArrayCopyData(fresh.get(), array));
        if (!holds(array, type)) raiseTypeMismatch();
        return exchangeElements(fresh.get(), array,
                                static_cast<std::size_t>(value.upperBound() - value.lowerBound() + 1));
    }
    if (array != nullptr) {
        if ((array->fFeatures & (FADF_FIXEDSIZE | FADF_STATIC | FADF_AUTO)) != 0) check(DISP_E_ARRAYISLOCKED);
        check(SafeArrayDestroy(array));
    }
    array = fresh.release();
}

// Into a variable of one of the simple types.
void writeTyped(const Variant& value, VARIANT& reference) {
    const auto type = static_cast<VARTYPE>(reference.vt & VT_TYPEMASK);
    OwnVariant fresh;
    *fresh.get() = converted(value, type);
    switch (type) {
        case VT_I1:
        case VT_UI1:
            *reference.pbVal = fresh->bVal;
            break;
        case VT_I2:
        case VT_UI2:
        case VT_BOOL:
            *reference.piVal = fresh->iVal;
            break;
        case VT_I4:
        case VT_UI4:
        case VT_INT:
        case VT_UINT:
        case VT_R4:
            *reference.plVal = fresh->lVal;
            break;
        case VT_I8:
        case VT_UI8:
        case VT_R8:
        case VT_DATE:
        case VT_CY:
            *reference.pllVal = fresh->llVal;
            break;
        case VT_DECIMAL:
            *reference.pdecVal = fresh->decVal;
            break;
        case VT_BSTR:
            std::swap(*reference.pbstrVal, fresh->bstrVal);
            break;
        default:
            raiseTypeMismatch();
    }
}

}  // namespace

Variant toVariant(const VARIANT& value) { return valueOf(value, 0); }

bool haveOneShape(const Grid& one, const Grid& other) {
    return std::ranges::equal(one.bounds, other.bounds, {}, &SAFEARRAYBOUND::cElements, &SAFEARRAYBOUND::cElements);
}

Grid toGrid(const VARIANT& value) { return gridOf(value, 0); }

void fromGrid(const Grid& grid, VARIANT& result) {
    if (!grid.isArray()) return fromVariant(grid.values, result);
    std::vector<SAFEARRAYBOUND> bounds = grid.bounds;
    SafeArray array(SafeArrayCreate(VT_VARIANT, static_cast<UINT>(bounds.size()), bounds.data()));
    if (!array) throw std::bad_alloc();
    void* data = nullptr;
    check(SafeArrayAccessData(array.get(), &data));
    {
        const ArrayAccess access(array.get());
        auto* element = static_cast<VARIANT*>(data);
        for (int i = 1; i <= grid.values.upperBound(); ++i) fromVariant(grid.values.at(i), *element++);
    }
    result.parray = array.release();
    result.vt = VT_ARRAY | VT_VARIANT;
}

std::string toText(BSTR text) { return platform::fromWide({text, SysStringLen(text)}); }

Bstr toBstr(const std::string& text) {
    const std::wstring wide = platform::toWide(text);
    Bstr result(SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size())));
    if (!result) throw std::bad_alloc();
    return result;
}

void fromVariant(const Variant& value, VARIANT& result) {
    VARIANT filled{};
    switch (value.kind()) {
        case Variant::Kind::Empty:
            break;
        case Variant::Kind::Null:
            filled.vt = VT_NULL;
            break;
        case Variant::Kind::Missing:
            filled.vt = VT_ERROR;
            filled.scode = DISP_E_PARAMNOTFOUND;
            break;
        case Variant::Kind::Boolean:
            filled.vt = VT_BOOL;
            filled.boolVal = value.toDouble() != 0 ? VARIANT_TRUE : VARIANT_FALSE;
            break;
        case Variant::Kind::Int16:
            filled.vt = VT_I2;
            filled.iVal = value.toInt16();
            break;
        case Variant::Kind::Int32:
            filled.vt = VT_I4;
            filled.lVal = static_cast<LONG>(value.toDouble());
            break;
        case Variant::Kind::Single:
            filled.vt = VT_R4;
            filled.fltVal = value.toSingle();
            break;
        case Variant::Kind::Double:
            filled.vt = VT_R8;
            filled.dblVal = value.toDouble();
            break;
        case Variant::Kind::Date:
            filled.vt = VT_DATE;
            filled.date = value.toDouble();
            break;
        case Variant::Kind::Text:
            filled.bstrVal = toBstr(value.toText()).release();
            filled.vt = VT_BSTR;
            break;
        case Variant::Kind::Array:
            filled.parray = newArray(VT_VARIANT, value).release();
            filled.vt = VT_ARRAY | VT_VARIANT;
            break;
    }
    result = filled;
}

void writeBack(const Variant& value, VARIANT& argument) {
    if (argument.vt == (VT_VARIANT | VT_BYREF)) return writeBack(value, *argument.pvarVal);
    const auto type = static_cast<VARTYPE>(argument.vt & VT_TYPEMASK);
    if ((argument.vt & (VT_ARRAY | VT_BYREF)) == (VT_ARRAY | VT_BYREF))
        return writeArray(value, *argument.pparray, type);
    if ((argument.vt & VT_BYREF) != 0) return writeTyped(value, argument);
    if ((argument.vt & VT_ARRAY) != 0 && value.isArray() && hasBoundsOf(argument.parray, value))
        return writeArray(value, argument.parray, type);
    OwnVariant fresh;
    fromVariant(value, *fresh.get());
    check(VariantClear(&argument));
    argument = fresh.release();
}

}  // namespace velor::com
