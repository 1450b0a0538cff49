#pragma once

#include <string>

struct sqlite3;

namespace kalvane {

/// Text for the operator of the engine's last failure on `database`.
std::string EngineErrorText(sqlite3* database);

/// Throws the engine's last failure: StoreDamage for a damaged file, else StoreError. `before` begins its
/// text.
[[noreturn]] void ThrowEngineError(sqlite3* database, const std::string& before = {});

/// What the engine's checks of a file give for a sound one.
inline constexpr const char* kSoundStore = "ok";

/// "KLVN", kept in each store file.
inline constexpr int kApplicationId = 0x4B4C564E;

}  // namespace kalvane
