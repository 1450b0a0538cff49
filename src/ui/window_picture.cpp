#include "ui/window_picture.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <cmath>

#include "platform/files.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr double kTwipsPerInch = 1440;
constexpr double kMarginShare = 0.03;  // of the image, so that a value at the frame's edge keeps some room
constexpr int kPdfDotsPerInch = 1200;
constexpr double kPdfMargin = 15;  // millimetres
constexpr double kTitlePoints = 12;

/// Paints at the painter's origin.
void PaintWindow(PainterTarget& target, const MCPicture& picture, std::span<const WindowLabel> labels,
                 const Box& inner) {
    picture.OutMCNoStr(target, inner);
    PaintLabelValues(target, labels, inner);
}

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
    QPainter painter(&image);
    // Whole pixels, on which the strokes of a screen rely.
    painter.translate(std::floor((size.width() - width) / 2), std::floor((size.height() - height) / 2));
    PainterTarget target(painter, unitsPerTwip, PainterTarget::Medium::Screen);
    PaintWindow(target, picture, labels,
                {0, 0, static_cast<float>(width / unitsPerTwip), static_cast<float>(height / unitsPerTwip)});
    return image;
}

void WriteWindowPicturePdf(const std::filesystem::path& path, std::string_view title,
                           const MCPicture& picture, std::span<const WindowLabel> labels) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(kPdfDotsPerInch);
        writer.setPageSize(QPageSize(QPageSize::A4));
        writer.setPageMargins(QMarginsF(kPdfMargin, kPdfMargin, kPdfMargin, kPdfMargin),
                              QPageLayout::Millimeter);
        writer.setTitle(ToQt(title));
        QPainter painter(&writer);
        PainterTarget target(painter, writer);
        target.SetFontPoints(kTitlePoints);
        target.DrawText(0, 0, title);
        const double below = 2 * target.TextHeight(title);
        painter.translate(0, below * kPdfDotsPerInch / kTwipsPerInch);
        target.SetFontPoints(9);
        PaintWindow(target, picture, labels, kFrame);
    }
    const QByteArray& bytes = buffer.data();
    WriteFileAtomically(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

}  // namespace kalvane
