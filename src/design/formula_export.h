#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "store/connection.h"

namespace kalvane {

// All window types with their formula rows as one grid of four columns, which formula_import reads again: for
// each type its head (name and number of the drawing), and for each class that it has rows of, a line of
// headings and the rows. Blocks follow each other without a gap, in the order of the store.

inline constexpr std::size_t kGridColumns = 4;
using GridLine = std::array<std::string, kGridColumns>;

/// Begins the first cell of a type's head; the name follows.
inline constexpr const char* kTypeHead = "门窗名称：";

/// The whole grid. Throws StoreError.
std::vector<GridLine> FormulaGrid(Connection& connection);

/// Writes a grid to the first sheet of an .xlsx file. Numbers of drawings and of panels are number cells, all
/// else are texts, so that "2-1" and "=B" stay what they are. Throws FileError and leaves an older file as it
/// was.
void SaveFormulaGrid(const std::vector<GridLine>& grid, const std::filesystem::path& file);

}  // namespace kalvane
