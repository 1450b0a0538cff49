#include "store/comparison_functions.h"

#include <sqlite3.h>

#include <cmath>
#include <limits>
#include <optional>
#include <string>

#include "numeric/date.h"
#include "numeric/error.h"

namespace kalvane {
namespace {

/// A number beyond a 32-bit float stays: it still lies beyond all of them.
void Float32(sqlite3_context* context, int, sqlite3_value** arguments) {
    const double value = sqlite3_value_double(arguments[0]);
    if (sqlite3_value_numeric_type(arguments[0]) == SQLITE_TEXT ||
        sqlite3_value_type(arguments[0]) == SQLITE_NULL ||
        std::fabs(value) > static_cast<double>(std::numeric_limits<float>::max())) {
        sqlite3_result_value(context, arguments[0]);
    } else {
        sqlite3_result_double(context, static_cast<double>(static_cast<float>(value)));
    }
}

void DateOf(sqlite3_context* context, int, sqlite3_value** arguments) {
    if (sqlite3_value_type(arguments[0]) != SQLITE_TEXT) {
        sqlite3_result_value(context, arguments[0]);
        return;
    }
    const std::string text = reinterpret_cast<const char*>(sqlite3_value_text(arguments[0]));
    if (const std::optional<Date> date = ParseDate(text)) {
        sqlite3_result_double(context, date->serial);
        return;
    }
    *static_cast<std::exception_ptr*>(sqlite3_user_data(context)) =
        std::make_exception_ptr(StoreError("“" + text + "”不是日期，日期应写成 2002-03-04。"));
    sqlite3_result_error(context, "date", -1);
}

}  // namespace

void AddComparisonFunctions(sqlite3* database, std::exception_ptr& failure) {
    sqlite3_create_function_v2(database, "kalvane_float32", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr,
                               &Float32, nullptr, nullptr, nullptr);
    sqlite3_create_function_v2(database, "kalvane_date", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, &failure,
                               &DateOf, nullptr, nullptr, nullptr);
}

}  // namespace kalvane
