#pragma once

#include <functional>
#include <string>

#include "design/unsaved_formulas.h"
#include "platform/recovery_shelf.h"
#include "platform/undo_history.h"
#include "store/connection.h"

namespace kalvane {

/// The formula rows of one window type while they are designed: four lists in memory that every command
/// changes as one step of undo, a recovery file that follows them, and the store, which changes only with
/// Save.
class FormulaDesigner {
  public:
    /// Loads the rows of a window type (门窗.编号). The references must outlive this. `report` is told once
    /// when the recovery file cannot be written. Throws StoreError.
    FormulaDesigner(Connection& connection, std::string type, RecoveryShelf& shelf,
                    std::function<void(const std::string&)> report);

    const std::string& Type() const { return type_; }
    const FormulaLists& Lists() const { return lists_; }
    /// True once anything has been changed and not saved.
    bool IsDirty() const { return dirty_; }

    /// Runs a command on the lists as one step. What it throws leaves them as they were.
    void Change(const std::function<void(FormulaLists&)>& command);
    /// Takes the rows of another window type in their place. Throws StoreError.
    void TakeOver(std::string_view otherType);

    bool CanUndo() const { return history_.CanUndo(); }
    bool CanRedo() const { return history_.CanRedo(); }
    void Undo();
    void Redo();

    /// Replaces the rows in the store; after a failure (StoreError) the lists stay, and are still not saved.
    void Save();
    /// Gives up what is not saved: no recovery file stays.
    void Abandon() { shelf_.Discard(); }

  private:
    void NoteChange();

    Connection& connection_;
    std::string type_;
    RecoveryShelf& shelf_;
    std::function<void(const std::string&)> report_;
    FormulaLists lists_;
    UndoHistory<FormulaLists> history_;
    bool dirty_ = false;
    bool recoveryFailed_ = false;
};

}  // namespace kalvane
