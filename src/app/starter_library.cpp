#include "app/starter_library.h"

#include <string>
#include <string_view>
#include <vector>

#include "drawing/cpictire.h"
#include "drawing/mc_file.h"
#include "numeric/error.h"
#include "platform/code_page.h"
#include "platform/notice.h"
#include "store/command_scope.h"
#include "store/schema.h"
#include "store/starter_files.h"

namespace kalvane {
namespace {

/// Column of 图.tsv that names the drawing's file; the table has no such column.
constexpr std::string_view kFileColumn = "文件";
constexpr std::string_view kDrawingTable = "图";

std::vector<std::string_view> Split(std::string_view text, char separator) {
    std::vector<std::string_view> parts;
    for (;;) {
        const std::size_t end = text.find(separator);
        parts.push_back(text.substr(0, end));
        if (end == std::string_view::npos) return parts;
        text.remove_prefix(end + 1);
    }
}

/// A drawing of the library has at most 361 items of a kind, or the library is wrong.
class RefusingNotice : public Notice {
  public:
    void Show(const std::string& text, const std::string&, NoticeIcon) override { throw FileError(text); }
};

void SaveDrawing(Connection& main, std::string_view number, std::string_view file) {
    RefusingNotice notice;
    CPictire picture(notice);
    ReadMcText(DecodeFileText(StarterContent("drawings/" + std::string(file))), picture);
    picture.SaveFileEx(main, number, "");
}

bool IsTextColumn(const Column& column) {
    return column.type == ColumnType::Text || column.type == ColumnType::Memo ||
           column.type == ColumnType::DateTime;
}

/// One line of a table's file: a cell for each heading, empty for Null.
void InsertLine(Connection& main, const Table& table, const std::vector<std::string_view>& headings,
                const std::vector<std::string_view>& cells) {
    if (cells.size() != headings.size()) throw FileError("单元格的个数与列数不符");
    std::string columns;
    std::string values;
    std::string_view drawingFile;
    for (std::size_t i = 0; i < headings.size(); ++i) {
        if (table.name == kDrawingTable && headings[i] == kFileColumn) {
            drawingFile = cells[i];
            continue;
        }
        const Column* column = FindColumn(table, headings[i]);
        if (column == nullptr) throw FileError("没有列“" + std::string(headings[i]) + "”");
        const std::string_view quote = IsTextColumn(*column) ? "'" : "";
        columns += (columns.empty() ? "" : ",") + std::string(headings[i]);
        values += values.empty() ? "" : ",";
        values += cells[i].empty() ? "Null" : std::string(quote).append(cells[i]).append(quote);
    }
    main.Execute("Insert into " + std::string(table.name) + " (" + columns + ") values(" + values + ")");
    if (!drawingFile.empty()) SaveDrawing(main, cells[0], drawingFile);
}

void FillTable(Connection& main, const Table& table, std::string_view content) {
    std::vector<std::string_view> lines = Split(content, '\n');
    if (lines.back().empty()) lines.pop_back();
    const std::vector<std::string_view> headings = Split(lines.front(), '\t');
    for (std::size_t line = 1; line < lines.size(); ++line) {
        try {
            InsertLine(main, table, headings, Split(lines[line], '\t'));
        } catch (const Error& failure) {
            throw FileError("入门资料“" + std::string(table.name) + ".tsv”第 " + std::to_string(line + 1) +
                            " 行：" + failure.what());
        }
    }
}

}  // namespace

void FillFromStarterLibrary(Connection& main) {
    InCommand(main, [&] {
        for (const Table& table : TablesOf(StoreKind::Main)) {
            for (const StarterFile& file : StarterFiles()) {
                if (file.name == std::string(table.name) + ".tsv") FillTable(main, table, file.content);
            }
        }
    });
}

}  // namespace kalvane
