#include "drawing/drawing_history.h"

#include <utility>

namespace kalvane {
namespace {

void Exchange(DeskState& state, DrawingItems& items, DrawingIdentity& identity) {
    std::swap(state.items, items);
    if (state.identity) std::swap(*state.identity, identity);
}

}  // namespace

void DrawingHistory::Undo(DrawingItems& items, DrawingIdentity& identity) {
    states_.Undo([&](DeskState& state) { Exchange(state, items, identity); });
}

void DrawingHistory::Redo(DrawingItems& items, DrawingIdentity& identity) {
    states_.Redo([&](DeskState& state) { Exchange(state, items, identity); });
}

}  // namespace kalvane
