#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace kalvane {

/// The first columns of a sheet as texts. Rows and columns count from 1, so that cell A1 is (1, 1).
class SheetTexts {
  public:
    /// The number of the last row with a text; 0 for an empty sheet.
    int RowCount() const { return static_cast<int>(rows_.size()); }
    /// The text of a cell; empty for a blank one and for one beyond the sheet.
    const std::string& Cell(int row, int column) const;

    /// Rows below one without a text are kept as blank.
    void Set(int row, int column, std::string text);

  private:
    std::vector<std::vector<std::string>> rows_;
};

/// Reads the first `columns` columns of the first sheet of a workbook, .xls or .xlsx: what the file is shows
/// its content, not its name. Texts come as they stand, numbers in general form with at most 15 digits, of a
/// formula the value that was kept with it. Throws FileError for a file that cannot be read, is no workbook,
/// is protected by a password, or is larger than any sheet of formulas or prices.
SheetTexts ReadFirstSheet(const std::filesystem::path& path, int columns);

}  // namespace kalvane
