#include "formula/cal_token.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <system_error>

namespace kalvane {
namespace {

/// True when the digits in front of the dot hold more than zeros.
bool IsAtLeastOne(std::string_view number) {
    const std::size_t digit = number.find_first_not_of('0');
    return digit < number.size() && number[digit] != '.';
}

}  // namespace

bool IsShortWholeNumber(std::string_view text) {
    constexpr std::size_t kExactDigits = 15;
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    return text.size() <= kExactDigits && std::all_of(text.begin(), text.end(), isDigit);
}

CalToken::CalToken(std::string_view text) : kind_(kNeither), value_(0) {
    if (text.empty()) {
        kind_ = kNothing;
        return;
    }
    const char first = text.front();
    if (first != '.' && (first < '0' || first > '9')) return;

    if (IsShortWholeNumber(text)) {
        kind_ = kNumber;
        for (const char digit : text) value_ = value_ * 10 + (digit - '0');
        return;
    }

    double number = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number, std::chars_format::fixed);
    if (read.ec == std::errc::invalid_argument || read.ptr != end) return;
    kind_ = kNumber;
    if (read.ec != std::errc::result_out_of_range) {
        value_ = number;
    } else if (IsAtLeastOne(text)) {
        value_ = std::numeric_limits<double>::infinity();
    }
}

}  // namespace kalvane
