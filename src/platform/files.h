#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace kalvane {

/// All bytes of a file; throws FileError when it cannot be read.
std::string ReadFile(const std::filesystem::path& path);

/// Throws FileError unless the path is a plain file (no folder, pipe or device, which might never end) of at
/// most `most` bytes.
void RequirePlainFile(const std::filesystem::path& path, std::uintmax_t most);

/// True when files can be made in a folder.
bool IsWritableFolder(const std::filesystem::path& folder);

/// What an error number of the operating system means, for the operator, without a full stop.
std::string SystemReason(int code);

/// Throws the FileError of a file on which an act ("写入", "改名") failed, for an error number of the
/// operating system.
[[noreturn]] void FailOnFile(const std::filesystem::path& path, std::string_view act, int code);

/// Replaces a file's content as one step: the bytes go to a file beside it, are flushed to the disk and
/// renamed into place. A failure throws FileError and leaves the old file as it was.
void WriteFileAtomically(const std::filesystem::path& path, std::string_view bytes);

}  // namespace kalvane
