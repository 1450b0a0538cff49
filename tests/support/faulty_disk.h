#pragma once

#include <sqlite3.h>

#include <fstream>
#include <iterator>
#include <map>
#include <string>

namespace kalvane::test {

/// Stands between the engine and the disk, and lets the n-th write, truncation, sync, deletion or opening of
/// a file fail. A failing write leaves half of its bytes behind. Syncs are not passed on, since the tests
/// would wait for the disk most of the time: what a power cut does to a folder whose changes were not flushed
/// is acted out by CutPower.
class FaultyDisk {
  public:
    enum class Mode {
        Once,    ///< one operation fails, the next works again
        Lasting  ///< that one and all after it fail, as on a full disk
    };

    FaultyDisk() {
        Current() = this;
        vfs_ = *real_;
        vfs_.zName = "faulty";
        vfs_.xOpen = &Open;
        vfs_.xDelete = &Delete;
        sqlite3_vfs_register(&vfs_, 1);
    }
    FaultyDisk(const FaultyDisk&) = delete;
    FaultyDisk& operator=(const FaultyDisk&) = delete;
    ~FaultyDisk() { sqlite3_vfs_unregister(&vfs_); }

    /// Counted from 1 from here on.
    void FailAt(int operation, Mode mode) {
        left_ = operation;
        mode_ = mode;
        hasFailed_ = false;
    }
    /// Brings back the files whose deletion was not flushed to their folder, as a power cut may.
    void CutPower() {
        for (const auto& [name, content] : unflushed_) std::ofstream(name, std::ios::binary) << content;
        unflushed_.clear();
    }
    /// Lets everything pass again; true when something has failed.
    bool Heal() {
        left_ = 0;
        return hasFailed_;
    }

  private:
    /// A real file's methods with ours among them, and the real ones.
    struct Methods : sqlite3_io_methods {
        const sqlite3_io_methods* real;
    };

    static FaultyDisk*& Current() {
        static FaultyDisk* current = nullptr;
        return current;
    }
    static const sqlite3_io_methods& Real(const sqlite3_file* file) {
        return *static_cast<const Methods*>(file->pMethods)->real;
    }

    static bool Fails() {
        FaultyDisk& disk = *Current();
        if (disk.left_ == 0 || (disk.left_ > 1 && --disk.left_ > 0)) return false;
        if (disk.mode_ == Mode::Once) disk.left_ = 0;
        disk.hasFailed_ = true;
        return true;
    }

    static int Open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags) {
        file->pMethods = nullptr;
        if (Fails()) return SQLITE_CANTOPEN;
        const int result = Current()->real_->xOpen(Current()->real_, name, file, flags, outFlags);
        if (result != SQLITE_OK) return result;
        static std::map<const sqlite3_io_methods*, Methods> all;
        Methods& ours = all[file->pMethods];
        ours = {*file->pMethods, file->pMethods};
        ours.iVersion = 1;  // no mapped memory, which would go past us
        ours.xWrite = &Write;
        ours.xTruncate = &Truncate;
        ours.xSync = &Sync;
        file->pMethods = &ours;
        return SQLITE_OK;
    }
    static int Delete(sqlite3_vfs*, const char* name, int isFlushed) {
        FaultyDisk& disk = *Current();
        if (isFlushed != 0) {
            disk.unflushed_.clear();
        } else {
            std::ifstream file(name, std::ios::binary);
            disk.unflushed_[name] = {std::istreambuf_iterator<char>(file), {}};
        }
        return Fails() ? SQLITE_IOERR_DELETE : Current()->real_->xDelete(Current()->real_, name, 0);
    }
    static int Write(sqlite3_file* file, const void* from, int count, sqlite3_int64 at) {
        if (!Fails()) return Real(file).xWrite(file, from, count, at);
        Real(file).xWrite(file, from, count / 2, at);
        return Current()->mode_ == Mode::Lasting ? SQLITE_FULL : SQLITE_IOERR_WRITE;
    }
    static int Truncate(sqlite3_file* file, sqlite3_int64 size) {
        return Fails() ? SQLITE_IOERR_TRUNCATE : Real(file).xTruncate(file, size);
    }
    static int Sync(sqlite3_file*, int) { return Fails() ? SQLITE_IOERR_FSYNC : SQLITE_OK; }

    sqlite3_vfs* real_ = sqlite3_vfs_find(nullptr);
    sqlite3_vfs vfs_ = {};
    int left_ = 0;  ///< operations until one fails; 0: none does
    Mode mode_ = Mode::Once;
    bool hasFailed_ = false;
    std::map<std::string, std::string> unflushed_;  ///< deleted files with what they held
};

}  // namespace kalvane::test
