#pragma once

#include <optional>

#include "warehouse/note_layout.h"

class QWidget;

namespace kalvane {

/// The dialog frmEnterData with a line in its boxes; nothing when it was cancelled. What it hands over, the
/// store takes.
std::optional<NoteLine> EnterGoodsInLine(QWidget* parent, const NoteLine& line);

}  // namespace kalvane
