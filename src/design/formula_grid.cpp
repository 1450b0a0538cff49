#include "design/formula_grid.h"

#include "numeric/text.h"

namespace kalvane {
namespace {

constexpr std::size_t kTellingCharacters = 4;

}  // namespace

const GridLine& GridHeadings(MaterialClass materialClass) {
    static const GridLine profiles = {"型材名称", "型材规格", "数量", "计算公式"};
    static const GridLine steels = {"型钢名称", "型钢规格", "数量", "计算公式"};
    static const GridLine panels = {"板材名称", "数量", "长公式", "宽公式"};
    static const GridLine fittings = {"配件名称", "配件规格", "数量", "单位"};
    switch (materialClass) {
        case MaterialClass::Profile:
            return profiles;
        case MaterialClass::Steel:
            return steels;
        case MaterialClass::Panel:
            return panels;
        case MaterialClass::Fitting:
            break;
    }
    return fittings;
}

std::optional<MaterialClass> ClassOfHeading(std::string_view firstCell) {
    const std::string_view start = LeftChars(firstCell, kTellingCharacters);
    for (const MaterialClass materialClass : kListClasses) {
        if (start == GridHeadings(materialClass)[0]) return materialClass;
    }
    return std::nullopt;
}

bool IsTypeHead(std::string_view firstCell) {
    return LeftChars(firstCell, kTellingCharacters) == LeftChars(kTypeHead, kTellingCharacters);
}

}  // namespace kalvane
