#include "catalogue/material_sheet.h"

#include <algorithm>
#include <map>

#include "numeric/error.h"
#include "numeric/number.h"
#include "numeric/text.h"
#include "store/command_scope.h"

namespace kalvane {
namespace {

constexpr int kHeadingRows = 10;  ///< among which the headings are looked for

std::vector<std::vector<std::string>> VisibleTexts(const CatalogueClass& materialClass,
                                                   const std::vector<MaterialTexts>& materials) {
    std::vector<std::vector<std::string>> rows;
    const auto count = static_cast<std::ptrdiff_t>(materialClass.columns.size());
    for (const MaterialTexts& material : materials) {
        rows.emplace_back(material.begin(), material.begin() + count);
    }
    return rows;
}

/// Where the columns of a class stand on a sheet.
struct SheetLayout {
    int headingRow = 0;
    std::vector<int> columns;
};

int ColumnWith(const SheetTexts& sheet, int row, std::string_view heading) {
    for (int column = 1; column <= kMaterialSheetColumns; ++column) {
        if (Trim(sheet.Cell(row, column)) == heading) return column;
    }
    return 0;
}

SheetLayout FindLayout(const CatalogueClass& materialClass, const SheetTexts& sheet) {
    SheetLayout layout;
    const std::string first = materialClass.columns.front().heading;
    for (int row = 1; row <= kHeadingRows && layout.headingRow == 0; ++row) {
        if (ColumnWith(sheet, row, first) > 0) layout.headingRow = row;
    }
    if (layout.headingRow == 0) {
        throw FileError("表的前 " + std::to_string(kHeadingRows) + " 行里没有“" + first +
                        "”这一列，不能导入" + materialClass.name + "。");
    }
    for (const MaterialColumn& column : materialClass.columns) {
        const int found = ColumnWith(sheet, layout.headingRow, column.heading);
        if (found == 0) throw FileError(std::string("表里没有“") + column.heading + "”这一列，不能导入。");
        layout.columns.push_back(found);
    }
    return layout;
}

/// Why the store would refuse a text in a column, or the screen; empty when neither would.
std::string Refusal(const CatalogueClass& materialClass, const MaterialColumn& column,
                    const std::string& text) {
    if (text.empty()) return "是空的";
    const Column& stored = *FindColumn(*FindTable(materialClass.table), column.name);
    if (!column.isText) return IsNumeric(text) ? std::string() : "“" + text + "”不是数字";
    if (text.find('\'') != std::string::npos) return "含有单引号“'”";
    if (CharCount(text) > static_cast<std::size_t>(stored.width)) {
        return "超过 " + std::to_string(stored.width) + " 个字符";
    }
    return {};
}

/// What tells materials of a node apart.
std::string KeyOf(const CatalogueClass& materialClass, const MaterialTexts& texts) {
    return texts.front() + "\n" + texts[materialClass.code];
}

bool IsSame(const CatalogueClass& materialClass, const MaterialTexts& a, const MaterialTexts& b) {
    return std::equal(a.begin(), a.begin() + static_cast<std::ptrdiff_t>(materialClass.columns.size()),
                      b.begin());
}

}  // namespace

FileTable MaterialTable(const CatalogueClass& materialClass, const std::string& title,
                        const std::vector<MaterialTexts>& materials) {
    FileTable table;
    table.title = title;
    for (const MaterialColumn& column : materialClass.columns) {
        table.columns.push_back({column.heading, !column.isText, 14});
    }
    table.rows = VisibleTexts(materialClass, materials);
    return table;
}

Report MaterialReport(const CatalogueClass& materialClass, const std::string& title,
                      const std::vector<MaterialTexts>& materials) {
    Report report;
    report.title = title;
    for (const MaterialColumn& column : materialClass.columns) {
        report.columns.push_back({column.heading, 1, column.isText ? ReportAlign::Left : ReportAlign::Right});
    }
    report.rows = VisibleTexts(materialClass, materials);
    return report;
}

MaterialChanges CompareSheet(Connection& connection, const CatalogueClass& materialClass,
                             std::string_view parent, const SheetTexts& sheet) {
    const SheetLayout layout = FindLayout(materialClass, sheet);
    std::map<std::string, MaterialTexts> present;
    for (const MaterialTexts& material : LoadMaterials(connection, materialClass, parent)) {
        present.emplace(KeyOf(materialClass, material), material);
    }
    MaterialChanges changes;
    for (int row = layout.headingRow + 1;; ++row) {
        MaterialTexts texts;
        for (const int column : layout.columns) texts.emplace_back(Trim(sheet.Cell(row, column)));
        if (std::all_of(texts.begin(), texts.end(), [](const auto& text) { return text.empty(); })) break;
        bool isGood = true;
        for (std::size_t i = 0; i < texts.size(); ++i) {
            const MaterialColumn& column = materialClass.columns[i];
            const std::string refusal = Refusal(materialClass, column, texts[i]);
            if (refusal.empty()) continue;
            isGood = false;
            changes.refusals.push_back("第 " + std::to_string(row) + " 行“" + column.heading + "”" + refusal);
        }
        if (!isGood) continue;
        const auto found = present.find(KeyOf(materialClass, texts));
        if (found == present.end()) {
            changes.added.push_back(texts);
        } else if (IsSame(materialClass, texts, found->second)) {
            ++changes.same;
        } else {
            changes.changed.emplace_back(found->second.back(), texts);
        }
    }
    return changes;
}

void ApplyChanges(Connection& connection, const CatalogueClass& materialClass, std::string_view parent,
                  const MaterialChanges& changes) {
    InCommand(connection, [&] {
        for (const auto& [number, texts] : changes.changed) {
            UpdateMaterial(connection, materialClass, number, texts);
        }
        for (const MaterialTexts& texts : changes.added) {
            AddMaterial(connection, materialClass, parent, texts);
        }
    });
}

}  // namespace kalvane
