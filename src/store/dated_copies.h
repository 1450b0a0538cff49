#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace kalvane {

// Dated copies of a store, kept in the folder 副本 beside it: one from each day on which the program ran, and
// one from before each change that could go wrong. A copy is made only of a store that passes its check. Of
// either kind the newest five stay, and of the daily ones the newest of each of the last eight weeks too.
//
// Copies are numbered in the order in which they are made, which a wrong clock cannot change. One whose time
// is later than now was made with a wrong clock, or the clock is wrong now: it counts as older than the rest.

using CopyTime = std::chrono::system_clock::time_point;

inline constexpr std::size_t kCopiesKept = 5;
inline constexpr int kWeeksKept = 8;

/// Keeps a copy of a store as it is now, from before a change, and returns it. Throws StoreDamage when the
/// store is damaged (no other copy is dropped then), StoreError or FileError.
std::filesystem::path KeepCopy(const std::filesystem::path& store,
                               CopyTime now = std::chrono::system_clock::now());

/// Keeps the copy of a day, unless there is one. Once a week the store is looked through in full for it.
/// Throws as KeepCopy does.
void KeepDailyCopy(const std::filesystem::path& store, CopyTime now = std::chrono::system_clock::now());

/// The copies of a store, newest first.
std::vector<std::filesystem::path> CopiesOf(const std::filesystem::path& store,
                                            CopyTime now = std::chrono::system_clock::now());

/// True for a folder that holds copies.
bool IsCopyFolder(const std::filesystem::path& folder);

/// True for a store that is missing although there are copies of it.
bool IsLost(const std::filesystem::path& store);

/// When a copy was made, for the operator: "2025-11-25 10:15:30", with a remark when that is later than now.
std::string TimeOfCopy(const std::filesystem::path& copy, CopyTime now = std::chrono::system_clock::now());

/// Puts a copy in the place of a damaged or missing store, which no connection may have open. A damaged file
/// stays in the folder of the copies, under a name with 损坏. Throws StoreError or FileError; the damaged
/// file then still stands.
void ReplaceByCopy(const std::filesystem::path& store, const std::filesystem::path& copy);

/// Removes what killed programs left of unfinished files: beside the stores of a folder, and in the folder of
/// their copies. Call it while the folder is locked against other programs.
void RemoveUnfinishedFiles(const std::filesystem::path& folder);

}  // namespace kalvane
