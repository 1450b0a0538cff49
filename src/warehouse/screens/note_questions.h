#pragma once

#include "warehouse/note_layout.h"

class QWidget;

namespace kalvane {

// What is asked before a note is confirmed. False sends the operator back to typing.

/// When the number is taken, proposes the next one, which the note then has.
bool TakeFreeNumber(QWidget* screen, NoteKind kind, GoodsNote& note);

/// Asks when the lines of a goods-out note together go beyond the stock.
bool IsShortageWanted(QWidget* screen, NoteKind kind, const GoodsNote& note);

}  // namespace kalvane
