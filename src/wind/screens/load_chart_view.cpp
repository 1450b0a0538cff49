#include "wind/screens/load_chart_view.h"

#include <QPainter>
#include <QPolygonF>
#include <cmath>

#include "ui/text.h"
#include "wind/recheck.h"

namespace kalvane {
namespace {

constexpr int kLeft = 44;
constexpr int kRight = 26;
constexpr int kTop = 34;
constexpr int kBottom = 42;
constexpr QSize kSmallest(300, 220);
constexpr double kHighest = kHeightMetres.back();
constexpr int kHeightStep = 100;
constexpr std::array<const char*, kTerrains> kColours = {"#1f5fa8", "#2d8a4e", "#b06a00", "#7a3d99"};

/// A step of 1, 2 or 5 that divides an axis up to `highest` into some five parts.
double NiceStep(double highest) {
    const double raw = highest / 5;
    const double power = std::pow(10, std::floor(std::log10(raw)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (raw <= factor * power) return factor * power;
    }
    return 10 * power;
}

}  // namespace

LoadChartView::LoadChartView(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("PicWk"));
    setMinimumSize(kSmallest);
    setToolTip(QStringLiteral("四类地面上的风荷载标准值随高度的变化，圆点是所选的高度和地面粗糙度"));
}

void LoadChartView::Show(LoadChart chart) {
    chart_ = std::move(chart);
    update();
}

QPointF LoadChartView::Place(const QRectF& field, std::size_t height, double wk) const {
    return {field.left() + field.width() * kHeightMetres[height] / kHighest,
            field.bottom() - field.height() * wk / top_};
}

void LoadChartView::PaintAxes(QPainter& painter, const QRectF& field) const {
    painter.setPen(QColor(0xdd, 0xdd, 0xdd));
    const double step = NiceStep(chart_.Highest());
    for (int line = 0; line * step <= top_ + step / 2; ++line) {
        const double wk = line * step;
        const double y = Place(field, 0, wk).y();
        painter.setPen(QColor(0xdd, 0xdd, 0xdd));
        painter.drawLine(QPointF(field.left(), y), QPointF(field.right(), y));
        painter.setPen(Qt::black);
        painter.drawText(QRectF(0, y - 10, kLeft - 6, 20), Qt::AlignRight | Qt::AlignVCenter,
                         ToQt(Figure(wk)));
    }
    for (int height = 0; height <= static_cast<int>(kHighest); height += kHeightStep) {
        const double x = field.left() + field.width() * height / kHighest;
        painter.drawLine(QPointF(x, field.bottom()), QPointF(x, field.bottom() + 4));
        painter.drawText(QRectF(x - 30, field.bottom() + 4, 60, 16), Qt::AlignHCenter,
                         QString::number(height));
    }
    painter.drawText(QRectF(field.left(), field.bottom() + 20, field.width(), 20), Qt::AlignRight,
                     QStringLiteral("高度 (m)"));
    painter.drawText(QRectF(4, 6, width(), 18), Qt::AlignLeft, QStringLiteral("Wk (kN/m²)"));
    painter.drawRect(field);
}

void LoadChartView::PaintLine(QPainter& painter, const QRectF& field, std::size_t terrain) const {
    QPolygonF line;
    for (std::size_t height = 0; height < kHeights; ++height) {
        line << Place(field, height, chart_.wk[terrain][height]);
    }
    const bool isChosen = chart_.chosen && chart_.chosen->terrain == terrain;
    painter.setPen(QPen(QColor(QLatin1String(kColours[terrain])), isChosen ? 2.5 : 1.2));
    painter.drawPolyline(line);
    // The lines meet at great heights; their letters stand apart, where they are far from each other.
    constexpr std::size_t kLetterAt = 11;
    painter.drawText(line[kLetterAt] + QPointF(0, -4), QString(QChar('A' + static_cast<int>(terrain))));
}

void LoadChartView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.setRenderHint(QPainter::Antialiasing);
    if (!(chart_.Highest() > 0)) {
        painter.drawText(rect(), Qt::AlignCenter, QStringLiteral("填写基本风压和系数后显示风荷载"));
        return;
    }
    const double step = NiceStep(chart_.Highest());
    top_ = std::ceil(chart_.Highest() / step) * step;
    const QRectF field = QRectF(rect()).adjusted(kLeft, kTop, -kRight, -kBottom);
    PaintAxes(painter, field);
    for (std::size_t terrain = 0; terrain < kTerrains; ++terrain) PaintLine(painter, field, terrain);
    if (!chart_.chosen) return;
    const double wk = chart_.wk[chart_.chosen->terrain][chart_.chosen->height];
    const QPointF point = Place(field, chart_.chosen->height, wk);
    painter.setPen(Qt::red);
    painter.setBrush(Qt::red);
    painter.drawEllipse(point, 4, 4);
    painter.drawText(QRectF(0, 6, width() - kRight, 18), Qt::AlignRight,
                     QStringLiteral("● Wk = %1").arg(ToQt(Figure(wk))));
}

}  // namespace kalvane
