#include "store/column_conversion.h"

#include <optional>

#include "numeric/date.h"
#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"

namespace kalvane {
namespace {

std::string Shown(const EngineValue& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) return ShortText(*whole);
    if (const auto* real = std::get_if<double>(&value)) return ShortText(*real);
    if (const auto* text = std::get_if<std::string_view>(&value)) return std::string(*text);
    return "Null";
}

[[noreturn]] void Refuse(const WrittenValue& target, const EngineValue& value, const std::string& reason) {
    const std::string column(target.column->name);
    throw ColumnError(column, "“" + std::string(target.table->name) + "”的“" + column + "”不能写入“" +
                                  Shown(value) + "”：" + reason + "。");
}

double AsNumber(const WrittenValue& target, const EngineValue& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value)) return static_cast<double>(*whole);
    if (const auto* real = std::get_if<double>(&value)) return *real;
    const auto text = std::get<std::string_view>(value);
    if (!IsNumeric(text)) Refuse(target, value, "不是数字");
    return ParseNumber(text);
}

double AsMoney(const WrittenValue& target, const EngineValue& value) {
    const double number = AsNumber(target, value);
    return std::holds_alternative<double>(value) ? RoundToMoney(number) : RoundToMoney(Shown(value));
}

double AsDate(const WrittenValue& target, const EngineValue& value) {
    if (const auto* text = std::get_if<std::string_view>(&value)) {
        const std::optional<Date> date = ParseDate(*text);
        if (!date) Refuse(target, value, "不是日期，日期应写成 2002-03-04");
        return date->serial;
    }
    const double serial = AsNumber(target, value);
    if (!IsDate(serial)) throw NumericError::Overflow();
    return serial;
}

}  // namespace

EngineValue ConvertForColumn(const WrittenValue& target, const EngineValue& value, std::string& scratch) {
    if (std::holds_alternative<std::monostate>(value)) return value;
    try {
        switch (target.column->type) {
            case ColumnType::Int16:
                return std::int64_t{RoundToInt16(AsNumber(target, value))};
            case ColumnType::Int32:
                return std::int64_t{RoundToInt32(AsNumber(target, value))};
            case ColumnType::Float32:
                return static_cast<double>(NarrowToFloat(AsNumber(target, value)));
            case ColumnType::Money:
                return AsMoney(target, value);
            case ColumnType::DateTime:
                return AsDate(target, value);
            case ColumnType::Text:
            case ColumnType::Memo:
                break;
        }
    } catch (const NumericError&) {
        Refuse(target, value, "数值超出范围");
    }
    if (!std::holds_alternative<std::string_view>(value)) {
        scratch = Shown(value);
        return ConvertForColumn(target, std::string_view(scratch), scratch);
    }
    const auto text = std::get<std::string_view>(value);
    if (target.column->type == ColumnType::Text &&
        CharCount(text) > static_cast<std::size_t>(target.column->width)) {
        Refuse(target, value, "最多 " + std::to_string(target.column->width) + " 个字");
    }
    return value;
}

}  // namespace kalvane
