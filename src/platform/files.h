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

/// Replaces a file's content as one step: the bytes go to a file beside it, are flushed to the disk and
/// renamed into place. A failure throws FileError and leaves the old file as it was.
void WriteFileAtomically(const std::filesystem::path& path, std::string_view bytes);

/// Gives a finished file its name as one step, in place of a file that had it, and brings that to the disk.
/// Throws FileError; the finished file is removed then, and the other stays as it was.
void RenameIntoPlace(const std::filesystem::path& finished, const std::filesystem::path& name);

/// Gives a finished file its name unless that name is taken by now; then the file is removed, and the one
/// that has the name stays as it is. Throws FileError.
void RenameUnlessTaken(const std::filesystem::path& finished, const std::filesystem::path& name);

}  // namespace kalvane
