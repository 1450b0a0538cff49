#pragma once

#include <span>
#include <string>
#include <vector>

#include "formula/formula_rows.h"
#include "platform/notice.h"
#include "project/project_windows.h"
#include "store/connection.h"

namespace kalvane {

// The gathering: what project windows need, as raw rows of OutXC (profiles), OutXG (steels), OutPJ (fittings)
// and OutPC (panels), one for each formula row of a window.

/// Empties the four tables of raw rows and OutTJ. Throws StoreError.
void ClearTallies(Connection& connection);

/// Adds the raw rows of a plain window. A failure (a Null, a formula without end, a fitting's count beyond 16
/// bits, a quote in a name) ends this window: its text is shown by `notice`, the rows before it stay. A
/// fitting row without 单位 counts 0.
void GatherPlainWindow(Connection& connection, FormulaRows& rows, const WindowEntry& window, Notice& notice);

/// As GatherPlainWindow for each member of a composite, times its count. Failures are thrown.
void GatherCompositeWindow(Connection& connection, FormulaRows& rows, const WindowEntry& window);

/// Clears the tallies and gathers the windows in their order, as one command, and returns the names of those
/// that a failure has cut short. The failures are shown once the rows are in the store. What ends a composite
/// is thrown: the rows so far stay, and the windows after it are not gathered.
std::vector<std::string> GatherTallies(Connection& connection, std::span<const WindowEntry> windows,
                                       Notice& notice);

}  // namespace kalvane
