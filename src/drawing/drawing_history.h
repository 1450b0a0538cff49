#pragma once

#include <cstddef>
#include <deque>
#include <optional>
#include <vector>

#include "drawing/drawing_identity.h"
#include "drawing/drawing_items.h"

namespace kalvane {

/// A state of the desk to go back or forward to. The identity is there only when the gesture between the two
/// states changed it: a save in between must not be taken back with the shapes.
struct DeskState {
    DrawingItems items;
    std::optional<DrawingIdentity> identity;
};

/// Undo and redo: the states around each gesture that changed the drawing, the latest 200.
class DrawingHistory {
  public:
    static constexpr std::size_t kMost = 200;

    bool CanUndo() const { return !undo_.empty(); }
    bool CanRedo() const { return !redo_.empty(); }

    /// Records the state before a gesture. Nothing can be redone then.
    void Add(DeskState before);

    /// Exchanges the state of the desk for the one before the last gesture, or for the one after the gesture
    /// that was undone last. There must be one.
    void Undo(DrawingItems& items, DrawingIdentity& identity);
    void Redo(DrawingItems& items, DrawingIdentity& identity);

  private:
    std::deque<DeskState> undo_;
    std::vector<DeskState> redo_;
};

}  // namespace kalvane
