#pragma once

#include <span>
#include <string>
#include <vector>

#include "formula/formula_rows.h"
#include "output/short_table.h"
#include "project/project_windows.h"
#include "store/field_slots.h"

namespace kalvane {

/// A window that the short table has nothing of.
struct LeftOutWindow {
    std::string name;
    std::string reason;
};

/// Adds the line of a window: the profiles of its type by the key names, whatever their case; of several with
/// one name the last stands, any other name is passed over. A composite, a window without labels, and one
/// whose type has no profiles leave no line, and why is returned; empty when there is one. The row of the
/// window type is read to `slots`.
///
/// Throws StoreError when the window type is gone, and Error naming window and profile for a row that cannot
/// be worked out, of whatever name.
std::string AddWindow(Connection& connection, FieldSlots& slots, FormulaRows& rows, const WindowEntry& window,
                      SimpleBuyTable& table);

/// The short table of windows in their order, and who was left out.
struct ShortTable {
    SimpleBuyTable table;
    std::vector<LeftOutWindow> leftOut;
};

/// Throws as AddWindow.
ShortTable MakeShortTable(Connection& connection, FieldSlots& slots, const std::string& projectName,
                          std::span<const WindowEntry> windows);

}  // namespace kalvane
