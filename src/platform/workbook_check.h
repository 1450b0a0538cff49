#pragma once

#include <filesystem>

namespace kalvane {

/// Throws FileError unless a .xlsx file that has just been written is whole: the writer does not notice a
/// disk that is full, and leaves a part that ends in the middle. Every part must be there with its checksum,
/// and every XML part must be well-formed to its end.
void RequireWholeWorkbook(const std::filesystem::path& file);

}  // namespace kalvane
