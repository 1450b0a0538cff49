#pragma once

#include <sqlite3.h>

#include <exception>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "store/column_conversion.h"
#include "store/connection.h"
#include "store/dialect.h"
#include "store/statement_scanner.h"

namespace kalvane {

/// A prepared statement and what is known of its parameters and columns.
struct PreparedStatement {
    Translation translation;
    sqlite3_stmt* handle = nullptr;
    std::shared_ptr<const std::vector<std::string>> names;
    std::vector<ColumnType> types;  // of its columns; Memo where any value is read as it is stored
};

/// Binds a value, positions counted from 1. A text outside `scratch` must outlive the step; one in it is
/// copied, since the next value may need the place.
void BindValue(sqlite3_stmt* statement, int position, const EngineValue& value, const std::string& scratch);

/// The engine's side of a connection, seen by Connection and CommandScope only.
class Connection::Implementation {
  public:
    Implementation(const std::filesystem::path& path, StoreKind kind);
    Implementation(const Implementation&) = delete;
    Implementation& operator=(const Implementation&) = delete;
    ~Implementation();

    /// Runs a statement of the engine's own language.
    void Run(const char* sql);
    void CheckIntegrity();

    /// The prepared statement of that shape; the literals of `sql` stand in `scanned_` until the next call.
    PreparedStatement& Prepare(std::string_view sql);
    void BindLiterals(PreparedStatement& statement);
    /// SQLITE_ROW or SQLITE_DONE; anything else resets the statement and throws.
    int Step(PreparedStatement& statement);
    static FieldValue ReadField(const PreparedStatement& statement, int column);

    std::filesystem::path file;
    sqlite3* database = nullptr;
    int scopeDepth = 0;  // open command scopes

  private:
    void Configure(StoreKind kind);
    void CheckFile(const std::string& name, StoreKind kind);
    std::string ReadPragma(const char* pragma);
    void ForgetStatements();
    static void StoreFunction(sqlite3_context* context, int count, sqlite3_value** arguments);

    ScannedStatement scanned_;
    std::unordered_map<std::string, PreparedStatement> statements_;
    const PreparedStatement* running_ = nullptr;
    std::exception_ptr conversionFailure_;
};

}  // namespace kalvane
