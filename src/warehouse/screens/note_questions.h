#pragma once

#include "warehouse/note_layout.h"

class QWidget;

namespace kalvane {

class NoteHead;

/// Leads to the first gap of a note: an empty head field, or `add` when it has no lines. False when there is
/// none.
bool RefuseIncomplete(QWidget* screen, NoteKind kind, const GoodsNote& note, const NoteHead& head,
                      QWidget* add);

// What is asked before a note is confirmed. False sends the operator back to typing.

/// When the number is taken, proposes the next one, which the note then has.
bool TakeFreeNumber(QWidget* screen, NoteKind kind, GoodsNote& note);

/// Asks when the lines of a goods-out note together go beyond the stock.
bool IsShortageWanted(QWidget* screen, NoteKind kind, const GoodsNote& note);

}  // namespace kalvane
