#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kalvane {

/// One row of a manual run, as typed: a length in mm and its pieces.
struct ManualRow {
    std::string length;
    std::string count;
};

/// Reads a .DDD file: a length and a count per round, each field ended by a line end or a comma. The rows
/// are added behind those in `rows`. Throws FileError when the file cannot be read or ends within a row;
/// the whole rows before are in `rows` then.
void ReadDemandFile(const std::filesystem::path& path, std::vector<ManualRow>& rows);

/// Writes a .DDD file as one step: two lines per row, length and count, each ended by carriage return and
/// line feed. Throws FileError and leaves an older file as it was.
void WriteDemandFile(const std::filesystem::path& path, const std::vector<ManualRow>& rows);

}  // namespace kalvane
