#pragma once

#include <optional>
#include <utility>

#include "design/formula_designer.h"
#include "design/formula_edits.h"
#include "ui/entry_screen.h"

class QPushButton;

namespace kalvane {

class FormulaEditor;
class MaterialChooser;
class TestValueTable;
class TypePicture;

/// The formula designer of one window type. All work happens in the lists; the store changes only with
/// saving.
class FrmMCGS final : public EntryScreen {
    Q_OBJECT

  public:
    /// For a window type (门窗.编号). `shelf` must outlive the screen. Throws StoreError.
    FrmMCGS(const std::string& type, RecoveryShelf& shelf, QWidget* parent);

    /// Puts lists that were not saved in place of those of the store.
    void TakeUp(const FormulaLists& lists);

    void done(int result) override;
    /// Esc closes the row frame first.
    void reject() override;

  protected:
    bool HasTypedWork() const override { return designer_.IsDirty(); }

  private:
    void LayOut();
    void SetKeys();
    QPushButton* Command(const char* name, const QString& caption, void (FrmMCGS::*work)(),
                         const QString& toolTip = {});
    void EnableCommands();

    /// Runs a command on the lists and shows what has become of them.
    void Change(const std::function<void(FormulaLists&)>& command);

    void SelectMaterial();
    void Remove();
    void RemoveAll();
    void Replace();
    void ReplaceAll();
    /// A material and the row that it is to replace; says what is missing.
    std::optional<std::pair<Material, std::size_t>> ChosenToReplace();
    void MacroReplace();
    void FindReplace();
    void CopyFormulas();
    void Undo();
    void Redo();
    void Check();
    void Save();
    void Exit();
    /// Names what the save would lose or what the catalogue has not; false to go back.
    bool ConfirmSave();

    FormulaDesigner designer_;
    TypePicture* picture_;
    TestValueTable* tests_;
    MaterialChooser* materials_;
    FormulaEditor* editor_;
    QList<QPushButton*> commands_;  ///< that the open row frame disables
    QPushButton* undo_ = nullptr;
    QPushButton* redo_ = nullptr;
};

}  // namespace kalvane
