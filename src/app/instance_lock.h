#pragma once

#include <filesystem>

namespace kalvane {

/// Keeps a second program from working on the stores of one start-up folder. The lock is the kernel's, so
/// it ends with the process however that ends; the empty lock file stays in the folder and means nothing by
/// itself.
class InstanceLock {
  public:
    explicit InstanceLock(const std::filesystem::path& folder);
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;
    ~InstanceLock();

    /// False when another program (or another lock object) holds the folder. A folder in which the lock file
    /// cannot be made for want of rights needs none: this program cannot change its stores. Throws FileError
    /// when the folder cannot be used at all.
    bool Acquire();

  private:
    std::filesystem::path file_;
    int descriptor_ = -1;
};

}  // namespace kalvane
