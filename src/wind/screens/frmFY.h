#pragma once

#include "ui/entry_screen.h"
#include "wind/screens/form_controls.h"
#include "wind/screens/wind_roads.h"
#include "wind/window_run.h"

class QLabel;
class QPushButton;

namespace kalvane {

class LoadChartView;

/// The check of a sliding window: what is typed or taken from a project, the load over the height, and the
/// report in frmFyResult.
class frmFY : public EntryScreen {
    Q_OBJECT

  public:
    frmFY(ChooseWindows choose, QWidget* parent);

  protected:
    bool HasTypedWork() const override { return controls_.Texts() != kept_; }

  private:
    void LayOut();
    void TakeInertia();
    void FollowLayout();
    void ShowChart();
    void TakeFromProject();
    void Check();
    void ShowResult(const CheckRun& run);

    const ChooseWindows choose_;
    FormControls controls_;
    FormTexts kept_;  ///< what the last report holds
    LoadChartView* chart_;
    QLabel* notes_;  ///< about a window that was taken over
    QPushButton* check_;
    QPushButton* take_;
    QPushButton* exit_;
};

}  // namespace kalvane
