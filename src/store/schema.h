#pragma once

#include <array>
#include <span>
#include <string_view>

namespace kalvane {

/// Declared column types. Every column accepts Null.
enum class ColumnType { Int16, Int32, Float32, Money, Text, Memo, DateTime };

struct Column {
    std::string_view name;
    ColumnType type;
    int width = 0;  ///< most characters of a Text column
};

struct Table {
    std::string_view name;
    std::span<const Column> columns;
    /// Columns that lookups go by, empty where unused. They only make lookups quick: the order of rows
    /// never depends on them.
    std::array<std::string_view, 2> indexedColumns{};
};

/// The kinds of store file. Own holds what goes beyond the tables of the other stores, which are what they
/// are. A backup and a store of the legacy layout are only read, and which tables they
/// have shows when one is asked for.
enum class StoreKind { Main, Stock, Users, Own, Backup, Legacy };

inline bool IsReadOnly(StoreKind kind) {
    return kind == StoreKind::Backup || kind == StoreKind::Legacy;
}

/// Tables of a store, in the order in which they are made; none for a kind that is only read.
std::span<const Table> TablesOf(StoreKind kind);

/// The table of that name in any store, without regard to case; null when there is none.
const Table* FindTable(std::string_view name);

/// The column of that name, without regard to case; null when there is none.
const Column* FindColumn(const Table& table, std::string_view name);

/// Version of the layout, kept in each store file.
inline constexpr int kSchemaVersion = 2;

}  // namespace kalvane
