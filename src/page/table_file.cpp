#include "page/table_file.h"

#include "numeric/assertion.h"
#include "platform/files.h"

namespace kalvane {
namespace {

constexpr const char* kByteOrderMark = "\xEF\xBB\xBF";
constexpr const char* kLineEnd = "\r\n";

void AppendLine(std::string& text, const FileTable::Line& line) {
    for (std::size_t i = 0; i < line.size(); ++i) text.append(i == 0 ? "" : "\t").append(line[i]);
    text += kLineEnd;
}

void AppendCell(std::string& text, const std::string& cell, TabPlace tabs) {
    if (tabs == TabPlace::BeforeEachCell) text += '\t';
    text += cell;
    if (tabs == TabPlace::BehindEachCell) text += '\t';
}

void AppendTable(std::string& text, const FileTable& table, TabPlace tabs) {
    AppendLine(text, {table.title});
    for (const FileTable::Line& line : table.above) AppendLine(text, line);
    for (const FileTable::Column& column : table.columns) AppendCell(text, column.heading, tabs);
    text += kLineEnd;
    for (const FileTable::Line& row : table.rows) {
        for (const std::string& cell : row) AppendCell(text, cell, tabs);
        text += kLineEnd;
    }
    for (const FileTable::Line& line : table.below) AppendLine(text, line);
}

/// Writes a line of text cells; an empty one is left out.
void WriteLine(Sheet& sheet, int row, const FileTable::Line& line) {
    int column = 0;
    for (const std::string& cell : line) {
        ++column;
        if (!cell.empty()) sheet.WriteText(row, column, cell);
    }
}

void WriteRow(Sheet& sheet, int row, const FileTable::Line& cells,
              const std::vector<FileTable::Column>& columns) {
    KALVANE_ASSERT(cells.size() <= columns.size());
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const int column = static_cast<int>(i) + 1;
        if (columns[i].isNumber) {
            sheet.WriteValue(row, column, cells[i]);
        } else {
            sheet.WriteText(row, column, cells[i]);
        }
    }
}

void FillSheet(Sheet& sheet, const FileTable& table) {
    const int columns = static_cast<int>(table.columns.size());
    sheet.MergeCentred(1, 1, 1, columns, table.title);
    int row = 1;
    for (const FileTable::Line& line : table.above) WriteLine(sheet, ++row, line);
    const int headings = ++row;
    for (int column = 1; column <= columns; ++column) {
        const FileTable::Column& each = table.columns[static_cast<std::size_t>(column) - 1];
        sheet.WriteText(headings, column, each.heading);
        if (each.width > 0) sheet.SetColumnWidth(column, each.width);
    }
    for (const FileTable::Line& line : table.rows) WriteRow(sheet, ++row, line, table.columns);
    sheet.DrawBorders(headings, 1, row, columns);
    for (const FileTable::Line& line : table.below) WriteLine(sheet, ++row, line);
    sheet.SetUpPage(headings);
}

}  // namespace

std::string TableText(const std::vector<FileTable>& tables, TabPlace tabs) {
    std::string text;
    for (const FileTable& table : tables) AppendTable(text, table, tabs);
    return text;
}

void SaveTableText(const std::vector<FileTable>& tables, TabPlace tabs, const std::filesystem::path& path) {
    WriteFileAtomically(path, kByteOrderMark + TableText(tables, tabs));
}

Workbook TableWorkbook(const std::vector<FileTable>& tables) {
    Workbook workbook;
    for (const FileTable& table : tables) FillSheet(workbook.AddSheet(), table);
    return workbook;
}

}  // namespace kalvane
