#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/workbook.h"

namespace kalvane {

/// A table that is written to a file: as text for any editor, or as a sheet of a workbook.
struct FileTable {
    /// A line of cells. One that is shorter than the columns leaves the others empty.
    using Line = std::vector<std::string>;

    struct Column {
        std::string heading;
        bool isNumber = false;  ///< a sheet takes a text that is a number as a whole for one
        double width = 0;       ///< in characters, on a sheet; 0 for the usual width
    };

    std::string title;
    std::vector<Line> above;  ///< between the title and the headings
    std::vector<Column> columns;
    std::vector<Line> rows;
    std::vector<Line> below;  ///< behind the rows
};

/// Where the headings and the rows of a text have their tabs. The cells of the other lines have one between
/// them.
enum class TabPlace { BeforeEachCell, BehindEachCell };

/// The tables one below the other: for each its title, the lines above, the headings, the rows and the lines
/// below, each line ended by carriage return and line feed.
std::string TableText(const std::vector<FileTable>& tables, TabPlace tabs);

/// Writes TableText as one step, in UTF-8 with a byte order mark, by which the text editors and spreadsheets
/// of any desktop show the Chinese texts. Throws FileError and leaves an older file as it was.
void SaveTableText(const std::vector<FileTable>& tables, TabPlace tabs, const std::filesystem::path& path);

/// A sheet for each table, ready to be printed: the title in the first row, centred over all columns, the
/// lines above from the second row on, then headings and rows in thin lines, and the lines below.
Workbook TableWorkbook(const std::vector<FileTable>& tables);

}  // namespace kalvane
