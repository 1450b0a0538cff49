#pragma once

#include <filesystem>
#include <optional>

#include "app/instance_lock.h"
#include "store/connection.h"

namespace kalvane {

/// A store of a folder, locked against a desktop program that would write at the same time. Stores that are
/// missing are made.
class LockedStore {
  public:
    /// `kind` is Main or Stock. Throws StoreError or FileError.
    LockedStore(const std::filesystem::path& folder, StoreKind kind);
    Connection& Get() { return *connection_; }

  private:
    InstanceLock lock_;
    std::optional<Connection> connection_;
};

}  // namespace kalvane
