#include "ui/painter_target.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <cmath>

#include "ui/text.h"

namespace kalvane {
namespace {

constexpr double kTwipsPerPoint = 20;
constexpr double kPaperStroke = 0.5 * kTwipsPerPoint;
constexpr double kFontPoints = 9;

/// A font that holds all Chinese characters, where it is installed.
QFont TextFont() {
    QFont font = QGuiApplication::font();
    const QString chinese = QStringLiteral("Noto Sans CJK SC");
    if (QFontDatabase::hasFamily(chinese)) font.setFamily(chinese);
    // Hinted advances differ from size to size, and a preview would not match its page.
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

}  // namespace

PainterTarget::PainterTarget(QPainter& painter, double unitsPerTwip, Medium medium)
    : painter_(painter), unitsPerTwip_(unitsPerTwip), medium_(medium), font_(TextFont()) {
    SetFontPoints(kFontPoints);
    painter_.setRenderHint(QPainter::Antialiasing);
}

void PainterTarget::SetFontPoints(double points) {
    // The font's own points are those of the device's resolution, ours those of the scale.
    const double units = points * kTwipsPerPoint * unitsPerTwip_;
    font_.setPointSizeF(units * 72 / painter_.device()->logicalDpiY());
}

void PainterTarget::DrawLine(float x1, float y1, float x2, float y2) {
    QPointF from(x1 * unitsPerTwip_, y1 * unitsPerTwip_);
    QPointF to(x2 * unitsPerTwip_, y2 * unitsPerTwip_);
    QPen pen(Qt::black, 1, strokeStyle_, Qt::SquareCap);
    if (medium_ == Medium::Screen) {
        const auto pixelCentre = [](QPointF p) {
            return QPointF(std::floor(p.x()) + 0.5, std::floor(p.y()) + 0.5);
        };
        from = pixelCentre(from);
        to = pixelCentre(to);
    } else {
        pen.setWidthF(kPaperStroke * unitsPerTwip_);
        pen.setCapStyle(Qt::RoundCap);
    }
    painter_.setPen(pen);
    painter_.drawLine(from, to);
}

void PainterTarget::DrawText(float x, float y, std::string_view text) {
    const double ascent = QFontMetricsF(font_, painter_.device()).ascent();
    painter_.setFont(font_);
    painter_.setPen(textColour_);
    painter_.drawText(QPointF(x * unitsPerTwip_, y * unitsPerTwip_ + ascent), ToQt(text));
}

float PainterTarget::TextHeight(std::string_view) const {
    return static_cast<float>(QFontMetricsF(font_, painter_.device()).height() / unitsPerTwip_);
}

float PainterTarget::TextWidth(std::string_view text) const {
    const QFontMetricsF metrics(font_, painter_.device());
    return static_cast<float>(metrics.horizontalAdvance(ToQt(text)) / unitsPerTwip_);
}

}  // namespace kalvane
