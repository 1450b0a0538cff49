#pragma once

#include <optional>

#include "design/formula_check.h"
#include "ui/screen.h"

namespace kalvane {

class ReportList;

/// What was found in the formulas of a window type: list `Lvw`. A double click or Enter ends it with the
/// place of that finding.
class frmFormulaCheck final : public Screen {
    Q_OBJECT

  public:
    /// `remark` stands below the findings; it may be empty.
    frmFormulaCheck(const std::vector<FormulaFinding>& findings, const QString& remark, QWidget* parent);

    /// The index of the chosen finding; nothing when the screen was left without one.
    std::optional<std::size_t> Choose();

  private:
    ReportList* lvw_;
};

}  // namespace kalvane
