#pragma once

#include "ui/entry_screen.h"
#include "wind/full_form.h"
#include "wind/screens/form_controls.h"
#include "wind/screens/wind_roads.h"
#include "wind/window_run.h"

class QLabel;
class QPushButton;

namespace kalvane {

/// The window of the full check. Ends accepted with a run of reports, or is cancelled; shown again it holds
/// what was typed.
class frmFY01 : public EntryScreen {
    Q_OBJECT

  public:
    frmFY01(ChooseWindows choose, const FullTexts& texts, QWidget* parent);

    FullTexts Texts() const { return {base_, controls_.Texts()}; }
    const CheckRun& Run() const { return run_; }

  private:
    void ShowWindow(const FullTexts& texts);
    void ShowRatio();
    void TakeFromProject();
    void Check();

    const ChooseWindows choose_;
    FormTexts base_;  ///< a window that is taken over brings its name along
    FormControls controls_;
    CheckRun run_;
    QLabel* window_;
    QLabel* notes_;
    QPushButton* check_;
};

}  // namespace kalvane
