// Every kind of argument that hosts pass, and what comes back into their variables.
#include <cstring>

#include "com/com_client.h"

namespace velor::test {
namespace {

VARIANT raw(VARTYPE type) {
    VARIANT value{};
    value.vt = type;
    return value;
}

// Bytes as the value of that type.
template <class Value>
VARIANT holding(VARTYPE type, Value value) {
    VARIANT result = raw(type);
    static_assert(sizeof value <= sizeof result.byref);
    std::memcpy(&result.byref, &value, sizeof value);
    return result;
}

int errorOf(const VARIANT& value) {
    try {
        com::toVariant(value);
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return 0;
}

TEST(Conversion, takesEveryKind) {
    VARIANT decimal{};
    ASSERT_EQ(VarDecFromR8(-2.5, &decimal.decVal), S_OK);
    decimal.vt = VT_DECIMAL;
    const Bstr text(SysAllocString(L"0,5 \x0159"));
    VARIANT inner = holding(VT_R8, 7.25);
    VARIANT middle = holding(VT_BYREF | VT_VARIANT, &inner);
    double number = 1.5;
    DATE day = 45000.25;
    const std::pair<VARIANT, Variant> cases[] = {
        {raw(VT_EMPTY), {}},
        {raw(VT_NULL), Variant::null()},
        {holding(VT_ERROR, DISP_E_PARAMNOTFOUND), Variant::missing()},
        {holding(VT_BOOL, VARIANT_TRUE), true},
        {holding(VT_I1, static_cast<signed char>(-5)), std::int16_t{-5}},
        {holding(VT_UI1, static_cast<unsigned char>(250)), std::int16_t{250}},
        {holding(VT_I2, static_cast<short>(-300)), std::int16_t{-300}},
        {holding(VT_UI2, static_cast<unsigned short>(65535)), 65535},
        {holding(VT_I4, -70000), -70000},
        {holding(VT_UI4, 4000000000U), 4000000000.0},
        {holding(VT_I8, 5000000000LL), 5000000000.0},
        {holding(VT_UI8, 3ULL), 3},
        {holding(VT_R4, 0.25F), 0.25F},
        {holding(VT_R8, 0.1), 0.1},
        {holding(VT_DATE, 45000.5), Variant::date(45000.5)},
        {holding(VT_CY, 12345LL), 1.2345},
        {decimal, -2.5},
        {holding(VT_BSTR, text.get()), "0,5 ř"},
        {holding(VT_BYREF | VT_VARIANT, &middle), 7.25},
        {holding(VT_BYREF | VT_R8, &number), 1.5},
        {holding(VT_BYREF | VT_DATE, &day), Variant::date(45000.25)},
        {holding(VT_ARRAY | VT_R8, static_cast<SAFEARRAY*>(nullptr)), Variant::array(0, {})},
    };
    for (const auto& [passed, expected] : cases) EXPECT_EQ(com::toVariant(passed), expected) << passed.vt;
}

TEST(Conversion, refusesWhatHasNoCounterpart) {
    VARIANT circle = raw(VT_BYREF | VT_VARIANT);
    circle.pvarVal = &circle;
    SAFEARRAYBOUND bounds[] = {{2, 0}, {2, 0}};
    const com::SafeArray table(SafeArrayCreate(VT_R8, 2, bounds));
    for (const VARIANT& value : {circle, raw(VT_UNKNOWN), raw(VT_DISPATCH), raw(VT_BYREF | VT_R8),
                                 holding(VT_ERROR, E_FAIL), holding(VT_ARRAY | VT_R8, table.get())})
        EXPECT_EQ(errorOf(value), 13) << value.vt;
}

TEST(Conversion, keepsBoundsAndElementTypesOfArrays) {
    const Variant values = Variant::array(-2, {0.25, 4, 1.5});
    SAFEARRAYBOUND column[] = {{3, -2}, {1, 1}}, row[] = {{1, 1}, {3, -2}};  // as worksheets pass a range
    for (const VARTYPE type : {VT_R4, VT_R8, VT_VARIANT, VT_CY, VT_BSTR, VT_DECIMAL}) {
        const com::SafeArray arrays[] = {com::SafeArray(SafeArrayCreateVector(type, -2, 3)),
                                         com::SafeArray(SafeArrayCreate(type, 2, column)),
                                         com::SafeArray(SafeArrayCreate(type, 2, row))};
        for (const com::SafeArray& array : arrays) {
            SAFEARRAY* variable = array.get();
            VARIANT argument = holding(static_cast<VARTYPE>(VT_BYREF | VT_ARRAY | type), &variable);
            com::writeBack(values, argument);
            EXPECT_EQ(variable, array.get()) << type;  // in place
            const Variant back = com::toVariant(argument);
            EXPECT_EQ(back.lowerBound(), -2);
            for (int i = -2; i <= 0; ++i) EXPECT_EQ(back.at(i).toDouble(), values.at(i).toDouble()) << type;
        }
    }
    // An array of another size is replaced by one of the same element type.
    SAFEARRAY* variable = SafeArrayCreateVector(VT_R8, 0, 1);
    VARIANT argument = holding(VT_BYREF | VT_ARRAY | VT_R8, &variable);
    com::writeBack(values, argument);
    const com::SafeArray owner(variable);
    EXPECT_EQ(com::toVariant(argument), Variant::array(-2, {0.25, 4.0, 1.5}));
    SafeArrayLock(variable);
    EXPECT_THROW(com::writeBack(List({1}), argument), RunTimeError);
    SafeArrayUnlock(variable);
    EXPECT_THROW(com::writeBack(List({"text", 1, 2}), argument), RunTimeError);
}

TEST(Conversion, writesIntoVariablesOfTheirOwnType) {
    double number = 1;
    short whole = 1;
    VARIANT_BOOL flag = VARIANT_FALSE;
    BSTR text = SysAllocString(L"before");
    OwnVariant variant;
    VARIANT arguments[] = {holding(VT_BYREF | VT_R8, &number), holding(VT_BYREF | VT_I2, &whole),
                           holding(VT_BYREF | VT_BOOL, &flag), holding(VT_BYREF | VT_BSTR, &text),
                           holding(VT_BYREF | VT_VARIANT, variant.get())};
    for (VARIANT& argument : arguments) com::writeBack(2.5, argument);
    EXPECT_EQ(number, 2.5);
    EXPECT_EQ(whole, 2);
    EXPECT_EQ(flag, VARIANT_TRUE);
    EXPECT_TRUE(takeText(text).starts_with("2"));
    EXPECT_EQ(com::toVariant(*variant), Variant(2.5));
    EXPECT_THROW(com::writeBack(1e9, arguments[1]), RunTimeError);
    EXPECT_EQ(whole, 2);
}

}  // namespace
}  // namespace velor::test
