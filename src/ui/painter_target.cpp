#include "ui/painter_target.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QPainter>
#include <cmath>

#include "ui/text.h"

namespace kalvane {
namespace {

constexpr double kTwipsPerPoint = 20;
constexpr double kPaperStroke = 0.5 * kTwipsPerPoint;

/// Smoothing takes three times as long. No drawing that is made for people to read has so many slanted
/// strokes, and one that has is to be painted without a wait.
constexpr std::size_t kMostSmoothed = 500;

QPointF PixelCentre(QPointF p) {
    return {std::floor(p.x()) + 0.5, std::floor(p.y()) + 0.5};
}

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
    : painter_(painter), unitsPerTwip_(unitsPerTwip), medium_(medium), font_(TextFont()), metrics_(font_) {
    UseFont();
    const bool onScreen = medium_ == Medium::Screen;
    strokePen_ = QPen(Qt::black, onScreen ? 1 : kPaperStroke * unitsPerTwip_, Qt::SolidLine,
                      onScreen ? Qt::SquareCap : Qt::RoundCap);
    painter_.setRenderHint(QPainter::Antialiasing);
}

PainterTarget::~PainterTarget() {
    PaintStrokes();
}

void PainterTarget::SetFont(PageFont font) {
    if (font == pageFont_) return;
    pageFont_ = font;
    UseFont();
}

void PainterTarget::UseFont() {
    // The font's own points are those of the device's resolution, ours those of the scale.
    const double units = pageFont_.points * kTwipsPerPoint * unitsPerTwip_;
    font_.setPointSizeF(units * 72 / painter_.device()->logicalDpiY());
    font_.setBold(pageFont_.bold);
    metrics_ = QFontMetricsF(font_, painter_.device());
}

void PainterTarget::SetDashed(bool dashed) {
    const Qt::PenStyle style = dashed ? Qt::DashLine : Qt::SolidLine;
    if (strokePen_.style() == style) return;
    PaintStrokes();
    strokePen_.setStyle(style);
}

/// A change of pen takes as long as a short stroke.
void PainterTarget::UsePen(const QPen& pen) {
    if (painter_.pen() != pen) painter_.setPen(pen);
}

void PainterTarget::DrawLine(float x1, float y1, float x2, float y2) {
    const QPointF from(x1 * unitsPerTwip_, y1 * unitsPerTwip_);
    const QPointF to(x2 * unitsPerTwip_, y2 * unitsPerTwip_);
    if (medium_ == Medium::Paper) {
        UsePen(strokePen_);
        painter_.drawLine(from, to);
        return;
    }
    const QLineF line(PixelCentre(from), PixelCentre(to));
    (line.dx() == 0 || line.dy() == 0 ? straight_ : slanted_).push_back(line);
}

void PainterTarget::PaintStrokes() {
    const auto paint = [this](std::vector<QLineF>& lines, bool smooth) {
        if (lines.empty()) return;
        UsePen(strokePen_);
        painter_.setRenderHint(QPainter::Antialiasing, smooth);
        painter_.drawLines(lines.data(), static_cast<int>(lines.size()));
        lines.clear();
    };
    slantedPainted_ += slanted_.size();
    paint(straight_, false);
    paint(slanted_, slantedPainted_ <= kMostSmoothed);
}

void PainterTarget::FillBox(const Box& box, PageColour colour) {
    const QRectF area(QPointF(box.x1 * unitsPerTwip_, box.y1 * unitsPerTwip_),
                      QPointF(box.x2 * unitsPerTwip_, box.y2 * unitsPerTwip_));
    PaintStrokes();
    // On a screen whole pixels, whatever came before.
    if (medium_ == Medium::Screen) painter_.setRenderHint(QPainter::Antialiasing, false);
    painter_.fillRect(area.normalized(), QColor(colour.red, colour.green, colour.blue));
}

void PainterTarget::DrawText(float x, float y, std::string_view text) {
    PaintStrokes();
    if (painter_.font() != font_) painter_.setFont(font_);
    UsePen(textColour_);
    painter_.drawText(QPointF(x * unitsPerTwip_, y * unitsPerTwip_ + metrics_.ascent()), ToQt(text));
}

float PainterTarget::TextHeight(std::string_view) const {
    return static_cast<float>(metrics_.height() / unitsPerTwip_);
}

float PainterTarget::TextWidth(std::string_view text) const {
    return static_cast<float>(metrics_.horizontalAdvance(ToQt(text)) / unitsPerTwip_);
}

}  // namespace kalvane
