#pragma once

#include <deque>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace kalvane {

/// One sheet of a workbook. Rows and columns count from 1, so that cell A1 is (1, 1).
class Sheet {
  public:
    /// A text cell, also when the text looks like a number or a formula.
    void WriteText(int row, int column, std::string text);

    /// A number cell when the whole text is a number, else a text cell, as when an operator types it.
    void WriteValue(int row, int column, std::string text);

    /// Makes one cell of a range, centred both ways, and writes a text to it. Ranges must not overlap.
    void MergeCentred(int firstRow, int firstColumn, int lastRow, int lastColumn, std::string text);

    /// Width in characters.
    void SetColumnWidth(int column, double width);

    /// Thin lines around every cell of a range, empty ones too; nothing when the range is empty.
    void DrawBorders(int firstRow, int firstColumn, int lastRow, int lastColumn);

    /// Sets the sheet up for A4 paper, as wide as one page, and for a table of which `headingRow` holds the
    /// headings: it is repeated on every page, and stays in view with the rows above it.
    void SetUpPage(int headingRow) { headingRow_ = headingRow; }

  private:
    friend class Workbook;

    struct Cell {
        std::string text;
        bool isNumber = false;
        bool hasBorder = false;
    };
    struct Merge {
        int firstRow, firstColumn, lastRow, lastColumn;
        std::string text;
    };

    std::map<std::pair<int, int>, Cell> cells_;  // by row, column
    std::vector<Merge> merges_;
    std::map<int, double> widths_;
    int headingRow_ = 0;  // 0 without page set-up
};

/// A spreadsheet in the making, kept in memory until it is saved as an .xlsx file.
class Workbook {
  public:
    /// Adds an empty sheet behind the others; the reference stays valid as long as the workbook.
    Sheet& AddSheet() { return sheets_.emplace_back(); }

    /// Writes the file as one step: a failure throws FileError and leaves an older file as it was.
    void Save(const std::filesystem::path& path) const;

  private:
    std::deque<Sheet> sheets_;
};

}  // namespace kalvane
