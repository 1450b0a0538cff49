#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace kalvane {

/// True when something has that name. False also when that cannot be found out: for want of rights, or since
/// links lead in a circle.
bool FileExists(const std::filesystem::path& path);

/// All bytes of a file; throws FileError when it cannot be read.
std::string ReadFile(const std::filesystem::path& path);

/// The names of what the program keeps for itself beside the stores (locks, marks of a run) begin so.
inline constexpr const char* kOwnFilePrefix = ".kalvane.";

/// Beyond this no file of ours grows that an operator does not choose: settings, help, unsaved work.
inline constexpr std::uintmax_t kLargestOwnFile = 16 * 1024 * 1024;

/// The bytes of a plain file of at most `most` bytes; throws FileError as RequirePlainFile and ReadFile do.
std::string ReadPlainFile(const std::filesystem::path& path, std::uintmax_t most = kLargestOwnFile);

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
