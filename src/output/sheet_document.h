#pragma once

#include <span>
#include <string>
#include <vector>

#include "output/component_sheet.h"
#include "platform/notice.h"

namespace kalvane {

/// How sheets may be printed otherwise than usual.
struct SheetOptions {
    bool keepsShape = false;  ///< the drawing keeps its proportions; else it fills its box
    bool marksPages = false;  ///< each continuation page says of which window it is
};

/// The sheets of a project's windows, in their order; the sheet of the window at place n is page n.
class SheetSet {
  public:
    /// `connection` and `projectRow`, which takes the row of the project, must outlive this.
    SheetSet(Connection& connection, FieldSlots& projectRow, SheetOrigin origin,
             std::vector<WindowEntry> windows)
        : connection_(connection),
          projectRow_(projectRow),
          origin_(std::move(origin)),
          windows_(std::move(windows)) {}

    int PageCount() const { return static_cast<int>(windows_.size()); }
    const std::vector<WindowEntry>& Windows() const { return windows_; }

    /// The sheet of a page, from 1, worked out anew.
    WorkedOutSheet Sheet(int page) const;

    /// Prints pages `first` to `last` as one document, each sheet on a page of its own with the pages that
    /// continue it. What an unreadable drawing throws goes to the caller; what was printed before it stays.
    void Print(PageTarget& target, int first, int last, const SheetOptions& options, Notice& notice) const;

  private:
    Connection& connection_;
    FieldSlots& projectRow_;
    SheetOrigin origin_;
    std::vector<WindowEntry> windows_;
};

/// Paints the drawing of a sheet with the values of its labels, and nothing else: the bare drawing page, or
/// with its proportions kept in the same box.
void PaintSheetDrawing(PageTarget& target, Connection& connection, const WorkedOutSheet& sheet,
                       const SheetOptions& options, Notice& notice);

/// Paints a worked out sheet with its continuation pages.
void PaintSheet(PageTarget& target, Connection& connection, const WorkedOutSheet& sheet,
                const SheetOptions& options, Notice& notice);

}  // namespace kalvane
