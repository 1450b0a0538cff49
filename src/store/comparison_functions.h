#pragma once

#include <exception>

struct sqlite3;

namespace kalvane {

/// Offers the engine what translated comparisons call: kalvane_float32(x), a number cut to 32 bits, and
/// kalvane_date(x), the days of a text, which fails for a text that is no date and leaves the StoreError in
/// `failure`. Both give everything else as it is.
void AddComparisonFunctions(sqlite3* database, std::exception_ptr& failure);

}  // namespace kalvane
