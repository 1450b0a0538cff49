#include "numeric/date.h"

#include <limits>

namespace kalvane::test {
namespace {

TEST(DateTest, ReadsTheSpellingsOfADayAndNothingElse) {
    // 1900-01-01 is day 2; 2002-03-04 comes 102 years of 365 days, 25 leap days, 31, 28 and 3 days later.
    const struct {
        const char* text;
        double serial;
        const char* shown;
    } dates[] = {{"1899-12-30", 0, "1899-12-30"},
                 {" 2002-3-4 ", 37319, "2002-03-04"},
                 {"2002/03/04", 37319, "2002-03-04"},
                 {"2002年3月4日", 37319, "2002-03-04"},
                 {"2002-03-04 12:00", 37319.5, "2002-03-04 12:00:00"},
                 {"2002/3/4 6:00:00", 37319.25, "2002-03-04 06:00:00"},
                 {"2002年3月4日18:00", 37319.75, "2002-03-04 18:00:00"},
                 {"1899-12-29 18:00", -0.25, "1899-12-29 18:00:00"},
                 {"2002-03-04 23:59:59", 37319 + 86399 / 86400.0, "2002-03-04 23:59:59"},
                 {"2000-2-29", 36585, "2000-02-29"},  // 734 days before 2002-03-04
                 {"9999-12-31", 2958465, "9999-12-31"}};
    for (const auto& date : dates) {
        ASSERT_TRUE(ParseDate(date.text)) << date.text;
        EXPECT_EQ(ParseDate(date.text)->serial, date.serial) << date.text;
        EXPECT_EQ(DateText({date.serial}), date.shown);
    }
    for (const char* text :
         {"",          "不是日期",       "2002",       "37319",         "02-3-4",         "2002-3",
          "2002-3/4",  "2002-02-29",     "2002-13-1",  "2002-0-1",      "2002-3-4x",      "2002-03-0408:00",
          "2002--3-4", "2002-3-4 24:00", "2002-3-4 8", "2002-3-4 8:60", "2002-3-4 8:00:", "2002年3月4",
          "2002年3-4", "0099-1-1",       "3-4-2002",   "2002-003-4"}) {
        EXPECT_FALSE(ParseDate(text)) << text;
    }
    EXPECT_FALSE(IsDate(2958466));
    EXPECT_FALSE(IsDate(std::numeric_limits<double>::quiet_NaN()));
}

}  // namespace
}  // namespace kalvane::test
