#pragma once

#include <QPixmap>
#include <QWidget>
#include <functional>

#include "ui/painter_target.h"

namespace kalvane {

/// A white box that shows a picture in two layers: the persistent one, and the transient one above it. A
/// layer is a function that paints it; it runs again whenever the box needs it, at any size, so it must own
/// what it paints (a copy of the drawing) or read it from an owner that outlives the box, and must not
/// throw. The persistent layer is kept as pixels, so that a transient shape can follow the mouse.
class PictureBox : public QWidget {
    Q_OBJECT

  public:
    /// `inner` is the box to paint into, in twips: (0, 0, inner width, inner height).
    using Layer = std::function<void(PainterTarget& target, Box inner)>;

    /// Width of the border on each side, in twips.
    static constexpr int kBorderTwips = kTwipsPerPixel;

    explicit PictureBox(const QString& name, QWidget* parent = nullptr);

    /// Replaces the persistent layer and drops the transient one. An empty function clears the box.
    void SetPersistent(Layer layer);
    /// Replaces the transient layer; an empty function drops it.
    void SetTransient(Layer layer);
    /// Paints both layers anew, after what they read has changed.
    void Refresh();

    /// Whole-number inner size in twips.
    Box Inner() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void PaintPersistent();

    Layer persistent_;
    Layer transient_;
    QPixmap pixels_;  // the persistent layer; null when it must be painted
};

}  // namespace kalvane
