#pragma once

#include <span>
#include <string>
#include <vector>

#include "page/page_target.h"
#include "platform/notice.h"
#include "project/labels.h"
#include "project/project_windows.h"
#include "store/connection.h"

namespace kalvane {

/// The number of a window's drawing, for a composite that of its main drawing. Throws StoreError when its
/// type is gone or has no drawing.
std::string DrawingOfWindow(Connection& connection, const WindowEntry& window);

/// A picture of the printed window list and what stands below it.
struct WindowListCell {
    std::string drawing;  ///< empty when there is none to show
    std::vector<LabelRow> labels;
    std::vector<std::string> lines;
};

/// 门窗表: every window with name, place, size, count and area, behind a composite its members with what one
/// composite has of each. A window without a drawing has no picture. Throws StoreError.
struct WindowList {
    std::string projectName;
    std::vector<WindowListCell> cells;
    std::string total;  ///< windows and their area
};
WindowList MakeWindowList(Connection& connection, const std::string& projectName,
                          std::span<const WindowEntry> windows);

/// Prints the list as one document for upright A4 sheets, four pictures side by side, and at its end the
/// place for the customer's signature. Pictures keep their proportions, the values stand at their labels.
void PaintWindowList(PageTarget& page, Connection& connection, const WindowList& list, Notice& notice);

}  // namespace kalvane
