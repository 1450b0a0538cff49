#pragma once

#include <map>
#include <string>
#include <vector>

#include "backup/backup.h"
#include "store/table_writer.h"
#include "support/store_rows.h"

namespace kalvane::test {

/// A row that any table of that layout takes; the texts carry what statements stumble over.
inline std::vector<FieldValue> SampleRow(const Table& table, int row) {
    std::vector<FieldValue> values;
    for (const Column& column : table.columns) {
        const std::int64_t number = row * 100 + static_cast<std::int64_t>(values.size());
        switch (column.type) {
            case ColumnType::Int16:
            case ColumnType::Int32:
            case ColumnType::DateTime:
                values.emplace_back(number);
                break;
            case ColumnType::Float32:
            case ColumnType::Money:
                values.emplace_back(static_cast<double>(number) + 0.25);
                break;
            case ColumnType::Memo:
                values.emplace_back("行一\n行二 'x' \"y\"; -- " + std::string(6000, '.'));
                break;
            case ColumnType::Text:
                values.emplace_back("窗'" + std::to_string(row));
                break;
        }
    }
    if (values.size() > 3) values.back() = FieldValue();  // and one Null
    return values;
}

/// Adds rows to every table of the main store.
inline void FillMain(Connection& main, int rows) {
    for (const Table& table : TablesOf(StoreKind::Main)) {
        TableWriter writer(main, table.name);
        for (int row = 1; row <= rows; ++row) writer.AddRow(SampleRow(table, row));
    }
}

/// The rows of every table of the main store, in their order.
inline std::map<std::string, std::string> ContentOf(Connection& main) {
    std::map<std::string, std::string> content;
    for (const Table& table : TablesOf(StoreKind::Main)) {
        const std::string name(table.name);
        content[name] = Rows(main, "Select * from " + name);
    }
    return content;
}

/// As ContentOf, for the tables that backups hold.
inline std::map<std::string, std::string> BackedUpContent(Connection& main) {
    std::map<std::string, std::string> content;
    for (const std::string_view table : BackupTables()) {
        content[std::string(table)] = Rows(main, "Select * from " + std::string(table));
    }
    return content;
}

}  // namespace kalvane::test
