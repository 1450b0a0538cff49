#pragma once

#include <filesystem>
#include <span>

#include "platform/notice.h"
#include "store/schema.h"

namespace kalvane {

/// One statement list that brings a store of a kind from the version before to `version`. The statements are
/// the engine's own, with kalvane_date_or_text(x): a text that is a date (numeric/date.h) as its days,
/// everything else as it is.
struct MigrationStep {
    int version;
    StoreKind kind;
    const char* sql;
    /// Selects a text, naming the row, for each one that the step had to leave as it was; null where there
    /// can be none.
    const char* leftOver = nullptr;
};

/// The steps of this program, by rising version up to kSchemaVersion. A version without a step for a kind
/// changes nothing of it but the number.
std::span<const MigrationStep> Migrations();

/// Brings a store that an older program made to `newest`, in one transaction and, where there is a step for
/// it, after a dated copy. Rows that a step left as they were are named to the operator. A store of that
/// version or a newer one, one that cannot be written to, and a file that is no store of ours, is left as it
/// is. Throws StoreError or FileError; the store then is as it was.
void MigrateStore(const std::filesystem::path& file, StoreKind kind, Notice& notice,
                  std::span<const MigrationStep> steps = Migrations(), int newest = kSchemaVersion);

}  // namespace kalvane
