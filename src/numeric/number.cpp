#include "numeric/number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "numeric/error.h"
#include "numeric/text.h"

namespace kalvane {
namespace {

constexpr bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Length of the longest prefix of `text` (no leading blanks) that is a number; 0 when there is none.
std::size_t NumberLength(std::string_view text) {
    std::size_t i = 0;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
    const std::size_t mantissa = i;
    std::size_t digits = 0;
    while (i < text.size() && IsDigit(text[i])) ++i, ++digits;
    if (i < text.size() && text[i] == '.') {
        ++i;
        while (i < text.size() && IsDigit(text[i])) ++i, ++digits;
    }
    if (digits == 0) return 0;
    std::size_t exponent = i;
    if (i > mantissa && exponent < text.size() && (text[exponent] == 'e' || text[exponent] == 'E')) {
        ++exponent;
        if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-')) ++exponent;
        const std::size_t first = exponent;
        while (exponent < text.size() && IsDigit(text[exponent])) ++exponent;
        if (exponent > first) i = exponent;
    }
    return i;
}

double Convert(std::string_view number) {
    if (!number.empty() && number.front() == '+') number.remove_prefix(1);
    double value = 0;
    const auto result = std::from_chars(number.data(), number.data() + number.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        // An exponent far below the range is a plain zero; one above it has no value at all.
        const std::size_t e = number.find_first_of("eE");
        if (e != std::string_view::npos && e + 1 < number.size() && number[e + 1] == '-') return 0;
        throw NumericError::Overflow();
    }
    return value;
}

/// General form with `digits` significant digits, as printf's %G writes it.
template <typename Float>
std::string GeneralText(Float value, int digits) {
    // Most lengths and all quantities are whole.
    constexpr Float kShort = 1000000;
    if (std::fabs(value) < kShort && value == std::trunc(value)) {
        return std::to_string(static_cast<int>(value));
    }
    char buffer[48];
    const auto result =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, digits);
    std::string text(buffer, result.ptr);
    for (char& c : text) {
        if (c == 'e') c = 'E';
    }
    return text == "-0" ? "0" : text;
}

double RoundHalfToEven(double value) {
    // nearbyint follows the rounding mode, which this program never changes from to-nearest-even.
    return std::nearbyint(value);
}

template <typename Int>
Int ToInt(double whole) {
    constexpr double kLow = std::numeric_limits<Int>::min();
    constexpr double kHigh = std::numeric_limits<Int>::max();
    if (!(whole >= kLow && whole <= kHigh)) throw NumericError::Overflow();
    return static_cast<Int>(whole);
}

}  // namespace

double Val(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    const std::size_t length = NumberLength(text);
    return length == 0 ? 0 : Convert(text.substr(0, length));
}

bool IsNumeric(std::string_view text) {
    text = Trim(text);
    return !text.empty() && NumberLength(text) == text.size();
}

double ParseNumber(std::string_view text) {
    text = Trim(text);
    if (text.empty() || NumberLength(text) != text.size()) throw NumericError::TypeMismatch();
    return Convert(text);
}

std::string ShortText(float value) {
    return GeneralText(value, 7);
}
std::string ShortText(double value) {
    return GeneralText(value, 15);
}
std::string ShortText(std::int64_t value) {
    return std::to_string(value);
}

double CutTo15Digits(double value) {
    // Most lengths are whole or end in a short binary fraction: with five integer digits and ten binary
    // places the decimal text has at most 15 digits and loses nothing.
    constexpr double kPlaces = 1024;
    if (std::fabs(value) < 1e5) {
        const double scaled = value * kPlaces;
        if (scaled == std::trunc(scaled)) return value == 0 ? 0 : value;
    }
    char buffer[48];
    const auto end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 15).ptr;
    double result = 0;
    std::from_chars(buffer, end, result);
    return result;
}

std::int16_t RoundToInt16(double value) {
    return ToInt<std::int16_t>(RoundHalfToEven(value));
}
std::int32_t RoundToInt32(double value) {
    return ToInt<std::int32_t>(RoundHalfToEven(value));
}
std::int16_t FloorToInt16(double value) {
    return ToInt<std::int16_t>(std::floor(value));
}
std::int32_t FloorToInt32(double value) {
    return ToInt<std::int32_t>(std::floor(value));
}

std::int16_t Checked16(std::int64_t value) {
    if (value < std::numeric_limits<std::int16_t>::min() ||
        value > std::numeric_limits<std::int16_t>::max()) {
        throw NumericError::Overflow();
    }
    return static_cast<std::int16_t>(value);
}

double RoundTo4Decimals(double value) {
    return RoundHalfToEven(value * 10000) / 10000;
}

double RoundToMoney(std::string_view text) {
    text = Trim(text);
    if (!IsNumeric(text)) throw NumericError::TypeMismatch();
    const std::size_t end = std::min(text.find_first_of("eE"), text.size());
    double shift = end < text.size() ? Val(text.substr(end + 1)) : 0;  // of the point behind all digits
    const std::size_t point = std::min(text.find('.'), end);
    if (point < end) shift -= static_cast<double>(end - point - 1);
    std::string digits(text.substr(0, end));
    std::erase_if(digits, [](char c) { return !IsDigit(c); });
    digits.erase(0, digits.find_first_not_of('0'));
    if (digits.empty()) return 0;

    constexpr double kMostDigits = 19;  // of a 64-bit integer
    constexpr int kDecimals = 4;
    const double count = static_cast<double>(digits.size()) + shift + kDecimals;
    if (count > kMostDigits) throw NumericError::Overflow();
    if (count < 0) return 0;
    const auto whole = static_cast<std::size_t>(count);
    digits.resize(std::max(digits.size(), whole), '0');
    std::uint64_t scaled = 0;
    std::from_chars(digits.data(), digits.data() + whole, scaled);
    digits.erase(0, whole);
    digits.erase(digits.find_last_not_of('0') + 1);
    if (digits > "5" || (digits == "5" && scaled % 2 == 1)) ++scaled;
    if (scaled > std::numeric_limits<std::int64_t>::max()) throw NumericError::Overflow();
    const auto signedScaled = static_cast<std::int64_t>(scaled);
    // By way of the text, since not every such number of ten thousandths is a 64-bit float.
    return Convert(std::to_string(text.front() == '-' ? -signedScaled : signedScaled) + "e-4");
}

double RoundToMoney(double value) {
    // From eleven whole digits on, fifteen digits would cut the four decimals, and no tie is left to find.
    constexpr double kLarge = 1e10;
    if (!std::isfinite(value)) throw NumericError::Overflow();
    if (std::fabs(value) < kLarge) return RoundToMoney(ShortText(value));
    char buffer[32];
    return RoundToMoney(std::string_view(buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr));
}

float NarrowToFloat(double value) {
    if (std::fabs(value) > static_cast<double>(std::numeric_limits<float>::max())) {
        throw NumericError::Overflow();
    }
    return static_cast<float>(value);
}

}  // namespace kalvane
