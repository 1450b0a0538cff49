#include "design/formula_edits.h"

#include "formula/cal.h"
#include "numeric/assertion.h"

namespace kalvane {
namespace {

constexpr std::size_t kName = 0;
constexpr std::size_t kCode = 1;  // not of a panel
constexpr std::size_t kPanelCount = 1;
constexpr std::size_t kUnit = 3;  // of a fitting
constexpr std::array<std::size_t, 2> kMacroColumns = {2, 3};
constexpr std::array kMacroClasses = {MaterialClass::Profile, MaterialClass::Steel, MaterialClass::Panel};

}  // namespace

FormulaTexts RowOf(const Material& material) {
    FormulaTexts row;
    if (material.materialClass == MaterialClass::Panel) row[kPanelCount] = "0";
    ReplaceMaterial(row, material);
    return row;
}

void ReplaceMaterial(FormulaTexts& row, const Material& material) {
    row[kName] = material.name;
    if (material.materialClass != MaterialClass::Panel) row[kCode] = material.code;
    if (material.materialClass == MaterialClass::Fitting) row[kUnit] = material.unit;
}

void ReplaceMaterials(std::vector<FormulaTexts>& rows, std::size_t chosen, const Material& material) {
    KALVANE_ASSERT(chosen < rows.size());
    const FormulaTexts before = rows[chosen];
    for (FormulaTexts& row : rows) {
        const bool isSame = row[kName] == before[kName] &&
                            (material.materialClass == MaterialClass::Panel || row[kCode] == before[kCode]);
        if (isSame) ReplaceMaterial(row, material);
    }
}

FormulaLists MacroReplaced(FormulaLists lists, const MacroValues& values) {
    for (const MaterialClass materialClass : kMacroClasses) {
        for (FormulaTexts& row : lists[materialClass]) {
            for (std::size_t i = 0; i < values.size(); ++i) {
                if (values[i].empty()) continue;
                for (const std::size_t column : kMacroColumns) {
                    row[column] = Cal::Replace1(row[column], kMacroCodes[i].code, values[i]);
                }
            }
        }
    }
    return lists;
}

FormulaLists TextReplaced(FormulaLists lists, const FindAndReplace& request) {
    for (const MaterialClass materialClass : kListClasses) {
        for (FormulaTexts& row : lists[materialClass]) {
            for (std::size_t column = 0; column < row.size(); ++column) {
                if (!request.columns[column]) continue;
                row[column] = Cal::Replace1(row[column], request.find, request.replacement);
            }
        }
    }
    return lists;
}

std::vector<FormulaChange> ChangesBetween(const FormulaLists& before, const FormulaLists& after) {
    std::vector<FormulaChange> changes;
    for (const MaterialClass materialClass : kListClasses) {
        const auto& old = before[materialClass];
        const auto& now = after[materialClass];
        KALVANE_ASSERT(old.size() == now.size());
        for (std::size_t row = 0; row < old.size(); ++row) {
            for (std::size_t column = 0; column < kFormulaColumns; ++column) {
                if (old[row][column] == now[row][column]) continue;
                changes.push_back({materialClass, row, column, old[row][column], now[row][column]});
            }
        }
    }
    return changes;
}

std::string ChangeSummary(const std::vector<FormulaChange>& changes, std::size_t most) {
    if (changes.empty()) return "没有要更改的内容。";
    std::string text = "将更改 " + std::to_string(changes.size()) + " 处：";
    for (std::size_t i = 0; i < changes.size() && i < most; ++i) {
        const FormulaChange& change = changes[i];
        const FormulaTable& table = FormulaTableOf(change.materialClass);
        text += "\n" + std::string(table.caption) + "第" + std::to_string(change.row + 1) + "行 " +
                table.columns[change.column] + "：" + change.before + " → " + change.after;
    }
    if (changes.size() > most) text += "\n……";
    return text;
}

}  // namespace kalvane
