#include "platform/files.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <fstream>
#include <iterator>

#include "numeric/error.h"
#include "platform/descriptor.h"
#include "platform/unfinished_file.h"

namespace kalvane {
namespace {

void WriteAll(int descriptor, std::string_view bytes, const std::filesystem::path& path) {
    while (!bytes.empty()) {
        const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
        if (written < 0) {
            if (errno == EINTR) continue;
            FailOnFile(path, "写入", errno);
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

}  // namespace

bool FileExists(const std::filesystem::path& path) {
    std::error_code failure;
    return std::filesystem::exists(path, failure);
}

std::string ReadPlainFile(const std::filesystem::path& path, std::uintmax_t most) {
    RequirePlainFile(path, most);
    return ReadFile(path);
}

std::string ReadFile(const std::filesystem::path& path) {
    std::ifstream stream(path, std::ios::binary);
    std::error_code failure;
    if (!stream || std::filesystem::is_directory(path, failure)) {
        throw FileError("文件“" + path.string() + "”不能打开。");
    }
    std::string bytes{std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    if (stream.bad()) throw FileError("文件“" + path.string() + "”不能读取。");
    return bytes;
}

void RequirePlainFile(const std::filesystem::path& path, std::uintmax_t most) {
    std::error_code failure;
    if (!std::filesystem::is_regular_file(path, failure)) {
        throw FileError("文件“" + path.string() + "”不能打开。");
    }
    if (std::filesystem::file_size(path, failure) > most || failure) {
        throw FileError("文件“" + path.string() + "”太大，不能打开。");
    }
}

void FailOnFile(const std::filesystem::path& path, std::string_view act, int code) {
    throw FileError("文件“" + path.string() + "”不能" + std::string(act) + "：" + SystemReason(code) + "。");
}

bool IsWritableFolder(const std::filesystem::path& folder) {
    return ::faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

std::string SystemReason(int code) {
    switch (code) {
        case ENOSPC:
            return "磁盘已满";
        case EACCES:
        case EPERM:
            return "没有权限";
        case EROFS:
            return "磁盘是只读的";
        case ENOENT:
        case ENOTDIR:
            return "文件夹不存在";
        case EISDIR:
            return "同名的是文件夹";
        case EIO:
            return "磁盘读写失败";
        case EDQUOT:
            return "磁盘配额已用完";
        case EFBIG:
            return "文件太大";
        case ENAMETOOLONG:
            return "名称太长";
        case ELOOP:
            return "链接循环";
        case EBUSY:
        case ETXTBSY:
            return "文件正被使用";
        case EMFILE:
        case ENFILE:
            return "打开的文件太多";
        case EINVAL:
            return "磁盘不支持这个操作";
        default:
            return "系统错误 " + std::to_string(code);
    }
}

void WriteFileAtomically(const std::filesystem::path& path, std::string_view bytes) {
    UnfinishedFile beside(path);
    {
        const Descriptor file(::open(beside.Path().c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666));
        if (file.Get() < 0) FailOnFile(path, "写入", errno);
        WriteAll(file.Get(), bytes, path);
    }
    beside.Finish();
}

}  // namespace kalvane
