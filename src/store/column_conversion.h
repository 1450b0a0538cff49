#pragma once

#include <cstdint>
#include <string_view>
#include <variant>

#include "store/dialect.h"

namespace kalvane {

/// A value in the engine's own kinds, on its way into a column.
using EngineValue = std::variant<std::monostate, std::int64_t, double, std::string_view>;

/// Converts a value by the declared type of its column: whole numbers round half to even and must fit,
/// Float32 is cut to 32 bits, Money to four decimals, a DateTime is a number of days (numeric/date.h), a text
/// must not be longer than its column. A text on its way into a number column must be a number. Throws
/// StoreError naming table, column and value. A number that becomes text is written to `scratch`.
EngineValue ConvertForColumn(const WrittenValue& target, const EngineValue& value, std::string& scratch);

}  // namespace kalvane
