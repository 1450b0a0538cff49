#pragma once

#include <QPixmap>
#include <QWidget>

#include "drawing/canvas.h"
#include "drawing/shape_record.h"

class QPainter;

namespace kalvane {

/// The canvas of the drawing desk. The frame is shown whole and in its shape, at any size of the window; the
/// wheel zooms into it around the pointer and the middle button moves the view. Positions of the mouse are
/// mapped back to drawing units, whatever the view. The persistent layer is kept as pixels, so that a shape
/// that follows the mouse costs only its own strokes.
class DrawingCanvas final : public QWidget, public Canvas {
    Q_OBJECT

  public:
    explicit DrawingCanvas(QWidget* parent);

    float Width() const override { return kFrameWidth; }
    float Height() const override { return kFrameHeight; }
    PaintTarget& Persistent() override;
    PaintTarget& Transient() override;
    void DrawDot(float x, float y) override;
    void Refresh() override;
    void Clear() override;
    void SetDashed(bool dashed) override;
    void ShowCrossHair(Point at) override;

    /// The point under a position in the widget, and back.
    Point ToFrame(QPointF position) const;
    QPointF ToWidget(Point at) const;

    /// Shows the whole frame again.
    void ResetView();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  Q_SIGNALS:
    // Points of the frame; beside it the mouse counts as on its edge.

    /// A button other than the middle one was pressed.
    void Pressed(bool leftButton, Point at);
    void Moved(Point at);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    /// How much of a record is on the pixels already.
    struct Painted {
        std::size_t strokes = 0;
        std::size_t texts = 0;
        std::size_t dots = 0;
    };

    Point PointOf(const QMouseEvent& event) const;
    double FitScale() const;
    double Scale() const { return FitScale() * zoom_; }  ///< pixels of a drawing unit
    /// Puts the view's top left corner as near to `origin` as the frame allows.
    void SetOrigin(QPointF origin);
    void PlaceCrossHair();
    void BringPixelsUp();
    Painted Paint(QPainter& painter, const ShapeRecord& record, const Painted& from) const;
    void PaintDots(QPainter& painter, const ShapeRecord& record, std::size_t from) const;
    void PaintShapes(QPainter& painter, const ShapeRecord& record, const Painted& from) const;

    ShapeRecord persistent_;
    ShapeRecord transient_;
    QPixmap pixels_;  ///< the persistent layer; null when it must be painted anew
    Painted painted_;

    double zoom_ = 1;
    QPoint origin_;  ///< of the frame in the widget
    bool panning_ = false;
    QPoint panFrom_;

    Point crossHair_;
    QWidget* line1_;  ///< upright
    QWidget* line2_;  ///< level
};

}  // namespace kalvane
