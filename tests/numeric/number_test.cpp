#include "numeric/number.h"

#include <limits>

#include "numeric/error.h"
#include "numeric/text.h"

namespace kalvane::test {
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
    const std::pair<float, const char*> floats[] = {
        {1140, "1140"}, {1.0F / 3, "0.3333333"}, {1234567, "1234567"}, {12345678, "1.234568E+07"}};
    for (const auto& [value, text] : floats) EXPECT_EQ(ShortText(value), text);
    const std::pair<double, const char*> doubles[] = {{1.0 / 3, "0.333333333333333"},
                                                      {123456789012345.0, "123456789012345"},
                                                      {1e15, "1E+15"},
                                                      {0.00001, "1E-05"},
                                                      {-0.5, "-0.5"},
                                                      {-0.0, "0"}};
    for (const auto& [value, text] : doubles) EXPECT_EQ(ShortText(value), text);
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

TEST(Number, RoundsMoneyFromItsDecimalText) {
    const std::pair<const char*, double> amounts[] = {{"0.00015", 0.0002},
                                                      {"0.00025", 0.0002},
                                                      {"0.000250000000000001", 0.0003},
                                                      {"-1.00005", -1},
                                                      {"+1.00015", 1.0002},
                                                      {".00005", 0},
                                                      {"0.00005001", 0.0001},
                                                      {"1.5e-4", 0.0002},
                                                      {"25E-5", 0.0002},
                                                      {"1e-400", 0},
                                                      {"0012.3E2", 1230},
                                                      {"0", 0},
                                                      {"9.9999500001", 10},
                                                      {"98882293626363.63", 98882293626363.63},
                                                      {"99999999999.12345", 99999999999.1234},
                                                      {"922337203685477.58074999", 922337203685477.5807}};
    for (const auto& [text, amount] : amounts) EXPECT_EQ(RoundToMoney(text), amount) << text;
    for (const char* text :
         {"922337203685477.58075", "-922337203685477.5808", "1e16", "1e999", "", "1.2.3"}) {
        EXPECT_THROW(RoundToMoney(text), NumericError) << text;
    }
    EXPECT_EQ(RoundToMoney(0.00015), 0.0002);
    EXPECT_EQ(RoundToMoney(0.1 * 0.0005 * 5), 0.0002);  // 0.00025, and some binary dust
    EXPECT_EQ(RoundToMoney(922337203685477.5), 922337203685477.5);
    EXPECT_THROW(RoundToMoney(std::numeric_limits<double>::infinity()), NumericError);
}

TEST(Text, CountsAndCapitalisesCharacters) {
    EXPECT_EQ(CharCount("h1上亮"), 4U);
    const std::pair<const char*, const char*> pairs[] = {
        {"h1上ａｚＢ", "H1上ＡＺＢ"}, {"αρσωφ", "ΑΡΣΩΦ"},    {"абпряё", "АБПРЯЁ"}, {"ⅰⅴⅹ", "ⅠⅤⅩ"},
        {"āéǎùüêńňǹḿ", "ĀÉǍÙÜÊŃŇǸḾ"}, {"亮÷ς①。", "亮÷ς①。"}};  // no letters, or none with a capital in use
    for (const auto& [small, capital] : pairs) {
        EXPECT_EQ(UpperCase(small), capital);
        EXPECT_TRUE(EqualIgnoringCase(small, capital)) << small;
        EXPECT_FALSE(EqualIgnoringCase(small, UpperCase(capital) + "x"));
    }
    for (const char* other : {"фп", "хР", "ф", "ф亮"}) EXPECT_FALSE(EqualIgnoringCase("фР", other)) << other;
    EXPECT_FALSE(EqualIgnoringCase("\x80\x80\x80\x80", "\x80\x80\x80\x81"));  // no UTF-8, and an end
    const std::string_view text = "h上ф亮";
    EXPECT_EQ(std::string(LeftChars(text, 2)) + "|" + std::string(RightChars(text, 3)) + "|" +
                  std::string(MidChars(text, 2, 2)) + "|" + std::string(MidChars(text, 3)),
              "h上|上ф亮|上ф|ф亮");
    EXPECT_EQ(std::string(LeftChars(text, 9)) + std::string(RightChars(text, 9)) +
                  std::string(MidChars(text, 5)) + std::string(MidChars(text, 9, 9)) +
                  std::string(LeftChars(text, 0)),
              "h上ф亮h上ф亮");
    EXPECT_EQ(Trim("  a b "), "a b");
    EXPECT_TRUE(IsUtf8("上亮"));
    for (const char* text : {"\xC9\xCF", "\xC0\x80", "\xED\xA0\x80", "\xE4\xB8"}) EXPECT_FALSE(IsUtf8(text));
}

}  // namespace
}  // namespace kalvane::test
