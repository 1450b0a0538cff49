#include "design/formula_export.h"

#include <unordered_map>

#include "design/formula_grid.h"
#include "platform/workbook.h"

namespace kalvane {
namespace {

/// The rows of one class, by the number of their window type.
using RowsByType = std::unordered_map<std::string, std::vector<GridLine>>;

RowsByType LoadRows(Connection& connection, MaterialClass materialClass) {
    const FormulaTable& table = FormulaTableOf(materialClass);
    RowsByType rows;
    Cursor row = connection.OpenCursor(std::string("Select * from ") + table.name);
    const int type = row.FieldIndex("窗号");
    std::array<int, kGridColumns> fields{};
    for (std::size_t i = 0; i < fields.size(); ++i) fields[i] = row.FieldIndex(table.columns[i]);
    for (; !row.Eof(); row.MoveNext()) {
        // A row without a type belongs to none.
        if (row.Field(type).IsNull()) continue;
        GridLine& line = rows[row.Field(type).Text()].emplace_back();
        for (std::size_t i = 0; i < fields.size(); ++i) line[i] = row.Field(fields[i]).TextOrEmpty();
    }
    return rows;
}

/// Columns of a line that hold numbers.
bool IsNumberColumn(bool isTypeHead, std::optional<MaterialClass> section, std::size_t column) {
    if (isTypeHead) return column == 1;
    return section && FormulaTableOf(*section).longest[column] == 0;
}

}  // namespace

std::vector<GridLine> FormulaGrid(Connection& connection) {
    std::array<RowsByType, kListClasses.size()> rows;
    for (const MaterialClass materialClass : kListClasses) {
        rows[static_cast<std::size_t>(materialClass)] = LoadRows(connection, materialClass);
    }
    std::vector<GridLine> grid;
    for (Cursor type = connection.OpenCursor("Select * from 门窗"); !type.Eof(); type.MoveNext()) {
        grid.push_back(
            {kTypeHead + type.Field("名称").TextOrEmpty(), type.Field("图号").TextOrEmpty(), "", ""});
        const std::string number = type.Field("编号").TextOrEmpty();
        for (const MaterialClass materialClass : kListClasses) {
            const RowsByType& ofClass = rows[static_cast<std::size_t>(materialClass)];
            const auto found = ofClass.find(number);
            if (found == ofClass.end()) continue;
            grid.push_back(GridHeadings(materialClass));
            grid.insert(grid.end(), found->second.begin(), found->second.end());
        }
    }
    return grid;
}

void SaveFormulaGrid(const std::vector<GridLine>& grid, const std::filesystem::path& file) {
    Workbook workbook;
    Sheet& sheet = workbook.AddSheet();
    std::optional<MaterialClass> section;
    int row = 0;
    for (const GridLine& line : grid) {
        ++row;
        const bool isTypeHead = IsTypeHead(line[0]);
        const std::optional<MaterialClass> heading = ClassOfHeading(line[0]);
        if (isTypeHead) section.reset();
        if (heading) section = heading;
        for (std::size_t i = 0; i < line.size(); ++i) {
            if (line[i].empty()) continue;
            const int column = static_cast<int>(i) + 1;
            if (!heading && IsNumberColumn(isTypeHead, section, i)) {
                sheet.WriteValue(row, column, line[i]);
            } else {
                sheet.WriteText(row, column, line[i]);
            }
        }
    }
    for (int column = 1; column <= static_cast<int>(kGridColumns); ++column) {
        sheet.SetColumnWidth(column, 24);
    }
    workbook.Save(file);
}

}  // namespace kalvane
