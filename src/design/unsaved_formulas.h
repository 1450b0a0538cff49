#pragma once

#include <string>
#include <string_view>

#include "design/formula_lists.h"

namespace kalvane {

/// The formula rows of a window type as a recovery file keeps them.
struct UnsavedFormulas {
    std::string type;  ///< 门窗.编号
    FormulaLists lists;
};

/// The text of a recovery file, UTF-8: the type on the first line, then five lines for each row, its table
/// and its texts.
std::string RecoveryText(const UnsavedFormulas& formulas);

/// The formulas of a recovery file's text, as far as it can be read.
UnsavedFormulas ReadUnsavedFormulas(std::string_view text);

}  // namespace kalvane
