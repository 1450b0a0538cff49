#include "store/migration.h"

#include <sqlite3.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "numeric/date.h"
#include "numeric/error.h"
#include "platform/files.h"
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

void DateOrText(sqlite3_context* context, int, sqlite3_value** arguments) {
    std::optional<Date> date;
    if (sqlite3_value_type(arguments[0]) == SQLITE_TEXT) {
        date = ParseDate(reinterpret_cast<const char*>(sqlite3_value_text(arguments[0])));
    }
    if (date) {
        sqlite3_result_double(context, date->serial);
    } else {
        sqlite3_result_value(context, arguments[0]);
    }
}

/// What a query gives for its rows, a line each; of many rows the first ones and how many there are.
std::string Lines(sqlite3* database, const char* query) {
    constexpr int kMostLines = 20;
    std::string lines;
    int count = 0;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(database, query, -1, &statement, nullptr) != SQLITE_OK) ThrowEngineError(database);
    for (; sqlite3_step(statement) == SQLITE_ROW; ++count) {
        if (count >= kMostLines) continue;
        lines += std::string("\n") + reinterpret_cast<const char*>(sqlite3_column_text(statement, 0));
    }
    sqlite3_finalize(statement);
    return count <= kMostLines ? lines : lines + "\n……共 " + std::to_string(count) + " 行";
}

// Before version 2 a date was the text as it had been typed.
constexpr MigrationStep kSteps[] = {
    {2, StoreKind::Stock,
     "UPDATE \"入库单\" SET \"采购日期\" = kalvane_date_or_text(\"采购日期\");"
     "UPDATE \"出库单\" SET \"出库日期\" = kalvane_date_or_text(\"出库日期\")",
     "SELECT '入库单，单据编号 ' || ifnull(\"单据编号\", '空') || '：采购日期“' || \"采购日期\" || "
     "'”不是日期' "
     "FROM \"入库单\" WHERE typeof(\"采购日期\") = 'text' UNION ALL "
     "SELECT '出库单，单据编号 ' || ifnull(\"单据编号\", '空') || '：出库日期“' || \"出库日期\" || "
     "'”不是日期' "
     "FROM \"出库单\" WHERE typeof(\"出库日期\") = 'text'"}};

}  // namespace

std::span<const MigrationStep> Migrations() {
    return kSteps;
}

void MigrateStore(const std::filesystem::path& file, StoreKind kind, Notice& notice,
                  std::span<const MigrationStep> steps, int newest) {
    const Handle store = Open(file);
    if (store == nullptr || HeaderNumber(store.get(), "PRAGMA application_id") != kApplicationId) return;
    std::error_code ignored;  // an empty path is no folder that can be written to
    if (!IsWritableFolder(std::filesystem::absolute(file, ignored).parent_path()) ||
        sqlite3_db_readonly(store.get(), "main") != 0)
        return;
    const int version = HeaderNumber(store.get(), "PRAGMA user_version");
    if (version < 0 || version >= newest) return;
    std::string sql;
    std::vector<const char*> leftOvers;
    for (const MigrationStep& step : steps) {
        if (step.kind != kind || step.version <= version) continue;
        sql += std::string(step.sql) + ";";
        if (step.leftOver != nullptr) leftOvers.push_back(step.leftOver);
    }
    std::filesystem::path copy;
    if (!sql.empty()) copy = KeepCopy(file);
    sql = "BEGIN IMMEDIATE;" + sql + "PRAGMA user_version=" + std::to_string(newest) + ";COMMIT;";
    sqlite3_create_function_v2(store.get(), "kalvane_date_or_text", 1, SQLITE_UTF8, nullptr, &DateOrText,
                               nullptr, nullptr, nullptr);
    if (sqlite3_exec(store.get(), sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        // Closing the file undoes what was done.
        ThrowEngineError(store.get(), "数据库文件“" + file.filename().string() + "”不能升级：");
    }
    std::string lines;
    for (const char* leftOver : leftOvers) lines += Lines(store.get(), leftOver);
    if (lines.empty()) return;
    notice.Show("数据库文件“" + file.filename().string() + "”已升级。下面的内容不能转换，原样保留：" + lines +
                    "\n升级前的数据库另存为“副本/" + copy.filename().string() + "”。",
                "提示", NoticeIcon::Warning);
}

}  // namespace kalvane
