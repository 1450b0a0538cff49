#include "store/helpers.h"

#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"

namespace kalvane {
namespace {

/// The highest value plus 1 in 32-bit arithmetic; "1" for an empty table and for any failure.
std::string NextNumber(Connection& connection, const std::string& sql) {
    try {
        const Cursor highest = connection.OpenCursor(sql);
        if (highest.Field(0).IsNull()) return "1";
        return ShortText(std::int64_t{RoundToInt32(highest.Field(0).Number() + 1)});
    } catch (const Error&) {
        return "1";
    }
}

void CopyRow(const Cursor& row, FieldSlots& slots) {
    for (int i = 0; i < row.FieldCount(); ++i)
        slots[static_cast<std::size_t>(i)] = row.Field(i).TextOrEmpty();
}

}  // namespace

std::string GetNextId(Connection& connection, std::string_view table) {
    return NextNumber(connection, "Select max(编号) from " + std::string(table));
}

std::string NextEnterNo(Connection& stock) {
    return NextNumber(stock, "Select Max(单据编号) from 入库单");
}

std::string NextPostNo(Connection& stock) {
    return NextNumber(stock, "Select Max(单据编号) from 出库单");
}

std::optional<Cursor> OpenQuery(Connection& connection, std::string_view sql) {
    try {
        return connection.OpenCursor(sql);
    } catch (const StoreError&) {
        return std::nullopt;
    }
}

std::vector<std::vector<std::string>> TextRows(Cursor rows) {
    std::vector<std::vector<std::string>> texts;
    texts.reserve(static_cast<std::size_t>(rows.RecordCount()));
    for (; !rows.Eof(); rows.MoveNext()) {
        std::vector<std::string>& row = texts.emplace_back();
        for (int i = 0; i < rows.FieldCount(); ++i) row.push_back(rows.Field(i).TextOrEmpty());
    }
    return texts;
}

std::string MakeKey(std::string_view kind, std::string_view id) {
    return std::string(Trim(kind)) + std::string(Trim(id));
}

std::string KeyKind(std::string_view key) {
    return std::string(LeftChars(key, 1));
}

std::string KeyId(std::string_view key) {
    return std::string(MidChars(key, 2));
}

void LoadRowById(Connection& connection, std::string_view table, std::string_view id, FieldSlots& slots) {
    const Cursor row =
        connection.OpenCursor("Select * from " + std::string(table) + " Where 编号=" + std::string(id));
    if (row.Eof()) {
        throw StoreError("“" + std::string(table) + "”里没有编号为 " + std::string(id) + " 的记录。");
    }
    CopyRow(row, slots);
}

void FetchCatalogueRow(Connection& connection, std::string_view table, std::string_view column,
                       std::string_view text, FieldSlots& slots) {
    const auto row = OpenQuery(connection, "Select * from " + std::string(table) + " where " +
                                               std::string(column) + "='" + std::string(text) + "'");
    if (row && !row->Eof()) CopyRow(*row, slots);
}

bool RowExists(Connection& connection, std::string_view table, std::string_view column,
               std::string_view value, std::string_view kind) {
    const std::string quote = kind == "N" ? "" : "'";
    const Cursor rows = connection.OpenCursor("Select * from " + std::string(table) + " where " +
                                              std::string(column) + "=" + quote + std::string(value) + quote);
    return rows.RecordCount() > 0;
}

}  // namespace kalvane
