#include "app/instance_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

#include "numeric/error.h"
#include "platform/files.h"

namespace kalvane {

InstanceLock::InstanceLock(const std::filesystem::path& folder)
    : file_(folder / (std::string(kOwnFilePrefix) + "lock")) {}

InstanceLock::~InstanceLock() {
    if (descriptor_ >= 0) ::close(descriptor_);
}

bool InstanceLock::Acquire() {
    if (descriptor_ >= 0) return true;
    // Closed on exec, so that a program started from here does not keep the folder locked.
    int descriptor = ::open(file_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    if (descriptor < 0 && (errno == EACCES || errno == EROFS)) {
        descriptor = ::open(file_.c_str(), O_RDONLY | O_CLOEXEC);
        if (descriptor < 0 && errno == ENOENT) return true;
    }
    if (descriptor < 0) {
        throw FileError("启动文件夹“" + file_.parent_path().string() + "”不能使用：" + SystemReason(errno) +
                        "。");
    }
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
        ::close(descriptor);
        return false;
    }
    descriptor_ = descriptor;
    return true;
}

}  // namespace kalvane
