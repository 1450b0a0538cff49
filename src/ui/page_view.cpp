#include "ui/page_view.h"

#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

namespace kalvane {
namespace {

constexpr int kGap = 12;  // pixels around each page
constexpr int kLineStep = 40;

}  // namespace

PageView::PageView(const PageDocument& document, QWidget* parent)
    : QAbstractScrollArea(parent), document_(document) {
    setObjectName(QStringLiteral("Pages"));
    setFocusPolicy(Qt::StrongFocus);
    verticalScrollBar()->setSingleStep(kLineStep);
    horizontalScrollBar()->setSingleStep(kLineStep);
    // Always there, so that fitting the width does not depend on it.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

double PageView::UnitsPerTwip() const {
    const QSizeF sheet = document_.SheetSize();
    const double width = (viewport()->width() - 2 * kGap) / sheet.width();
    const double height = (viewport()->height() - 2 * kGap) / sheet.height();
    constexpr double kSmallest = 1.0 / 400;
    switch (fit_) {
        case Fit::Page:
            return std::max(kSmallest, std::min(width, height));
        case Fit::Width:
            return std::max(kSmallest, width);
        case Fit::None:
            break;
    }
    return scale_ / kTwipsPerPixel;
}

QSize PageView::PagePixels() const {
    return (document_.SheetSize() * UnitsPerTwip()).toSize();
}

QPoint PageView::PageCorner(int page) const {
    const QSize pixels = PagePixels();
    const int room = viewport()->width() - 2 * kGap - pixels.width();
    const int left = kGap + std::max(0, room / 2) - horizontalScrollBar()->value();
    return {left, kGap + page * (pixels.height() + kGap) - verticalScrollBar()->value()};
}

void PageView::UpdateScrollBars() {
    const QSize pixels = PagePixels();
    const QSize view = viewport()->size();
    horizontalScrollBar()->setPageStep(view.width());
    horizontalScrollBar()->setRange(0, std::max(0, pixels.width() + 2 * kGap - view.width()));
    verticalScrollBar()->setPageStep(fit_ == Fit::Page ? pixels.height() + kGap : view.height());
    const int all = kGap + document_.PageCount() * (pixels.height() + kGap);
    verticalScrollBar()->setRange(0, std::max(0, all - view.height()));
}

void PageView::SetZoom(Fit fit, double scale) {
    const double place =
        (verticalScrollBar()->value() + viewport()->height() / 2.0) / (PagePixels().height() + kGap);
    fit_ = fit;
    scale_ = scale;
    UpdateScrollBars();
    verticalScrollBar()->setValue(
        static_cast<int>(place * (PagePixels().height() + kGap) - viewport()->height() / 2.0));
    viewport()->update();
}

int PageView::CurrentPage() const {
    const int middle = verticalScrollBar()->value() + viewport()->height() / 2 - kGap;
    return std::clamp(middle / (PagePixels().height() + kGap), 0, document_.PageCount() - 1);
}

void PageView::ShowPage(int page) {
    verticalScrollBar()->setValue(page * (PagePixels().height() + kGap));
}

void PageView::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), palette().color(QPalette::Mid));
    const QSize pixels = PagePixels();
    for (int page = 0; page < document_.PageCount(); ++page) {
        const QRect sheet(PageCorner(page), pixels);
        if (!sheet.intersects(viewport()->rect())) continue;
        painter.fillRect(sheet, Qt::white);
        painter.save();
        painter.setClipRect(sheet);
        painter.translate(sheet.topLeft());
        document_.PaintPage(page, painter, UnitsPerTwip(), PainterTarget::Medium::Screen);
        painter.restore();
    }
}

void PageView::resizeEvent(QResizeEvent*) {
    UpdateScrollBars();
}

void PageView::wheelEvent(QWheelEvent* event) {
    if ((event->modifiers() & Qt::ControlModifier) == 0) {
        QAbstractScrollArea::wheelEvent(event);
    } else if (event->angleDelta().y() != 0) {
        Q_EMIT ZoomAsked(event->angleDelta().y() > 0 ? 1 : -1);
    }
}

void PageView::scrollContentsBy(int, int) {
    viewport()->update();
    const int page = CurrentPage();
    if (page == lastTold_) return;
    lastTold_ = page;
    Q_EMIT CurrentPageChanged(page);
}

}  // namespace kalvane
