#pragma once

#include <unistd.h>

#include <filesystem>
#include <string>

#include "store/connection.h"
#include "store/store_files.h"

namespace kalvane::bench {

/// An empty store in the working folder, so that it lies on the disk that is measured. Removed at the
/// end.
struct ScratchStore {
    explicit ScratchStore(StoreKind storeKind = StoreKind::Main) : kind(storeKind) {}
    ScratchStore(const ScratchStore&) = delete;
    ScratchStore& operator=(const ScratchStore&) = delete;
    ~ScratchStore() { std::filesystem::remove(file); }

    static std::filesystem::path Create(StoreKind kind) {
        std::filesystem::path path = "bench-" + std::to_string(::getpid()) + ".mdb";
        std::filesystem::remove(path);
        CreateStore(path, kind);
        return path;
    }

    StoreKind kind;
    std::filesystem::path file = Create(kind);
    Connection connection{file, kind};
};

}  // namespace kalvane::bench
