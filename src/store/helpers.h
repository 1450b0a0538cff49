#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "store/connection.h"
#include "store/field_slots.h"

namespace kalvane {

/// Next id of a table: the highest 编号 plus 1. "1" on an empty table and on any failure.
std::string GetNextId(Connection& connection, std::string_view table);

/// Next 单据编号 of 入库单 and of 出库单; "1" when there is none.
std::string NextEnterNo(Connection& stock);
std::string NextPostNo(Connection& stock);

/// The rows of a select, or nothing when the store refused the statement.
std::optional<Cursor> OpenQuery(Connection& connection, std::string_view sql);

/// The rows of a select as texts, Null as empty text.
std::vector<std::vector<std::string>> TextRows(Cursor rows);

/// A tree or list key: a one-character kind followed by a number, both trimmed.
std::string MakeKey(std::string_view kind, std::string_view id);
/// First character of a key; empty for an empty key.
std::string KeyKind(std::string_view key);
/// All but the first character of a key.
std::string KeyId(std::string_view key);

/// Copies the fields of the row with that 编号, each as text (Null as empty), to slots 0 onward. Throws
/// StoreError when there is no such row.
void LoadRowById(Connection& connection, std::string_view table, std::string_view id, FieldSlots& slots);

/// As LoadRowById, for the first row whose text column equals `text`. A failed lookup leaves the slots as
/// they were.
void FetchCatalogueRow(Connection& connection, std::string_view table, std::string_view column,
                       std::string_view text, FieldSlots& slots);

/// True when the table has a row with that value in the column: "N" compares as a number, any other kind
/// as text.
bool RowExists(Connection& connection, std::string_view table, std::string_view column,
               std::string_view value, std::string_view kind);

}  // namespace kalvane
