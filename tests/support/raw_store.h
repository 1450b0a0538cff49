#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <filesystem>
#include <string>

namespace kalvane::test {

/// Runs statements of the engine's own language on a store file, past everything of ours; makes the file.
inline void RunRaw(const std::filesystem::path& file, const std::string& sql) {
    sqlite3* database = nullptr;
    sqlite3_open(file.c_str(), &database);
    char* failure = nullptr;
    sqlite3_exec(database, sql.c_str(), nullptr, nullptr, &failure);
    EXPECT_EQ(failure, nullptr) << failure;
    sqlite3_free(failure);
    sqlite3_close(database);
}

}  // namespace kalvane::test
