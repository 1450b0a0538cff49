#include "store/comparison_functions.h"

#include <sqlite3.h>

#include <cmath>
#include <limits>

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

}  // namespace

void AddComparisonFunctions(sqlite3* database) {
    sqlite3_create_function_v2(database, "kalvane_float32", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr,
                               &Float32, nullptr, nullptr, nullptr);
}

}  // namespace kalvane
