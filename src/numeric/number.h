#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kalvane {

/// The leading number of a text: leading blanks, a sign, digits, a decimal point, an exponent. Reading
/// stops at the first character that cannot continue the number; 0 when there is none. A value beyond a
/// 64-bit float throws NumericError (overflow).
double Val(std::string_view text);

/// True when the whole text, blanks at both ends aside, is one decimal number.
bool IsNumeric(std::string_view text);

/// The whole text as a number, blanks at both ends aside; throws NumericError (type mismatch) when it is
/// none. The strict counterpart of Val.
double ParseNumber(std::string_view text);

/// Decimal text with at most 7 (32-bit) or 15 (64-bit) significant digits, no blanks, no trailing zeros;
/// exponent form ("1.234568E+07") from eight (sixteen) integer digits on and below 0.0001.
std::string ShortText(float value);
std::string ShortText(double value);
std::string ShortText(std::int64_t value);

/// `value` cut to 15 significant decimal digits, as a number that has travelled through its text is.
double CutTo15Digits(double value);

/// Nearest integer, ties to even. Throws NumericError (overflow) outside the target's range.
std::int16_t RoundToInt16(double value);
std::int32_t RoundToInt32(double value);

/// Largest integer not above `value`. Throws NumericError (overflow) outside the target's range.
std::int16_t FloorToInt16(double value);
std::int32_t FloorToInt32(double value);

/// `value` narrowed to 16 bits; throws NumericError (overflow) when it does not fit. For sums and products
/// of 16-bit values computed in int.
std::int16_t Checked16(std::int64_t value);

/// `value` rounded to four decimals, ties to even.
double RoundTo4Decimals(double value);

/// An amount of money: the number of a decimal text rounded to four decimals, ties to even, so that 0.00015
/// and 0.00025 both give 0.0002. A 64-bit float stands for its decimal text of 15 digits. Throws NumericError
/// (type mismatch) when the text is no number and (overflow) beyond 922337203685477.5807 on either side.
double RoundToMoney(std::string_view text);
double RoundToMoney(double value);

/// 64-bit to 32-bit float; throws NumericError (overflow) when the value is beyond a 32-bit float.
float NarrowToFloat(double value);

}  // namespace kalvane
