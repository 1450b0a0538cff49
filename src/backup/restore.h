#pragma once

#include <filesystem>

#include "backup/backup.h"
#include "platform/notice.h"
#include "store/connection.h"

namespace kalvane {

/// Replaces the backup tables of the main store by those of a backup, table by table: emptied, then filled.
/// Before that a dated copy of the store is kept. A failure at one table leaves the tables before it
/// replaced and those behind it as they were; the operator learns which table it was and why, and may have
/// the copy put back. Success is reported as well. A failure before the first change, and one of putting the
/// copy back, is thrown as StoreError or FileError.
void RestoreMainStore(Connection& main, const std::filesystem::path& backupFile,
                      const TableProgress& progress, Notice& notice);

/// Looks for a restore that a kill or a power cut ended in the middle, and offers to put back the copy that
/// was kept before it. Throws as RestoreMainStore does; the offer is repeated at the next start then.
void OfferToUndoCutRestore(Connection& main, Notice& notice);

}  // namespace kalvane
