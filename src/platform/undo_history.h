#pragma once

#include <cstddef>
#include <deque>
#include <utility>
#include <vector>

#include "numeric/assertion.h"

namespace kalvane {

/// Undo and redo: the states around each change, the latest 200. A way through it hands a kept state to
/// `exchange`, which makes it the present one and leaves in its place what was the present until then.
template <typename State>
class UndoHistory {
  public:
    static constexpr std::size_t kMost = 200;

    bool CanUndo() const { return !undo_.empty(); }
    bool CanRedo() const { return !redo_.empty(); }

    /// Records the state before a change. Nothing can be redone then.
    void Add(State before) {
        redo_.clear();
        if (undo_.size() == kMost) undo_.pop_front();
        undo_.push_back(std::move(before));
    }

    /// There must be a state to go to.
    template <typename Exchange>
    void Undo(Exchange exchange) {
        KALVANE_ASSERT(CanUndo());
        exchange(undo_.back());
        redo_.push_back(std::move(undo_.back()));
        undo_.pop_back();
    }
    template <typename Exchange>
    void Redo(Exchange exchange) {
        KALVANE_ASSERT(CanRedo());
        exchange(redo_.back());
        undo_.push_back(std::move(redo_.back()));
        redo_.pop_back();
    }

  private:
    std::deque<State> undo_;
    std::vector<State> redo_;
};

}  // namespace kalvane
