#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "design/formula_lists.h"

namespace kalvane {

// What the designer does to the formula rows of a window type. Columns count from 0.

/// A material of the catalogue.
struct Material {
    MaterialClass materialClass = MaterialClass::Profile;
    std::string name;
    std::string code;  ///< not of a panel
    std::string unit;  ///< of a fitting
};

/// The new row of a material: its name, code and unit; a panel has the quantity "0".
FormulaTexts RowOf(const Material& material);

/// Puts the material in the place of the row's: name, code and unit; quantity and formulas stay.
void ReplaceMaterial(FormulaTexts& row, const Material& material);

/// The same to each row that has name and code of the row at `chosen` as they are now; of panels, its name.
void ReplaceMaterials(std::vector<FormulaTexts>& rows, std::size_t chosen, const Material& material);

/// A measure of a profile system that formulas call by its code until the macro is run over them.
struct MacroCode {
    const char* code;
    const char* caption;
};
inline constexpr std::array<MacroCode, 12> kMacroCodes = {{{"KH1", "框厚1"},
                                                           {"KH2", "框厚2"},
                                                           {"SH1", "扇厚1"},
                                                           {"SH2", "扇厚2"},
                                                           {"ZH1", "中梃厚1"},
                                                           {"ZH2", "中梃厚2"},
                                                           {"DZ1", "框扇搭接1"},
                                                           {"DZ2", "框扇搭接2"},
                                                           {"YTH", "压条厚"},
                                                           {"LSH", "内锁厚"},
                                                           {"CJH", "插件厚"},
                                                           {"RHL", "熔化量"}}};

/// Values of the codes in their order, mm; an empty one leaves its code alone.
using MacroValues = std::array<std::string, kMacroCodes.size()>;

/// Puts the values in place of the codes, whatever their case, in the last two columns of all profiles,
/// steels and panels. With any value at all these columns come back in capitals.
FormulaLists MacroReplaced(FormulaLists lists, const MacroValues& values);

/// What is sought and put in its place, and the columns in which it is.
struct FindAndReplace {
    std::string find;  ///< not empty
    std::string replacement;
    std::array<bool, kFormulaColumns> columns = {};
};

/// Replaces a text, whatever its case, in the chosen columns of all four lists, which come back in capitals.
FormulaLists TextReplaced(FormulaLists lists, const FindAndReplace& request);

/// A text that a command changes.
struct FormulaChange {
    MaterialClass materialClass;
    std::size_t row;
    std::size_t column;
    std::string before;
    std::string after;
};

/// The texts that differ between two states of one length.
std::vector<FormulaChange> ChangesBetween(const FormulaLists& before, const FormulaLists& after);

/// How many texts change, and the first `most` of them, a line each.
std::string ChangeSummary(const std::vector<FormulaChange>& changes, std::size_t most);

}  // namespace kalvane
