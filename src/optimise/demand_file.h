#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace kalvane {

/// One row of a manual run, as typed: a length in mm and its pieces.
struct ManualRow {
    std::string length;
    std::string count;
};

/// True for digits with at most one point among them, which is all that a row is typed with.
bool IsPlainNumber(std::string_view text);

/// Reads a .DDD file: a length and a count per round, each field ended by a line end or a comma. The rows
/// are added behind those in `rows`. Throws FileError when the file cannot be read, ends within a row or
/// has rows that are no plain numbers; the whole, good rows are in `rows` then.
void ReadDemandFile(const std::filesystem::path& path, std::vector<ManualRow>& rows);

/// Writes a .DDD file as one step: two lines per row, length and count, each ended by carriage return and
/// line feed. Throws FileError and leaves an older file as it was.
void WriteDemandFile(const std::filesystem::path& path, const std::vector<ManualRow>& rows);

}  // namespace kalvane
