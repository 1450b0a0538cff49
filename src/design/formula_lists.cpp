#include "design/formula_lists.h"

#include "store/command_scope.h"
#include "store/helpers.h"

namespace kalvane {
namespace {

constexpr FormulaTable kProfiles = {
    "窗型材", "门窗型材", {"名称", "规格", "数量", "计算公式"}, {50, 50, 50, 50}, {false, false, true, true},
    1};
constexpr FormulaTable kSteels = {
    "窗型钢", "门窗型钢", {"名称", "规格", "数量", "计算公式"}, {50, 50, 50, 50}, {false, false, true, true},
    1};
constexpr FormulaTable kPanels = {
    "窗板材", "门窗板材", {"名称", "数量", "长公式", "宽公式"}, {50, 0, 50, 50}, {false, false, true, true},
    0};
constexpr FormulaTable kFittings = {
    "窗配件", "门窗配件", {"名称", "规格", "数量", "单位"}, {50, 50, 100, 10}, {false, false, true, false},
    1};

}  // namespace

const FormulaTable& FormulaTableOf(MaterialClass materialClass) {
    switch (materialClass) {
        case MaterialClass::Profile:
            return kProfiles;
        case MaterialClass::Steel:
            return kSteels;
        case MaterialClass::Panel:
            return kPanels;
        case MaterialClass::Fitting:
            break;
    }
    return kFittings;
}

FormulaLists LoadFormulaLists(Connection& connection, std::string_view type) {
    FormulaLists lists;
    for (const MaterialClass materialClass : kListClasses) {
        const FormulaTable& table = FormulaTableOf(materialClass);
        Cursor row = connection.OpenCursor(std::string("Select * from ") + table.name +
                                           " where 窗号=" + std::string(type));
        for (; !row.Eof(); row.MoveNext()) {
            FormulaTexts texts;
            for (std::size_t i = 0; i < texts.size(); ++i) {
                texts[i] = row.Field(table.columns[i]).TextOrEmpty();
            }
            lists[materialClass].push_back(std::move(texts));
        }
    }
    return lists;
}

void AddFormulaRow(Connection& connection, MaterialClass materialClass, std::string_view type,
                   const FormulaTexts& row) {
    const FormulaTable& table = FormulaTableOf(materialClass);
    std::string columns = "窗号,编号";
    std::string values = std::string(type) + "," + GetNextId(connection, table.name);
    for (std::size_t i = 0; i < row.size(); ++i) {
        columns += std::string(",") + table.columns[i];
        values += table.longest[i] == 0 ? "," + row[i] : ",'" + row[i] + "'";
    }
    connection.Execute(std::string("Insert into ") + table.name + " (" + columns + ") Values(" + values +
                       ")");
}

void SaveFormulaLists(Connection& connection, std::string_view type, const FormulaLists& lists) {
    InCommand(connection, [&] {
        for (const MaterialClass materialClass : kListClasses) {
            connection.Execute(std::string("Delete * from ") + FormulaTableOf(materialClass).name +
                               " where 窗号=" + std::string(type));
        }
        for (const MaterialClass materialClass : kListClasses) {
            for (const FormulaTexts& row : lists[materialClass]) {
                AddFormulaRow(connection, materialClass, type, row);
            }
        }
    });
}

}  // namespace kalvane
