#pragma once

#include "ui/screen.h"

namespace kalvane {

class ReportList;
struct PlanOutput;

/// The cutting plan in 优化结果 and its totals by material.
class frmResult : public Screen {
    Q_OBJECT

  public:
    explicit frmResult(QWidget* parent);

  private:
    void Load();
    void PutOut();
    void PutOutText(const PlanOutput& plan);
    void PutOutWorkbook(const PlanOutput& plan);

    ReportList* lvw1_;
    ReportList* lvw2_;
};

}  // namespace kalvane
