#pragma once

#include <QAbstractScrollArea>

#include "ui/page_document.h"

namespace kalvane {

/// The pages of a document one below the other, painted as they come into sight.
class PageView : public QAbstractScrollArea {
    Q_OBJECT

  public:
    /// `document` must outlive the view.
    explicit PageView(const PageDocument& document, QWidget* parent = nullptr);

    enum class Fit {
        Page,   ///< a whole page
        Width,  ///< the width of the page
        None    ///< a fixed scale
    };
    /// The place in sight stays. `scale` counts with Fit::None only: 1 is the size on paper.
    void SetZoom(Fit fit, double scale = 1);

    /// The scale in force.
    double Scale() const { return UnitsPerTwip() * kTwipsPerPixel; }

    /// The page in the middle of the view, counted from 0.
    int CurrentPage() const;
    void ShowPage(int page);

  Q_SIGNALS:
    void CurrentPageChanged(int page);
    /// The wheel asked for the next larger (1) or smaller (-1) scale.
    void ZoomAsked(int direction);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

  private:
    double UnitsPerTwip() const;
    QSize PagePixels() const;
    /// Top left of a page in the viewport.
    QPoint PageCorner(int page) const;
    void UpdateScrollBars();

    const PageDocument& document_;
    Fit fit_ = Fit::Page;
    double scale_ = 1;
    int lastTold_ = 0;
};

}  // namespace kalvane
