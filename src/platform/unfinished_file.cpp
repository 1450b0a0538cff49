#include "platform/unfinished_file.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <string>
#include <string_view>

#include "platform/descriptor.h"
#include "platform/files.h"

namespace kalvane {
namespace {

constexpr std::string_view kMark = ".tmp";
constexpr std::string_view kJournal = "-journal";

std::filesystem::path PassingName(std::filesystem::path name) {
    return name += std::string(kMark) + std::to_string(::getpid());
}

}  // namespace

bool IsUnfinishedName(const std::filesystem::path& file) {
    const std::string text = file.filename().string();
    std::string_view name = text;
    if (name.ends_with(kJournal)) name.remove_suffix(kJournal.size());
    const std::size_t mark = name.rfind(kMark);
    if (mark == std::string_view::npos || mark == 0) return false;
    const std::string_view number = name.substr(mark + kMark.size());
    return !number.empty() && number.find_first_not_of("0123456789") == std::string_view::npos;
}

UnfinishedFile::UnfinishedFile(std::filesystem::path name)
    : name_(std::move(name)), path_(PassingName(name_)) {
    Remove();
}

UnfinishedFile::~UnfinishedFile() {
    Remove();
}

void UnfinishedFile::Remove() const {
    std::filesystem::path journal = path_;
    journal += kJournal;
    ::unlink(path_.c_str());
    ::unlink(journal.c_str());
}

void UnfinishedFile::Finish() {
    {
        const Descriptor file(::open(path_.c_str(), O_RDONLY | O_CLOEXEC));
        if (file.Get() < 0 || ::fsync(file.Get()) != 0) FailOnFile(name_, "写入", errno);
    }
    if (::rename(path_.c_str(), name_.c_str()) != 0) FailOnFile(name_, "写入", errno);
    // The rename itself must survive a power cut; a folder that cannot be opened for it is no failure.
    const std::filesystem::path folder = name_.has_parent_path() ? name_.parent_path() : ".";
    const Descriptor directory(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (directory.Get() >= 0) ::fsync(directory.Get());
}

void UnfinishedFile::FinishUnlessTaken() {
    int failed = ::renameat2(AT_FDCWD, path_.c_str(), AT_FDCWD, name_.c_str(), RENAME_NOREPLACE);
    // Some file systems know no such rename.
    if (failed != 0 && errno == EINVAL && !FileExists(name_)) {
        failed = ::rename(path_.c_str(), name_.c_str());
    }
    if (failed != 0 && errno != EEXIST) FailOnFile(name_, "写入", errno);
}

}  // namespace kalvane
