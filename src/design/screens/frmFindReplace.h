#pragma once

#include <QCheckBox>
#include <array>

#include "design/formula_edits.h"
#include "ui/entry_form.h"

namespace kalvane {

/// What is sought in the formula rows and put in its place, in which columns, and what that will change.
class frmFindReplace final : public EntryForm {
    Q_OBJECT

  public:
    /// `lists` and `slots` must outlive the form.
    frmFindReplace(const FormulaLists& lists, FieldSlots& slots, QWidget* parent);

    FindAndReplace Request() const;

  private:
    QString Preview() const;

    const FormulaLists& lists_;
    std::array<QCheckBox*, kFormulaColumns> checks_ = {};
};

}  // namespace kalvane
