#pragma once

#include <filesystem>

#include "store/schema.h"

namespace kalvane {

inline constexpr const char* kMainStoreName = "cl.mdb";
inline constexpr const char* kStockStoreName = "CangKu.mdb";
inline constexpr const char* kUserStoreName = "user.mdb";
inline constexpr const char* kTemplateStoreName = "bak.mdb";

/// Makes each of the four store files that is missing in `folder`: the main store with the starter
/// library, the user store with its two users, the others empty. A file that is there is not touched. A
/// store comes into being under its name only when it is complete. Throws StoreError or FileError.
void CreateMissingStores(const std::filesystem::path& folder);

/// Makes one empty store file; `file` must not exist.
void CreateStore(const std::filesystem::path& file, StoreKind kind);

}  // namespace kalvane
