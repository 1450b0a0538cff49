#pragma once

#include "project/project_list.h"
#include "ui/screen.h"

namespace kalvane {

class PickLists;
class ReportList;

/// Windows of any project that are to be copied into one of them, the target.
class frmCopyGC : public Screen {
    Q_OBJECT

  public:
    frmCopyGC(const Project& target, QWidget* parent);

  private:
    /// Offers the windows of the selected project.
    void ShowWindows();
    void Save();

    const std::string target_;
    ReportList* projects_;
    PickLists* windows_;
};

}  // namespace kalvane
