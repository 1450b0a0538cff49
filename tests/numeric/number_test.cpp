#include "numeric/number.h"

#include <limits>

#include "numeric/text.h"
#include "platform/error.h"

namespace kalvane {
namespace {

TEST(Number, ReadsTheLeadingNumber) {
    const struct {
        const char* text;
        double value;
        bool numeric;
    } kTable[] = {
        {"", 0, false},      {"12", 12, true},   {"  -3.5", -3.5, true}, {".5", 0.5, true},
        {"5.", 5, true},     {".", 0, false},    {"+7", 7, true},        {"1.2.3", 1.2, false},
        {"1e3", 1000, true}, {"1e", 1, false},   {"1E-2x", 0.01, false}, {"12 34", 12, false},
        {"NULL", 0, false},  {"(", 0, false},    {"-", 0, false},        {"--1", 0, false},
        {"8块", 8, false},   {" 12 ", 12, true}, {"1e-999", 0, true},    {"&H10", 0, false},
    };
    for (const auto& row : kTable) {
        EXPECT_EQ(Val(row.text), row.value) << row.text;
        EXPECT_EQ(IsNumeric(row.text), row.numeric) << row.text;
    }
    EXPECT_THROW(Val("1e999"), NumericError);
    EXPECT_THROW(ParseNumber("8块"), NumericError);
}

TEST(Number, WritesShortText) {
    EXPECT_EQ(ShortText(1140.0F), "1140");
    EXPECT_EQ(ShortText(1.0F / 3), "0.3333333");
    EXPECT_EQ(ShortText(-0.5F), "-0.5");
    EXPECT_EQ(ShortText(1234567.0F), "1234567");
    EXPECT_EQ(ShortText(12345678.0F), "1.234568E+07");
    EXPECT_EQ(ShortText(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(ShortText(123456789012345.0), "123456789012345");
    EXPECT_EQ(ShortText(1e15), "1E+15");
    EXPECT_EQ(ShortText(0.00001), "1E-05");
    EXPECT_EQ(ShortText(-0.0), "0");
}

TEST(Number, RoundsTiesToEvenAndChecksItsWidth) {
    EXPECT_EQ(RoundToInt16(2.5), 2);
    EXPECT_EQ(RoundToInt16(3.5), 4);
    EXPECT_EQ(RoundToInt16(-2.5), -2);
    EXPECT_EQ(RoundToInt16(32767.4), 32767);
    EXPECT_THROW(RoundToInt16(32767.5), NumericError);
    EXPECT_THROW(RoundToInt32(2147483648.0), NumericError);
    EXPECT_THROW(RoundToInt32(std::numeric_limits<double>::quiet_NaN()), NumericError);
    EXPECT_EQ(FloorToInt16(-0.1), -1);
    EXPECT_EQ(FloorToInt32(2.9), 2);
    EXPECT_THROW(Checked16(32768), NumericError);
    EXPECT_EQ(RoundTo4Decimals(0.72665), 0.7266);  // 7266.5 lies between 7266 and 7267
    EXPECT_THROW(NarrowToFloat(1e39), NumericError);
}

TEST(Number, CutsTo15DigitsAsItsTextWould) {
    for (const double value : {1.0 / 3, 2.0 / 3 * 1e10, 0.1 + 0.2, 99999.0009765625, 100000.0009765625, 1e300,
                               -1234.56789012345678, 5e-324, 4503599627370497.5, 0.0, -7.25}) {
        EXPECT_EQ(CutTo15Digits(value), ParseNumber(ShortText(value))) << value;
    }
}

TEST(Text, CountsAndCapitalisesCharacters) {
    EXPECT_EQ(CharCount("h1上亮"), 4U);
    EXPECT_EQ(UpperCase("h1上ａｚＢé"), "H1上ＡＺＢé");
    EXPECT_EQ(Trim("  a b "), "a b");
    EXPECT_TRUE(IsUtf8("上亮"));
    EXPECT_FALSE(IsUtf8("\xC9\xCF"));
    EXPECT_FALSE(IsUtf8("\xC0\x80"));
    EXPECT_FALSE(IsUtf8("\xED\xA0\x80"));
    EXPECT_FALSE(IsUtf8("\xE4\xB8"));
}

}  // namespace
}  // namespace kalvane
