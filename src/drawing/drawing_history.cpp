#include "drawing/drawing_history.h"

#include <utility>

#include "numeric/assertion.h"

namespace kalvane {
namespace {

void Exchange(DeskState& state, DrawingItems& items, DrawingIdentity& identity) {
    std::swap(state.items, items);
    if (state.identity) std::swap(*state.identity, identity);
}

}  // namespace

void DrawingHistory::Add(DeskState before) {
    redo_.clear();
    if (undo_.size() == kMost) undo_.pop_front();
    undo_.push_back(std::move(before));
}

void DrawingHistory::Undo(DrawingItems& items, DrawingIdentity& identity) {
    KALVANE_ASSERT(CanUndo());
    Exchange(undo_.back(), items, identity);
    redo_.push_back(std::move(undo_.back()));
    undo_.pop_back();
}

void DrawingHistory::Redo(DrawingItems& items, DrawingIdentity& identity) {
    KALVANE_ASSERT(CanRedo());
    Exchange(redo_.back(), items, identity);
    undo_.push_back(std::move(redo_.back()));
    redo_.pop_back();
}

}  // namespace kalvane
