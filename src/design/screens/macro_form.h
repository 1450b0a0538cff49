#pragma once

#include <optional>

#include "design/formula_edits.h"

class QWidget;

namespace kalvane {

/// frmMacroReplace: has the measures of the macro typed in, beside what they will change in `lists`; nothing
/// when it was cancelled.
std::optional<MacroValues> AskMacroValues(const FormulaLists& lists, QWidget* parent);

}  // namespace kalvane
