#include "store/table_writer.h"

#include <string>
#include <vector>

#include "numeric/error.h"
#include "store/column_conversion.h"
#include "store/connection_implementation.h"
#include "store/engine_error.h"

namespace kalvane {
namespace {

EngineValue ToEngineValue(const FieldValue& value) {
    if (const auto* whole = std::get_if<std::int64_t>(&value.Get())) return *whole;
    if (const auto* single = std::get_if<float>(&value.Get())) return double{*single};
    if (const auto* real = std::get_if<double>(&value.Get())) return *real;
    if (const auto* date = std::get_if<Date>(&value.Get())) return date->serial;
    if (const auto* text = std::get_if<std::string>(&value.Get())) return std::string_view(*text);
    return std::monostate{};
}

}  // namespace

TableWriter::TableWriter(Connection& connection, std::string_view table)
    : connection_(connection), table_(FindTable(table)) {
    if (table_ == nullptr) throw StoreError("没有表“" + std::string(table) + "”。");
    std::string sql = "INSERT INTO \"" + std::string(table_->name) + "\" VALUES (?";
    for (std::size_t i = 1; i < table_->columns.size(); ++i) sql += ",?";
    sqlite3* database = connection_.implementation_->database;
    if (sqlite3_prepare_v2(database, (sql + ")").c_str(), -1, &insert_, nullptr) != SQLITE_OK) {
        ThrowEngineError(database);
    }
}

TableWriter::~TableWriter() {
    sqlite3_finalize(insert_);
}

void TableWriter::AddRow(std::span<const FieldValue> values) {
    if (values.size() > table_->columns.size()) {
        throw StoreError("表“" + std::string(table_->name) + "”没有第 " +
                         std::to_string(table_->columns.size() + 1) + " 列。");
    }
    sqlite3_clear_bindings(insert_);
    for (std::size_t i = 0; i < values.size(); ++i) BindField(static_cast<int>(i), values[i]);
    const int result = sqlite3_step(insert_);
    sqlite3_reset(insert_);  // keeps the failure
    if (result != SQLITE_DONE) ThrowEngineError(connection_.implementation_->database);
}

void TableWriter::BindField(int position, const FieldValue& value) {
    std::string scratch;
    const Column& column = table_->columns[static_cast<std::size_t>(position)];
    BindValue(insert_, position + 1, ConvertForColumn({table_, &column}, ToEngineValue(value), scratch),
              scratch);
}

void CopyTableRows(Cursor source, TableWriter& destination) {
    std::vector<FieldValue> values(static_cast<std::size_t>(source.FieldCount()));
    for (; !source.Eof(); source.MoveNext()) {
        for (int i = 0; i < source.FieldCount(); ++i) values[static_cast<std::size_t>(i)] = source.Field(i);
        destination.AddRow(values);
    }
}

}  // namespace kalvane
