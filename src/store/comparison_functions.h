#pragma once

struct sqlite3;

namespace kalvane {

/// Offers the engine what translated comparisons call: kalvane_float32(x), a number cut to 32 bits and
/// everything else as it is.
void AddComparisonFunctions(sqlite3* database);

}  // namespace kalvane
