#include "design/unsaved_formulas.h"

#include <algorithm>

#include "numeric/text.h"

namespace kalvane {

std::string RecoveryText(const UnsavedFormulas& formulas) {
    std::string text = OnOneLine(formulas.type) + "\n";
    for (const MaterialClass materialClass : kListClasses) {
        for (const FormulaTexts& row : formulas.lists[materialClass]) {
            text += std::string(FormulaTableOf(materialClass).name) + "\n";
            for (const std::string& cell : row) text += OnOneLine(cell) + "\n";
        }
    }
    return text;
}

UnsavedFormulas ReadUnsavedFormulas(std::string_view text) {
    UnsavedFormulas formulas;
    formulas.type = FromOneLine(TakeUpTo(text, "\n"));
    while (!text.empty()) {
        const std::string_view table = TakeUpTo(text, "\n");
        const auto* const materialClass =
            std::find_if(kListClasses.begin(), kListClasses.end(),
                         [table](MaterialClass each) { return table == FormulaTableOf(each).name; });
        if (materialClass == kListClasses.end()) continue;
        FormulaTexts row;
        for (std::string& cell : row) cell = FromOneLine(TakeUpTo(text, "\n"));
        formulas.lists[*materialClass].push_back(std::move(row));
    }
    return formulas;
}

}  // namespace kalvane
