#include "design/formula_designer.h"

#include <utility>

#include "numeric/error.h"

namespace kalvane {

FormulaDesigner::FormulaDesigner(Connection& connection, std::string type, RecoveryShelf& shelf,
                                 std::function<void(const std::string&)> report)
    : connection_(connection),
      type_(std::move(type)),
      shelf_(shelf),
      report_(std::move(report)),
      lists_(LoadFormulaLists(connection, type_)) {}

void FormulaDesigner::Change(const std::function<void(FormulaLists&)>& command) {
    FormulaLists changed = lists_;
    command(changed);
    if (!(changed == lists_)) history_.Add(std::exchange(lists_, std::move(changed)));
    NoteChange();
}

void FormulaDesigner::TakeOver(std::string_view otherType) {
    Change([&](FormulaLists& lists) { lists = LoadFormulaLists(connection_, otherType); });
}

void FormulaDesigner::Undo() {
    history_.Undo([this](FormulaLists& lists) { std::swap(lists, lists_); });
    NoteChange();
}

void FormulaDesigner::Redo() {
    history_.Redo([this](FormulaLists& lists) { std::swap(lists, lists_); });
    NoteChange();
}

void FormulaDesigner::Save() {
    SaveFormulaLists(connection_, type_, lists_);
    dirty_ = false;
    shelf_.Discard();
}

void FormulaDesigner::NoteChange() {
    dirty_ = true;
    try {
        shelf_.Keep(RecoveryText({type_, lists_}));
        recoveryFailed_ = false;
    } catch (const FileError& error) {
        // Work goes on; the failure is reported once.
        if (!std::exchange(recoveryFailed_, true)) {
            report_(std::string("未保存的公式不能写入恢复文件：") + error.what());
        }
    }
}

}  // namespace kalvane
