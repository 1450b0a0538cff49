#pragma once

#include <optional>
#include <utility>

#include "drawing/drawing_identity.h"
#include "drawing/drawing_items.h"
#include "platform/undo_history.h"

namespace kalvane {

/// A state of the desk to go back or forward to. The identity is there only when the gesture between the two
/// states changed it: a save in between must not be taken back with the shapes.
struct DeskState {
    DrawingItems items;
    std::optional<DrawingIdentity> identity;
};

/// Undo and redo of the desk.
class DrawingHistory {
  public:
    bool CanUndo() const { return states_.CanUndo(); }
    bool CanRedo() const { return states_.CanRedo(); }

    /// Records the state before a gesture. Nothing can be redone then.
    void Add(DeskState before) { states_.Add(std::move(before)); }

    /// Exchanges the state of the desk for the one before the last gesture, or for the one after the gesture
    /// that was undone last. There must be one.
    void Undo(DrawingItems& items, DrawingIdentity& identity);
    void Redo(DrawingItems& items, DrawingIdentity& identity);

  private:
    UndoHistory<DeskState> states_;
};

}  // namespace kalvane
