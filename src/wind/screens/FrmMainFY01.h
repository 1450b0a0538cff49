#pragma once

#include "ui/entry_screen.h"
#include "wind/full_form.h"
#include "wind/screens/form_controls.h"
#include "wind/screens/wind_roads.h"

namespace kalvane {

class LoadChartView;

/// Site and load of the full check; leads to frmFY01 and to the cover.
class FrmMainFY01 : public EntryScreen {
    Q_OBJECT

  public:
    FrmMainFY01(ChooseWindows choose, QWidget* parent);

  protected:
    bool HasTypedWork() const override { return controls_.Texts() != kept_; }

  private:
    void Next();
    void PrintCover();

    const ChooseWindows choose_;
    FormControls controls_;
    FormTexts kept_;                       ///< what the last report holds
    FormTexts window_{FullDetailBoxes()};  ///< as it was last typed in frmFY01
    LoadChartView* chart_;
};

}  // namespace kalvane
