#pragma once

#include <filesystem>

#include "store/schema.h"

namespace kalvane {

inline constexpr const char* kMainStoreName = "cl.mdb";
inline constexpr const char* kStockStoreName = "CangKu.mdb";
inline constexpr const char* kUserStoreName = "user.mdb";
inline constexpr const char* kOwnStoreName = "kalvane.mdb";
inline constexpr const char* kTemplateStoreName = "bak.mdb";

/// Takes the rights to a file from everyone but its owner, where this program may; for the store with the
/// passwords.
void KeepToOwner(const std::filesystem::path& file);

/// Makes one empty store file; `file` must not exist. That of the users is its owner's alone.
void CreateStore(const std::filesystem::path& file, StoreKind kind);

}  // namespace kalvane
