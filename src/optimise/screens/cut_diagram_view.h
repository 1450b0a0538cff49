#pragma once

#include <QAbstractScrollArea>
#include <memory>

#include "optimise/cut_diagram.h"

namespace kalvane {

/// 切割图 on the screen: white like the paper it is printed on, as wide as the view, rows painted as they
/// come into sight.
class CutDiagramView : public QAbstractScrollArea {
    Q_OBJECT

  public:
    explicit CutDiagramView(QWidget* parent = nullptr);

    void Show(std::unique_ptr<CutDiagram> diagram);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void FitScrollBar();

    std::unique_ptr<CutDiagram> diagram_;
};

}  // namespace kalvane
