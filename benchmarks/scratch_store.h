#pragma once

#include <unistd.h>

#include <filesystem>
#include <string>

#include "store/connection.h"
#include "store/store_files.h"

namespace kalvane::bench {

/// An empty main store in the working folder, so that it lies on the disk that is measured. Removed at the
/// end.
struct ScratchStore {
    ScratchStore() = default;
    ScratchStore(const ScratchStore&) = delete;
    ScratchStore& operator=(const ScratchStore&) = delete;
    ~ScratchStore() { std::filesystem::remove(file); }

    static std::filesystem::path Create() {
        std::filesystem::path path = "bench-" + std::to_string(::getpid()) + ".mdb";
        std::filesystem::remove(path);
        CreateStore(path, StoreKind::Main);
        return path;
    }

    std::filesystem::path file = Create();
    Connection connection{file, StoreKind::Main};
};

}  // namespace kalvane::bench
