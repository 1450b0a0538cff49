#include "platform/workbook.h"

#include <xlsxwriter.h>

#include <cerrno>
#include <cstdint>

#include "numeric/error.h"
#include "numeric/number.h"
#include "platform/files.h"
#include "platform/unfinished_file.h"
#include "platform/workbook_check.h"

namespace kalvane {
namespace {

/// The library's reason is English: the disk is by far the likeliest.
void Check(lxw_error result) {
    if (result == LXW_NO_ERROR) return;
    throw FileError("电子表格不能写入：磁盘已满，或者文件夹不能写入。");
}

constexpr std::uint8_t kA4 = 9;  // the format's number of the paper size

lxw_row_t RowIndex(int row) {
    return static_cast<lxw_row_t>(row - 1);
}
lxw_col_t ColumnIndex(int column) {
    return static_cast<lxw_col_t>(column - 1);
}

}  // namespace

void Sheet::WriteText(int row, int column, std::string text) {
    Cell& cell = cells_[{row, column}];
    cell.text = std::move(text);
    cell.isNumber = false;
}

void Sheet::WriteValue(int row, int column, std::string text) {
    Cell& cell = cells_[{row, column}];
    cell.isNumber = IsNumeric(text);
    cell.text = std::move(text);
}

void Sheet::MergeCentred(int firstRow, int firstColumn, int lastRow, int lastColumn, std::string text) {
    merges_.push_back({firstRow, firstColumn, lastRow, lastColumn, std::move(text)});
}

void Sheet::SetColumnWidth(int column, double width) {
    widths_[column] = width;
}

void Sheet::DrawBorders(int firstRow, int firstColumn, int lastRow, int lastColumn) {
    for (int row = firstRow; row <= lastRow; ++row) {
        for (int column = firstColumn; column <= lastColumn; ++column) {
            cells_[{row, column}].hasBorder = true;
        }
    }
}

void Workbook::Save(const std::filesystem::path& path) const {
    // The parts are written beside the file, too: what fits there when they are zipped fits there unzipped or
    // is noticed, whatever the folder for temporary files has room for.
    const std::filesystem::path folder = path.has_parent_path() ? path.parent_path() : ".";
    if (!IsWritableFolder(folder)) FailOnFile(path, "写入", errno);
    UnfinishedFile file(path);
    std::string parts = folder.string();
    lxw_workbook_options options = {};
    options.tmpdir = parts.data();
    lxw_workbook* book = workbook_new_opt(file.Path().c_str(), &options);
    if (book == nullptr) throw FileError("电子表格不能写入。");
    lxw_format* centred = workbook_add_format(book);
    format_set_align(centred, LXW_ALIGN_CENTER);
    format_set_align(centred, LXW_ALIGN_VERTICAL_CENTER);
    lxw_format* bordered = workbook_add_format(book);
    format_set_border(bordered, LXW_BORDER_THIN);
    lxw_error failure = LXW_NO_ERROR;
    const auto note = [&failure](lxw_error result) {
        if (failure == LXW_NO_ERROR) failure = result;
    };

    for (const Sheet& sheet : sheets_) {
        lxw_worksheet* target = workbook_add_worksheet(book, nullptr);
        for (const auto& [column, width] : sheet.widths_) {
            note(worksheet_set_column(target, ColumnIndex(column), ColumnIndex(column), width, nullptr));
        }
        if (sheet.headingRow_ > 0) {
            const lxw_row_t heading = RowIndex(sheet.headingRow_);
            worksheet_set_paper(target, kA4);
            worksheet_fit_to_pages(target, 1, 0);
            note(worksheet_repeat_rows(target, heading, heading));
            worksheet_freeze_panes(target, heading + 1, 0);
        }
        for (const Sheet::Merge& merge : sheet.merges_) {
            if (merge.firstRow == merge.lastRow && merge.firstColumn == merge.lastColumn) {
                // The library refuses to merge a single cell.
                note(worksheet_write_string(target, RowIndex(merge.firstRow), ColumnIndex(merge.firstColumn),
                                            merge.text.c_str(), centred));
                continue;
            }
            note(worksheet_merge_range(target, RowIndex(merge.firstRow), ColumnIndex(merge.firstColumn),
                                       RowIndex(merge.lastRow), ColumnIndex(merge.lastColumn),
                                       merge.text.c_str(), centred));
        }
        for (const auto& [place, cell] : sheet.cells_) {
            const lxw_row_t row = RowIndex(place.first);
            const lxw_col_t column = ColumnIndex(place.second);
            lxw_format* format = cell.hasBorder ? bordered : nullptr;
            if (cell.isNumber) {
                note(worksheet_write_number(target, row, column, ParseNumber(cell.text), format));
            } else if (cell.text.empty()) {
                note(worksheet_write_blank(target, row, column, format));
            } else {
                note(worksheet_write_string(target, row, column, cell.text.c_str(), format));
            }
        }
    }
    // Closing releases the library's memory, also after a failure.
    const lxw_error closed = workbook_close(book);
    Check(failure);
    Check(closed);
    RequireWholeWorkbook(file.Path());
    file.Finish();
}

}  // namespace kalvane
