#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kalvane {

// Dated copies of a store, kept in the folder 副本 beside it: one from each day on which the program was
// started, and one from before each change that could go wrong. The newest five of a store stay.

inline constexpr std::size_t kCopiesKept = 5;

/// Keeps a copy of a store as it is now, and returns it. Throws StoreError or FileError.
std::filesystem::path KeepCopy(const std::filesystem::path& store);

/// As KeepCopy, unless there is a copy of today.
void KeepDailyCopy(const std::filesystem::path& store);

/// The copies of a store, newest first.
std::vector<std::filesystem::path> CopiesOf(const std::filesystem::path& store);

/// True for a store that is missing although there are copies of it.
bool IsLost(const std::filesystem::path& store);

/// When a copy was made, for the operator: "2025-11-25 10:15:30".
std::string TimeOfCopy(const std::filesystem::path& copy);

/// Puts a copy in the place of a damaged or missing store, which no connection may have open. A damaged file
/// stays in the folder of the copies, under a name with 损坏. Throws StoreError or FileError; the damaged
/// file then still stands.
void ReplaceByCopy(const std::filesystem::path& store, const std::filesystem::path& copy);

}  // namespace kalvane
