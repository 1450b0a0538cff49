#pragma once

#include "output/gathering_record.h"
#include "output/screens/order_choice.h"
#include "output/tally_check.h"
#include "ui/screen.h"

class QComboBox;
class QLabel;

namespace kalvane {

class ReportList;

/// The rows of the tally, each with what it sums: a double click shows the windows, formulas and evaluated
/// sizes and counts behind it.
class frmTJMX : public Screen {
    Q_OBJECT

  public:
    frmTJMX(GatheringRecord record, ShowDesigner showDesigner, QWidget* parent);

  private:
    TallyView View() const;
    void Load();
    void Trace();
    /// Opens the designer of the selected formula's window type.
    void Design();

    const GatheringRecord record_;
    const ShowDesigner showDesigner_;
    std::vector<CheckedRow> rows_;
    QComboBox* view_;
    ReportList* tally_;
    ReportList* trace_;
    QLabel* sum_;
    QLabel* note_;
};

}  // namespace kalvane
