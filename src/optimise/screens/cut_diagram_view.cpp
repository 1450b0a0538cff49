#include "optimise/screens/cut_diagram_view.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>

#include "ui/painter_target.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr int kMargin = 12;
/// A whole number of pixels, so that scrolling moves the rows as they were painted.
constexpr int kRowPixels = static_cast<int>(CutDiagram::kRowHeight / kTwipsPerPixel);

/// A page that is the painter's canvas, one pixel to 15 twips.
class CanvasPage final : public PageTarget {
  public:
    CanvasPage(QPainter& painter, int width, int height)
        : width_(width), height_(height), target_(painter, kScale, PainterTarget::Medium::Screen) {}

    float Width() const override { return static_cast<float>(width_ * kTwipsPerPixel); }
    float Height() const override { return static_cast<float>(height_ * kTwipsPerPixel); }
    void SetFont(PageFont font) override { target_.SetFont(font); }
    float TextWidth(std::string_view text) const override { return target_.TextWidth(text); }
    float TextHeight(std::string_view text) const override { return target_.TextHeight(text); }
    void DrawLine(float x1, float y1, float x2, float y2) override { target_.DrawLine(x1, y1, x2, y2); }
    void DrawText(float x, float y, std::string_view text) override { target_.DrawText(x, y, text); }
    void FillBox(const Box& box, PageColour colour) override { target_.FillBox(box, colour); }
    void NewPage() override {}
    void EndDocument() override {}

  private:
    static constexpr double kScale = 1.0 / kTwipsPerPixel;

    int width_;
    int height_;
    PainterTarget target_;
};

}  // namespace

CutDiagramView::CutDiagramView(QWidget* parent) : QAbstractScrollArea(parent) {
    setObjectName(QStringLiteral("PicCut"));
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::StrongFocus);
    QPalette white = viewport()->palette();
    white.setColor(QPalette::Window, Qt::white);
    viewport()->setPalette(white);
    viewport()->setBackgroundRole(QPalette::Window);
    viewport()->setAutoFillBackground(true);
}

void CutDiagramView::Show(std::unique_ptr<CutDiagram> diagram) {
    diagram_ = std::move(diagram);
    FitScrollBar();
    viewport()->update();
}

void CutDiagramView::paintEvent(QPaintEvent* event) {
    if (diagram_ == nullptr) return;
    QPainter painter(viewport());
    const int top = verticalScrollBar()->value();
    const int width = viewport()->width() - 2 * kMargin;
    painter.translate(kMargin, -top);
    CanvasPage page(painter, width, viewport()->height());
    const int first = (top + event->rect().top()) / kRowPixels;
    const int last =
        std::min((top + event->rect().bottom()) / kRowPixels, static_cast<int>(diagram_->RowCount()) - 1);
    for (int row = first; row <= last; ++row) {
        diagram_->PaintRow(page, static_cast<std::size_t>(row),
                           static_cast<float>(row) * kRowPixels * kTwipsPerPixel, page.Width());
    }
}

void CutDiagramView::resizeEvent(QResizeEvent*) {
    FitScrollBar();
}

void CutDiagramView::scrollContentsBy(int dx, int dy) {
    viewport()->scroll(dx, dy);
}

void CutDiagramView::keyPressEvent(QKeyEvent* event) {
    QScrollBar& bar = *verticalScrollBar();
    if (event->key() == Qt::Key_Home) {
        bar.setValue(bar.minimum());
    } else if (event->key() == Qt::Key_End) {
        bar.setValue(bar.maximum());
    } else {
        QAbstractScrollArea::keyPressEvent(event);
    }
}

void CutDiagramView::FitScrollBar() {
    const int rows = diagram_ == nullptr ? 0 : static_cast<int>(diagram_->RowCount());
    verticalScrollBar()->setSingleStep(kRowPixels);
    verticalScrollBar()->setPageStep(viewport()->height());
    verticalScrollBar()->setRange(0, std::max(0, rows * kRowPixels - viewport()->height()));
}

}  // namespace kalvane
