#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "page/table_file.h"
#include "store/helpers.h"
#include "store/schema.h"

namespace kalvane {

/// The tables that can be browsed: 入库单, 出库单, 库存表.
std::span<const std::string_view> QueryTables();

/// How the values of a column are filtered, as the numbers that the field list carries.
enum class FieldType { Int32 = 3, Float32 = 4, Date = 7, Text = 202 };

FieldType FieldTypeOf(const Column& column);

/// A filter that cannot be used, and whether the field or the value is to be mended.
struct FilterRefusal {
    std::string_view text;
    bool isField = false;
};

/// `field` and `value` as chosen and typed; `type` that of the field.
std::optional<FilterRefusal> RefusedFilter(std::string_view field, std::string_view value, FieldType type);

/// The rows of a table, all of them or those whose field equals a value that RefusedFilter has let through. A
/// day is compared by its serial number in 32 bits.
std::string QueryStatement(std::string_view table);
std::string QueryStatement(std::string_view table, std::string_view field, std::string_view value,
                           FieldType type);

/// Rows of a table, for a file.
FileTable QueryFileTable(std::string_view table, std::vector<std::vector<std::string>> rows);

}  // namespace kalvane
