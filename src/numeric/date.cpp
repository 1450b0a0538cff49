#include "numeric/date.h"

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>

#include "numeric/text.h"

namespace kalvane {
namespace {

using std::chrono::sys_days;

constexpr std::int64_t kSecondsPerDay = 86400;
constexpr sys_days kFirstDay = std::chrono::year(1899) / 12 / 30;

/// Takes a number of `least` to `most` digits off the front of `rest`.
bool TakeDigits(std::string_view& rest, std::size_t least, std::size_t most, unsigned& number) {
    const char* begin = rest.data();
    const char* end = std::from_chars(begin, begin + std::min(most, rest.size()), number).ptr;
    const auto count = static_cast<std::size_t>(end - begin);
    rest.remove_prefix(count);
    return count >= least;
}

bool TakeMark(std::string_view& rest, std::string_view mark) {
    if (!rest.starts_with(mark)) return false;
    rest.remove_prefix(mark.size());
    return true;
}

/// Takes a day in one of its spellings, with the blank that parts digits from a time.
std::optional<sys_days> TakeDay(std::string_view& rest) {
    unsigned year = 0;
    unsigned month = 0;
    unsigned day = 0;
    if (!TakeDigits(rest, 4, 4, year)) return std::nullopt;
    const bool isChinese = TakeMark(rest, "年");
    const std::string_view mark = isChinese ? "月" : rest.starts_with('/') ? "/" : "-";
    if (!isChinese && !TakeMark(rest, mark)) return std::nullopt;
    if (!TakeDigits(rest, 1, 2, month) || !TakeMark(rest, mark) || !TakeDigits(rest, 1, 2, day)) {
        return std::nullopt;
    }
    if (isChinese ? !TakeMark(rest, "日") : !rest.empty() && !TakeMark(rest, " ")) return std::nullopt;
    const std::chrono::year_month_day date(std::chrono::year(static_cast<int>(year)),
                                           std::chrono::month(month), std::chrono::day(day));
    if (!date.ok()) return std::nullopt;
    return sys_days(date);
}

/// Seconds since midnight of "h:mm" or "h:mm:ss".
std::optional<unsigned> TakeTime(std::string_view& rest) {
    unsigned hours = 0;
    unsigned minutes = 0;
    unsigned seconds = 0;
    if (!TakeDigits(rest, 1, 2, hours) || !TakeMark(rest, ":")) return std::nullopt;
    if (!TakeDigits(rest, 2, 2, minutes)) return std::nullopt;
    if (TakeMark(rest, ":") && !TakeDigits(rest, 2, 2, seconds)) return std::nullopt;
    if (hours > 23 || minutes > 59 || seconds > 59) return std::nullopt;
    return (hours * 60 + minutes) * 60 + seconds;
}

}  // namespace

bool IsDate(double serial) {
    constexpr sys_days kLeast = std::chrono::year(100) / 1 / 1;
    constexpr sys_days kBeyond = std::chrono::year(10000) / 1 / 1;
    return serial >= (kLeast - kFirstDay).count() && serial < (kBeyond - kFirstDay).count();
}

std::optional<Date> ParseDate(std::string_view text) {
    text = Trim(text);
    const std::optional<sys_days> day = TakeDay(text);
    if (!day) return std::nullopt;
    auto serial = static_cast<double>((*day - kFirstDay).count());
    text = Trim(text);
    if (!text.empty()) {
        const std::optional<unsigned> seconds = TakeTime(text);
        if (!seconds || !text.empty()) return std::nullopt;
        serial += *seconds / static_cast<double>(kSecondsPerDay);
    }
    if (!IsDate(serial)) return std::nullopt;
    return Date{serial};
}

std::string DateText(Date date) {
    const std::int64_t seconds = std::llround(date.serial * static_cast<double>(kSecondsPerDay));
    const auto days = std::chrono::floor<std::chrono::days>(std::chrono::seconds(seconds));
    const std::chrono::year_month_day day(kFirstDay + days);
    const auto time = static_cast<int>(seconds - days.count() * kSecondsPerDay);
    char text[64];
    int length = std::snprintf(text, sizeof text, "%04d-%02u-%02u", static_cast<int>(day.year()),
                               static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()));
    if (time != 0) {
        length += std::snprintf(text + length, sizeof text - static_cast<std::size_t>(length),
                                " %02d:%02d:%02d", time / 3600, time / 60 % 60, time % 60);
    }
    return std::string(text, static_cast<std::size_t>(length));
}

}  // namespace kalvane
