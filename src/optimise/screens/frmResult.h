#pragma once

#include "ui/page_document.h"
#include "ui/screen.h"

namespace kalvane {

class CutDiagramView;
class ReportList;
class YieldColumns;

/// The cutting plan in 优化结果: its bars, its totals by material, and 切割图.
class frmResult : public Screen {
    Q_OBJECT

  public:
    explicit frmResult(QWidget* parent);

  private:
    void Load();
    void PrintDiagram();
    void PrintLabels();
    void PrintOrTell(bool isEmpty, const QString& title, const PageSetup& setup, const PaintPages& paint);
    void Export();

    ReportList* lvw1_;
    ReportList* lvw2_;
    YieldColumns* yield_;
    CutDiagramView* diagram_;
};

}  // namespace kalvane
