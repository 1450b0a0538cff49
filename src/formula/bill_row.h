#pragma once

#include <string>

namespace kalvane {

struct FormulaRow;
struct LabelSet;

enum class MaterialClass { Profile, Steel, Fitting, Panel };

/// One evaluated material line of a project window. Fields a class has not are empty. Numbers travel as
/// text, ready for a statement or a cell.
struct BillRow {
    MaterialClass materialClass = MaterialClass::Profile;
    std::string name;      ///< 名称
    std::string code;      ///< 规格, the material code; a panel has none
    std::string length;    ///< 长度 in mm, for a panel 长; a fitting has none
    std::string width;     ///< 宽 in mm of a panel
    std::string quantity;  ///< 数量
    std::string unit;      ///< 单位 of a fitting
    /// What it was worked out from, for as long as the row is being handed on.
    const FormulaRow* formulas = nullptr;
    const std::string* typeId = nullptr;  ///< 门窗.编号
    const LabelSet* labels = nullptr;
};

}  // namespace kalvane
