#pragma once

#include <string>
#include <string_view>

#include "drawing/drawing_items.h"

namespace kalvane {

/// A drawing as a recovery file keeps it. Unlike a drawing file (.MC) it has arcs, full precision, and any
/// text as it stands.
struct UnsavedDrawing {
    std::string number;  ///< in the library; empty for a drawing that was never saved there
    std::string name;
    DrawingItems items;

    friend bool operator==(const UnsavedDrawing&, const UnsavedDrawing&) = default;
};

/// The text of a recovery file, UTF-8: one line for each item, of its kind and its numbers.
std::string RecoveryText(const UnsavedDrawing& drawing);

/// The drawing of a recovery file's text. A line that cannot be read is passed over, since what a damaged
/// file still holds is worth having.
UnsavedDrawing ReadRecoveryText(std::string_view text);

}  // namespace kalvane
