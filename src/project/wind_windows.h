#pragma once

#include <string>

#include "formula/formula_rows.h"
#include "platform/notice.h"
#include "project/project_windows.h"
#include "wind/project_window.h"

namespace kalvane {

/// What a window tells the wind checks: its opening, its labels, the panes of its bill and the sash, as its
/// profiles 扇B and 扇H are cut. A window whose bill fails has what stood before the failure, which goes to
/// `notice`. Throws StoreError.
ProjectWindow WindowForCheck(Connection& connection, FormulaRows& rows, const std::string& projectName,
                             const WindowEntry& window, Notice& notice);

}  // namespace kalvane
