#pragma once

#include "ui/screen.h"

namespace kalvane {

class ReportList;

/// First step of an optimisation: the project.
class frmCreate01 : public Screen {
    Q_OBJECT

  public:
    explicit frmCreate01(QWidget* parent);

  private:
    void Load();
    void Next();

    ReportList* lvw_;
};

}  // namespace kalvane
