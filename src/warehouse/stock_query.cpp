#include "warehouse/stock_query.h"

#include <array>

#include "numeric/date.h"
#include "numeric/number.h"

namespace kalvane {

std::span<const std::string_view> QueryTables() {
    static constexpr std::array<std::string_view, 3> tables = {"入库单", "出库单", "库存表"};
    return tables;
}

FieldType FieldTypeOf(const Column& column) {
    switch (column.type) {
        case ColumnType::Int32:
            return FieldType::Int32;
        case ColumnType::Float32:
            return FieldType::Float32;
        case ColumnType::DateTime:
            return FieldType::Date;
        default:
            return FieldType::Text;
    }
}

std::optional<FilterRefusal> RefusedFilter(std::string_view field, std::string_view value, FieldType type) {
    if (field.empty()) return FilterRefusal{"字段名不能为空!", true};
    if (value.empty()) return FilterRefusal{"字段值不能为空!"};
    if (type == FieldType::Date && !ParseDate(value)) {
        return FilterRefusal{"数据是日期类型(2002-03-04),请正确输入!"};
    }
    if ((type == FieldType::Int32 || type == FieldType::Float32) && !IsNumeric(value)) {
        return FilterRefusal{"数据是数值类型,请正确输入!"};
    }
    return std::nullopt;
}

std::string QueryStatement(std::string_view table) {
    return "Select * from " + std::string(table) + " ";
}

std::string QueryStatement(std::string_view table, std::string_view field, std::string_view value,
                           FieldType type) {
    const std::string where = QueryStatement(table) + " where " + std::string(field) + "=";
    if (type == FieldType::Text) return where + "'" + std::string(value) + "'";
    if (type == FieldType::Date) return where + ShortText(NarrowToFloat(ParseDate(value).value().serial));
    return where + std::string(value);
}

FileTable QueryFileTable(std::string_view table, std::vector<std::vector<std::string>> rows) {
    FileTable file;
    file.title = table;
    for (const Column& column : FindTable(table)->columns) {
        const FieldType type = FieldTypeOf(column);
        file.columns.push_back(
            {std::string(column.name), type == FieldType::Int32 || type == FieldType::Float32});
    }
    file.rows = std::move(rows);
    return file;
}

}  // namespace kalvane
