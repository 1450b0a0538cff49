#pragma once

#include <filesystem>

#include "store/schema.h"

namespace kalvane {

inline constexpr const char* kMainStoreName = "cl.mdb";
inline constexpr const char* kStockStoreName = "CangKu.mdb";
inline constexpr const char* kUserStoreName = "user.mdb";
inline constexpr const char* kOwnStoreName = "kalvane.mdb";
inline constexpr const char* kTemplateStoreName = "bak.mdb";

/// Makes one empty store file; `file` must not exist.
void CreateStore(const std::filesystem::path& file, StoreKind kind);

}  // namespace kalvane
