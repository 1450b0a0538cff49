#pragma once

#include <sqlite3.h>

namespace kalvane::test {

/// Stands between the engine and the disk, and lets the n-th write, truncation, sync, deletion or opening of
/// a file fail. A failing write leaves half of its bytes behind. Syncs are not passed on: the tests outlive
/// no power cut, and would wait for the disk most of the time.
class FaultyDisk {
  public:
    enum class Mode {
        Once,    ///< one operation fails, the next works again
        Lasting  ///< that one and all after it fail, as on a full disk
    };

    FaultyDisk() {
        Current() = this;
        real_ = sqlite3_vfs_find(nullptr);
        vfs_ = *real_;
        vfs_.zName = "faulty";
        vfs_.szOsFile = static_cast<int>(sizeof(File)) + real_->szOsFile;
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
    /// Lets everything pass again; true when something has failed.
    bool Heal() {
        left_ = 0;
        return hasFailed_;
    }

  private:
    struct File {
        sqlite3_file base;
        sqlite3_file* Inner() { return reinterpret_cast<sqlite3_file*>(this + 1); }
    };

    static FaultyDisk*& Current() {
        static FaultyDisk* current = nullptr;
        return current;
    }
    static sqlite3_file* Inner(sqlite3_file* file) { return reinterpret_cast<File*>(file)->Inner(); }

    static bool Fails() {
        FaultyDisk& disk = *Current();
        if (disk.left_ == 0) return false;
        if (disk.left_ > 1) {
            --disk.left_;
            return false;
        }
        if (disk.mode_ == Mode::Once) disk.left_ = 0;
        disk.hasFailed_ = true;
        return true;
    }

    static int Open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags) {
        file->pMethods = nullptr;
        if (Fails()) return SQLITE_CANTOPEN;
        const int result = Current()->real_->xOpen(Current()->real_, name, Inner(file), flags, outFlags);
        if (result == SQLITE_OK) file->pMethods = &kMethods;
        return result;
    }
    static int Delete(sqlite3_vfs*, const char* name, int) {
        return Fails() ? SQLITE_IOERR_DELETE : Current()->real_->xDelete(Current()->real_, name, 0);
    }
    static int Close(sqlite3_file* file) { return Inner(file)->pMethods->xClose(Inner(file)); }
    static int Read(sqlite3_file* file, void* to, int count, sqlite3_int64 at) {
        return Inner(file)->pMethods->xRead(Inner(file), to, count, at);
    }
    static int Write(sqlite3_file* file, const void* from, int count, sqlite3_int64 at) {
        if (!Fails()) return Inner(file)->pMethods->xWrite(Inner(file), from, count, at);
        Inner(file)->pMethods->xWrite(Inner(file), from, count / 2, at);
        return Current()->mode_ == Mode::Lasting ? SQLITE_FULL : SQLITE_IOERR_WRITE;
    }
    static int Truncate(sqlite3_file* file, sqlite3_int64 size) {
        return Fails() ? SQLITE_IOERR_TRUNCATE : Inner(file)->pMethods->xTruncate(Inner(file), size);
    }
    static int Sync(sqlite3_file*, int) { return Fails() ? SQLITE_IOERR_FSYNC : SQLITE_OK; }
    static int FileSize(sqlite3_file* file, sqlite3_int64* size) {
        return Inner(file)->pMethods->xFileSize(Inner(file), size);
    }
    static int Lock(sqlite3_file* file, int level) {
        return Inner(file)->pMethods->xLock(Inner(file), level);
    }
    static int Unlock(sqlite3_file* file, int level) {
        return Inner(file)->pMethods->xUnlock(Inner(file), level);
    }
    static int CheckReservedLock(sqlite3_file* file, int* held) {
        return Inner(file)->pMethods->xCheckReservedLock(Inner(file), held);
    }
    static int FileControl(sqlite3_file* file, int operation, void* argument) {
        return Inner(file)->pMethods->xFileControl(Inner(file), operation, argument);
    }
    static int SectorSize(sqlite3_file* file) { return Inner(file)->pMethods->xSectorSize(Inner(file)); }
    static int Characteristics(sqlite3_file* file) {
        return Inner(file)->pMethods->xDeviceCharacteristics(Inner(file));
    }

    static constexpr sqlite3_io_methods kMethods = {1,
                                                    &Close,
                                                    &Read,
                                                    &Write,
                                                    &Truncate,
                                                    &Sync,
                                                    &FileSize,
                                                    &Lock,
                                                    &Unlock,
                                                    &CheckReservedLock,
                                                    &FileControl,
                                                    &SectorSize,
                                                    &Characteristics,
                                                    nullptr,
                                                    nullptr,
                                                    nullptr,
                                                    nullptr,
                                                    nullptr,
                                                    nullptr};

    sqlite3_vfs* real_ = nullptr;
    sqlite3_vfs vfs_ = {};
    int left_ = 0;  ///< operations until one fails; 0: none does
    Mode mode_ = Mode::Once;
    bool hasFailed_ = false;
};

}  // namespace kalvane::test
