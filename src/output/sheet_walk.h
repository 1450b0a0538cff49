#pragma once

#include <functional>
#include <string>

#include "formula/formula_rows.h"
#include "project/project_windows.h"

namespace kalvane {

/// A row of a component sheet before it is worked out.
struct SheetLine {
    MaterialClass materialClass = MaterialClass::Profile;
    int number = 0;                        ///< in its class, from 1; 0 for the heading of the class
    const FormulaRow* formulas = nullptr;  ///< null in a heading
    const LabelSet* labels = nullptr;      ///< sorted; null when they could not be read
    double multiplier = 0;                 ///< pieces of the window, times those of the member in it
};

using SheetSink = std::function<void(const SheetLine&)>;
/// Told the text of what could not be read.
using SheetFailure = std::function<void(const std::string&)>;

/// Hands on the rows of a window's sheet from above: for a plain window its four classes, for a composite
/// those of each member, each class that has lines below a heading. `labels` are those of the plain window,
/// null when they could not be read. What cannot be read is reported and left out, and the walk goes on.
void WalkSheet(Connection& connection, FormulaRows& rows, const WindowEntry& window, const LabelSet* labels,
               const SheetSink& sink, const SheetFailure& failed);

}  // namespace kalvane
