#pragma once

#include "ui/screen.h"
#include "wind/window_run.h"

class QCheckBox;
class QTextEdit;

namespace kalvane {

class RecheckPanel;
class ReportList;

/// Shows the reports of a run with the re-check beside each; prints them and saves them as PDF or text.
/// Serves frmFyResult and FrmResultFY01.
class WindResult : public Screen {
    Q_OBJECT

  public:
    /// What differs between the two.
    struct Look {
        const char* name;
        const char* title;
        const char* report;  ///< name of the box
        const char* print;   ///< name of the command
        const char* exit;    ///< caption of OKButton
        const char* file;    ///< suggested file name
    };

    /// `run` has one report at least.
    WindResult(const Look& look, CheckRun run, QWidget* parent);

  private:
    QWidget* MakeList();
    void ShowCheck(std::size_t place);
    void Print();
    void SavePdf();
    void SaveText();

    const Look look_;
    const CheckRun run_;
    QTextEdit* report_;
    RecheckPanel* recheck_;
    QCheckBox* annex_;
};

/// Shows the result of checks of sliding windows, or of full ones; when no window has a report, says why.
void ShowSlidingResult(const CheckRun& run, QWidget* parent);
void ShowFullResult(const CheckRun& run, QWidget* parent);

}  // namespace kalvane
