#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace kalvane {

/// A day with a time, as the number of days since 1899-12-30 at midnight: 37319.5 is noon of 2002-03-04.
struct Date {
    double serial = 0;
};

/// Whether a number of days lies in the years 100 to 9999.
bool IsDate(double serial);

/// The date of a text, blanks at both ends aside: "2002-3-4", "2002/03/04" or "2002年3月4日", each also with
/// a time behind it ("8:05", "08:05:30"). The year has four digits. Nothing for any other text, and for a day
/// or a time that does not exist.
std::optional<Date> ParseDate(std::string_view text);

/// "2002-03-04", and with a time, to the second, "2002-03-04 08:05:30".
std::string DateText(Date date);

}  // namespace kalvane
