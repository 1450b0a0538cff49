#include "platform/sheet_reader.h"

#include <fstream>

#include "numeric/assertion.h"
#include "platform/files.h"
#include "platform/xls_sheet.h"
#include "platform/xlsx_sheet.h"

namespace kalvane {
namespace {

constexpr std::uintmax_t kLargestFile = 100'000'000;

}  // namespace

const std::string& SheetTexts::Cell(int row, int column) const {
    static const std::string blank;
    KALVANE_ASSERT(row >= 1 && column >= 1);
    if (row > RowCount()) return blank;
    const std::vector<std::string>& cells = rows_[static_cast<std::size_t>(row) - 1];
    const auto index = static_cast<std::size_t>(column) - 1;
    return index < cells.size() ? cells[index] : blank;
}

void SheetTexts::Set(int row, int column, std::string text) {
    KALVANE_ASSERT(row >= 1 && column >= 1);
    if (row > RowCount()) rows_.resize(static_cast<std::size_t>(row));
    std::vector<std::string>& cells = rows_[static_cast<std::size_t>(row) - 1];
    if (static_cast<std::size_t>(column) > cells.size()) cells.resize(static_cast<std::size_t>(column));
    cells[static_cast<std::size_t>(column) - 1] = std::move(text);
}

SheetTexts ReadFirstSheet(const std::filesystem::path& path, int columns) {
    RequirePlainFile(path, kLargestFile);
    char start[2] = {};
    std::ifstream(path, std::ios::binary).read(start, sizeof start);
    const bool isArchive = start[0] == 'P' && start[1] == 'K';
    return isArchive ? ReadXlsxSheet(path, columns) : ReadXlsSheet(path, columns);
}

}  // namespace kalvane
