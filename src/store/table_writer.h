#pragma once

#include <span>
#include <string_view>

#include "store/connection.h"

struct sqlite3_stmt;

namespace kalvane {

/// Adds rows to a table, field by field in the order of its columns. Values are converted by the type of
/// their column, as those of a statement are, but need not be written out as text.
class TableWriter {
  public:
    /// `connection` must outlive the writer. Throws StoreError when the store has no such table.
    TableWriter(Connection& connection, std::string_view table);
    TableWriter(const TableWriter&) = delete;
    TableWriter& operator=(const TableWriter&) = delete;
    ~TableWriter();

    /// Adds one row; columns beyond the last value stay Null. Throws StoreError for more values than columns,
    /// for a value that does not fit its column, and when the engine refuses.
    void AddRow(std::span<const FieldValue> values);

  private:
    void BindField(int position, const FieldValue& value);

    Connection& connection_;
    const Table* table_;
    sqlite3_stmt* insert_ = nullptr;
};

/// Adds all rows of `source` to the table of `destination`. Fields are matched by position, never by name.
/// Throws StoreError as AddRow does; the rows before the failure stay.
void CopyTableRows(Cursor source, TableWriter& destination);

}  // namespace kalvane
