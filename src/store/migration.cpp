#include "store/migration.h"

#include <sqlite3.h>

#include <memory>
#include <string>

#include "numeric/error.h"
#include "store/dated_copies.h"
#include "store/engine_error.h"

namespace kalvane {
namespace {

using Handle = std::unique_ptr<sqlite3, decltype(&sqlite3_close)>;

/// Null when the engine cannot open the file.
Handle Open(const std::filesystem::path& file) {
    sqlite3* database = nullptr;
    const int result = sqlite3_open_v2(file.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr);
    Handle handle(database, &sqlite3_close);
    if (result != SQLITE_OK) handle.reset();
    return handle;
}

/// A number that the file's header holds; -1 when it cannot be read.
int HeaderNumber(sqlite3* database, const char* pragma) {
    int value = -1;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(database, pragma, -1, &statement, nullptr) == SQLITE_OK &&
        sqlite3_step(statement) == SQLITE_ROW) {
        value = sqlite3_column_int(statement, 0);
    }
    sqlite3_finalize(statement);
    return value;
}

}  // namespace

std::span<const MigrationStep> Migrations() {
    return {};  // the first layout is version 1
}

void MigrateStore(const std::filesystem::path& file, StoreKind kind, std::span<const MigrationStep> steps,
                  int newest) {
    const Handle store = Open(file);
    if (store == nullptr || HeaderNumber(store.get(), "PRAGMA application_id") != kApplicationId) return;
    const int version = HeaderNumber(store.get(), "PRAGMA user_version");
    if (version < 0 || version >= newest) return;
    KeepCopy(file);
    std::string sql = "BEGIN IMMEDIATE;";
    for (const MigrationStep& step : steps) {
        if (step.kind == kind && step.version > version) sql += std::string(step.sql) + ";";
    }
    sql += "PRAGMA user_version=" + std::to_string(newest) + ";COMMIT;";
    if (sqlite3_exec(store.get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        // Closing the file undoes what was done.
        ThrowEngineError(store.get(), "数据库文件“" + file.filename().string() + "”不能升级：");
    }
}

}  // namespace kalvane
