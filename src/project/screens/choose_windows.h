#pragma once

#include <vector>

#include "project/project_list.h"
#include "project/project_windows.h"
#include "ui/screen.h"
#include "wind/project_window.h"

class QComboBox;

namespace kalvane {

class ReportList;

/// frmFYGC: the choice of a project's windows for a wind check.
class WindowChoice : public Screen {
    Q_OBJECT

  public:
    explicit WindowChoice(QWidget* parent);

    /// What was chosen.
    std::vector<ProjectWindow> Windows();

  private:
    void ShowWindows();
    void Confirm();
    const Project& Chosen() const;

    std::vector<Project> projects_;
    QComboBox* project_;
    ReportList* windows_;
};

/// Lets the operator choose; none when it was cancelled or there is no project.
std::vector<ProjectWindow> ChooseWindowsForCheck(QWidget* parent);

}  // namespace kalvane
