#include "drawing/screens/window_picture.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace kalvane {
namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kMarginShare = 0.03;  // of the image, so that a value at the frame's edge keeps some room

}  // namespace

void PaintLabelValues(PainterTarget& target, std::span<const WindowLabel> labels, const Box& inner,
                      int selected) {
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const WindowLabel& label = labels[i];
        const bool isSelected = static_cast<int>(i) == selected;
        target.SetTextColour(isSelected ? QColor(255, 0, 0) : QColor(Qt::black));
        target.DrawText(static_cast<float>(label.px * inner.x2 / kFrameWidth),
                        static_cast<float>(label.py * inner.y2 / kFrameHeight), label.value);
    }
    target.SetTextColour(Qt::black);
}

QImage WindowPictureImage(const MCPicture& picture, std::span<const WindowLabel> labels, QSize size,
                          double dotsPerInch) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::white);
    const double unitsPerTwip = dotsPerInch / kTwipsPerInch;
    const double share = (1 - 2 * kMarginShare) *
                         std::min(size.width() / double{kFrameWidth}, size.height() / double{kFrameHeight});
    const double width = share * kFrameWidth;
    const double height = share * kFrameHeight;
    {
        QPainter painter(&image);
        // Whole pixels, on which the strokes of a screen rely.
        painter.translate(std::floor((size.width() - width) / 2), std::floor((size.height() - height) / 2));
        PainterTarget target(painter, unitsPerTwip, PainterTarget::Medium::Screen);
        const Box frame{0, 0, static_cast<float>(width / unitsPerTwip),
                        static_cast<float>(height / unitsPerTwip)};
        picture.OutMCNoStr(target, frame);
        PaintLabelValues(target, labels, frame);
    }
    return image;
}

}  // namespace kalvane
