#pragma once

#include <filesystem>
#include <functional>
#include <span>
#include <string_view>

#include "store/connection.h"

namespace kalvane {

/// The tables with lasting data, in the order in which they are copied. Scratch tables, the optimiser's, the
/// warehouse and the users are not among them.
std::span<const std::string_view> BackupTables();

/// Called after each table with the number of tables done; may be empty.
using TableProgress = std::function<void(int tables)>;

/// Path of a backup: the folder and the name, with ".MBK" behind a name that has no dot.
std::filesystem::path BackupPath(const std::filesystem::path& folder, std::string_view name);

/// True when a backup to `target` would replace a file that is no backup of ours.
bool WouldReplaceOtherFile(const std::filesystem::path& target);

/// Writes a backup of the main store: a copy of the empty template, filled row by row with the backup
/// tables. It is written beside the target and renamed into place when it is whole, so that a failed backup
/// never replaces a good one. Throws StoreError or FileError, also for a target that is a store, a copy of
/// one, or another file of the program's own.
void BackupMainStore(Connection& main, const std::filesystem::path& templateStore,
                     const std::filesystem::path& target, const TableProgress& progress);

}  // namespace kalvane
