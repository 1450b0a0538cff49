#include "store/store_files.h"

#include <sqlite3.h>
#include <sys/stat.h>

#include "numeric/error.h"
#include "platform/files.h"
#include "store/engine_error.h"

namespace kalvane {
namespace {

const char* DeclaredType(ColumnType type) {
    switch (type) {
        case ColumnType::Int16:
            return "INT16";
        case ColumnType::Int32:
            return "INT32";
        case ColumnType::Float32:
            return "FLOAT32";
        case ColumnType::Money:
            return "MONEY";
        case ColumnType::Text:
        case ColumnType::Memo:
            return "TEXT";
        case ColumnType::DateTime:
            return "DATETIME";
    }
    return "";
}

std::string Quoted(std::string_view name) {
    return "\"" + std::string(name) + "\"";
}

std::string CreationText(StoreKind kind) {
    std::string sql = "BEGIN;PRAGMA application_id=" + std::to_string(kApplicationId) +
                      ";PRAGMA user_version=" + std::to_string(kSchemaVersion) + ";";
    for (const Table& table : TablesOf(kind)) {
        std::string columns;
        for (const Column& column : table.columns) {
            if (!columns.empty()) columns += ", ";
            columns += Quoted(column.name) + " " + DeclaredType(column.type);
            if (column.type == ColumnType::Text) columns += "(" + std::to_string(column.width) + ")";
        }
        sql += "CREATE TABLE " + Quoted(table.name) + " (" + columns + ");";
        for (const std::string_view column : table.indexedColumns) {
            if (column.empty()) continue;
            sql += "CREATE INDEX " + Quoted(std::string(table.name) + "." + std::string(column)) + " ON " +
                   Quoted(table.name) + " (" + Quoted(column) + ");";
        }
    }
    return sql + "COMMIT;";
}

}  // namespace

void KeepToOwner(const std::filesystem::path& file) {
    struct stat state = {};
    const bool isOpen = ::stat(file.c_str(), &state) == 0 && (state.st_mode & (S_IRWXG | S_IRWXO)) != 0;
    if (isOpen) ::chmod(file.c_str(), S_IRUSR | S_IWUSR);
}

void CreateStore(const std::filesystem::path& file, StoreKind kind) {
    if (FileExists(file)) throw StoreError("文件“" + file.string() + "”已经存在。");
    sqlite3* database = nullptr;
    int result =
        sqlite3_open_v2(file.c_str(), &database, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    if (result == SQLITE_OK) {
        result = sqlite3_exec(database, CreationText(kind).c_str(), nullptr, nullptr, nullptr);
    }
    if (kind == StoreKind::Users) KeepToOwner(file);
    const std::string text = result == SQLITE_OK ? "" : EngineErrorText(database);
    sqlite3_close(database);
    if (result != SQLITE_OK) throw StoreError("不能建立文件“" + file.string() + "”：" + text);
}

}  // namespace kalvane
