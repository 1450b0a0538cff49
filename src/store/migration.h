#pragma once

#include <filesystem>
#include <span>

#include "store/schema.h"

namespace kalvane {

/// One statement list that brings a store of a kind from the version before to `version`.
struct MigrationStep {
    int version;
    StoreKind kind;
    const char* sql;
};

/// The steps of this program, by rising version up to kSchemaVersion. A version without a step for a kind
/// changes nothing of it but the number.
std::span<const MigrationStep> Migrations();

/// Brings a store that an older program made to `newest`, in one transaction and after a dated copy. A store
/// of that version or a newer one, and a file that is no store of ours, is left as it is: opening it tells.
/// Throws StoreError or FileError; the store then is as it was.
void MigrateStore(const std::filesystem::path& file, StoreKind kind,
                  std::span<const MigrationStep> steps = Migrations(), int newest = kSchemaVersion);

}  // namespace kalvane
