#pragma once

#include <QWidget>
#include <optional>

#include "design/catalogue_codes.h"
#include "design/formula_check.h"
#include "design/formula_designer.h"

class QLabel;

namespace kalvane {

class FormulaTabs;
class RowFrame;
class TestValueTable;

/// The formula rows of a designer: the four lists with what was found in them, a line that says what the
/// selected row comes to with the test values, and the frame in which a row is edited.
class FormulaEditor : public QWidget {
    Q_OBJECT

  public:
    /// The values come from `tests`. All must outlive the editor. Throws StoreError.
    FormulaEditor(FormulaDesigner& designer, TestValueTable& tests, QWidget* parent);

    FormulaTabs& Tabs() const { return *tabs_; }
    RowFrame& Frame() const { return *frame_; }
    const std::vector<FormulaFinding>& Findings() const { return findings_; }

    /// Shows the lists as the designer has them now.
    void ShowLists();
    /// Shows what is wrong with the whole type, and leads to the row that the operator chooses there.
    void Check();

    bool IsEditing() const;
    /// Edits the selected row of the list in front; nothing while one is being edited.
    void OpenRow();
    void ConfirmRow();
    void CloseRow();

  Q_SIGNALS:
    /// The lists are shown anew, or the frame was opened or closed.
    void StateChanged();

  private:
    void ShowRow();
    QString HintFor(MaterialClass materialClass, const FormulaTexts& texts) const;

    FormulaDesigner& designer_;
    TestValueTable& tests_;
    const CatalogueCodes codes_;
    FormulaTabs* tabs_;
    QLabel* line_;
    RowFrame* frame_;
    std::vector<FormulaFinding> findings_;
    MaterialClass editClass_ = MaterialClass::Profile;
    std::size_t editRow_ = 0;  ///< the row in the frame
};

}  // namespace kalvane
