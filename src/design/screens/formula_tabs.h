#pragma once

#include <QTabWidget>
#include <array>
#include <optional>

#include "design/formula_check.h"
#include "design/formula_lists.h"

namespace kalvane {

class ReportList;

/// The four lists of formula rows, a tab each: `LvwXC`, `LvwXG`, `LvwPC`, `LvwPJ`. Cells that something was
/// found in are marked and say what in their tool tip.
class FormulaTabs : public QTabWidget {
    Q_OBJECT

  public:
    explicit FormulaTabs(QWidget* parent);

    /// Shows the rows with their marks; each list keeps its selected row as far as there is one.
    void Show(const FormulaLists& lists, const std::vector<FormulaFinding>& findings);

    /// The class of the tab in front.
    MaterialClass Front() const;
    ReportList* List(MaterialClass materialClass) const {
        return lists_[static_cast<std::size_t>(materialClass)];
    }
    /// The selected row of a list; nothing when none is.
    std::optional<std::size_t> SelectedRow(MaterialClass materialClass) const;
    /// Brings a row to the front and selects it.
    void SelectRow(MaterialClass materialClass, std::size_t row);

    /// The row of a list that was clicked last, as it stood then.
    const FormulaTexts& LastClicked(MaterialClass materialClass) const {
        return lastClicked_[static_cast<std::size_t>(materialClass)];
    }

  Q_SIGNALS:
    void RowSelected();
    /// A double click, or Enter, on a row of the list in front.
    void RowOpened();

  private:
    void Mark(const FormulaFinding& finding);

    std::array<ReportList*, kListClasses.size()> lists_ = {};
    std::array<FormulaTexts, kListClasses.size()> lastClicked_;
};

}  // namespace kalvane
