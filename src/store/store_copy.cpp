#include "store/store_copy.h"

#include <sqlite3.h>

#include <string>
#include <string_view>

#include "numeric/error.h"
#include "platform/unfinished_file.h"
#include "store/engine_error.h"

namespace kalvane {
namespace {

constexpr int kBusyMilliseconds = 3000;

/// A store file opened at the level of the engine.
class RawStore {
  public:
    RawStore(const std::filesystem::path& file, int access) {
        const std::string name = "“" + file.filename().string() + "”：";
        if (sqlite3_open_v2(file.c_str(), &handle_, access, nullptr) != SQLITE_OK) {
            const std::string text = name + EngineErrorText(handle_);
            sqlite3_close(handle_);
            throw StoreError(text);
        }
        sqlite3_busy_timeout(handle_, kBusyMilliseconds);
    }
    RawStore(const RawStore&) = delete;
    RawStore& operator=(const RawStore&) = delete;
    ~RawStore() { sqlite3_close(handle_); }

    sqlite3* Get() const { return handle_; }

  private:
    sqlite3* handle_ = nullptr;
};

/// All pages as one transaction of the target.
void CopyPages(const RawStore& source, const RawStore& target) {
    sqlite3_exec(target.Get(), "PRAGMA synchronous = EXTRA", nullptr, nullptr, nullptr);
    sqlite3_backup* copying = sqlite3_backup_init(target.Get(), "main", source.Get(), "main");
    if (copying == nullptr) ThrowEngineError(target.Get());
    sqlite3_backup_step(copying, -1);
    if (sqlite3_backup_finish(copying) != SQLITE_OK) ThrowEngineError(target.Get());
}

void RequireSound(const RawStore& copy, CopyCheck check, const std::filesystem::path& source) {
    if (check == CopyCheck::None) return;
    const char* pragma = check == CopyCheck::Full ? "PRAGMA integrity_check(1)" : "PRAGMA quick_check(1)";
    sqlite3_stmt* statement = nullptr;
    const bool isSound =
        sqlite3_prepare_v2(copy.Get(), pragma, -1, &statement, nullptr) == SQLITE_OK &&
        sqlite3_step(statement) == SQLITE_ROW &&
        std::string_view(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0))) == kSoundStore;
    sqlite3_finalize(statement);
    if (!isSound) throw StoreDamage("数据库文件“" + source.filename().string() + "”已损坏。");
}

/// Gives a file the rights of another.
void CopyRights(const std::filesystem::path& from, const std::filesystem::path& to) {
    std::error_code ignored;  // the copy then has the rights of any new file
    std::filesystem::permissions(to, std::filesystem::status(from, ignored).permissions(), ignored);
}

}  // namespace

void CopyStore(const std::filesystem::path& source, const std::filesystem::path& target, CopyCheck check) {
    UnfinishedFile copy(target);
    {
        const RawStore from(source, SQLITE_OPEN_READWRITE);
        const RawStore to(copy.Path(), SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
        CopyRights(source, copy.Path());
        CopyPages(from, to);
        RequireSound(to, check, source);
    }
    copy.Finish();
}

void ReplaceContent(const std::filesystem::path& target, const std::filesystem::path& source) {
    const RawStore from(source, SQLITE_OPEN_READONLY);
    const RawStore to(target, SQLITE_OPEN_READWRITE);
    CopyPages(from, to);
}

}  // namespace kalvane
