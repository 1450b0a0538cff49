#include "ui/picture_box.h"

#include <QPainter>

namespace kalvane {
namespace {

constexpr int kBorder = PictureBox::kBorderTwips / kTwipsPerPixel;
constexpr double kUnitsPerTwip = 1.0 / kTwipsPerPixel;

/// A box of the frame's shape.
QSize FrameShape(int width) {
    return {width, static_cast<int>(static_cast<float>(width) * kFrameHeight / kFrameWidth)};
}

}  // namespace

PictureBox::PictureBox(const QString& name, QWidget* parent) : QWidget(parent) {
    setObjectName(name);
    setContentsMargins(kBorder, kBorder, kBorder, kBorder);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void PictureBox::SetPersistent(Layer layer) {
    persistent_ = std::move(layer);
    transient_ = nullptr;
    Refresh();
}

void PictureBox::SetTransient(Layer layer) {
    transient_ = std::move(layer);
    update();
}

void PictureBox::Refresh() {
    pixels_ = {};
    update();
}

Box PictureBox::Inner() const {
    const QSize size = contentsRect().size();
    return {0, 0, static_cast<float>(size.width() * kTwipsPerPixel),
            static_cast<float>(size.height() * kTwipsPerPixel)};
}

QSize PictureBox::sizeHint() const {
    return FrameShape(480);
}

QSize PictureBox::minimumSizeHint() const {
    return FrameShape(160);
}

void PictureBox::PaintPersistent() {
    const QSize size = contentsRect().size() * devicePixelRatioF();
    if (pixels_.size() == size && pixels_.devicePixelRatio() == devicePixelRatioF()) return;
    pixels_ = QPixmap(size);
    pixels_.setDevicePixelRatio(devicePixelRatioF());
    pixels_.fill(Qt::white);
    if (!persistent_) return;
    QPainter painter(&pixels_);
    PainterTarget target(painter, kUnitsPerTwip, PainterTarget::Medium::Screen);
    persistent_(target, Inner());
}

void PictureBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(QPen(palette().color(QPalette::Mid), kBorder));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const QRect inner = contentsRect();
    if (inner.isEmpty()) return;

    PaintPersistent();
    painter.drawPixmap(inner.topLeft(), pixels_);
    if (!transient_) return;
    painter.setClipRect(inner);
    painter.translate(inner.topLeft());
    PainterTarget target(painter, kUnitsPerTwip, PainterTarget::Medium::Screen);
    transient_(target, Inner());
}

}  // namespace kalvane
