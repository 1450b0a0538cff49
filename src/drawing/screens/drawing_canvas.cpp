#include "drawing/screens/drawing_canvas.h"

#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

#include "ui/painter_target.h"

namespace kalvane {
namespace {

constexpr double kMostZoom = 16;
constexpr double kZoomOfNotch = 1.25;
constexpr double kNotch = 120;  // eighths of a degree
constexpr float kCrossHair = 300;

float TextHeightOfScreen() {
    QImage pixel(1, 1, QImage::Format_RGB32);
    QPainter painter(&pixel);
    return PainterTarget(painter, 1.0 / kTwipsPerPixel, PainterTarget::Medium::Screen).TextHeight("国");
}

QWidget* MakeHair(const char* name, QWidget* canvas) {
    auto* hair = new QWidget(canvas);
    hair->setObjectName(QLatin1String(name));
    hair->setAttribute(Qt::WA_TransparentForMouseEvents);
    hair->setAutoFillBackground(true);
    QPalette black;
    black.setColor(QPalette::Window, Qt::black);
    hair->setPalette(black);
    hair->hide();
    return hair;
}

QSize FrameSize(double scale) {
    return {static_cast<int>(std::floor(kFrameWidth * scale)) + 1,
            static_cast<int>(std::floor(kFrameHeight * scale)) + 1};
}

}  // namespace

DrawingCanvas::DrawingCanvas(QWidget* parent)
    : QWidget(parent),
      persistent_(TextHeightOfScreen()),
      transient_(persistent_),
      line1_(MakeHair("Line1", this)),
      line2_(MakeHair("Line2", this)) {
    setObjectName(QStringLiteral("Pic"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::ClickFocus);
    setMouseTracking(true);
    setCursor(Qt::BlankCursor);  // the cross-hair stands in for it
    setAttribute(Qt::WA_OpaquePaintEvent);
}

PaintTarget& DrawingCanvas::Persistent() {
    update();
    return persistent_;
}

PaintTarget& DrawingCanvas::Transient() {
    Refresh();
    return transient_;
}

void DrawingCanvas::DrawDot(float x, float y) {
    persistent_.DrawDot(x, y);
    update();
}

void DrawingCanvas::Refresh() {
    transient_.Clear();
    update();
}

void DrawingCanvas::Clear() {
    persistent_.Clear();
    transient_.Clear();
    pixels_ = {};
    update();
}

void DrawingCanvas::SetDashed(bool dashed) {
    persistent_.SetDashed(dashed);
    transient_.SetDashed(dashed);
}

void DrawingCanvas::ShowCrossHair(Point at) {
    crossHair_ = at;
    line1_->show();
    line2_->show();
    PlaceCrossHair();
}

void DrawingCanvas::PlaceCrossHair() {
    const QPointF middle = ToWidget(crossHair_);
    const int x = static_cast<int>(std::floor(middle.x()));
    const int y = static_cast<int>(std::floor(middle.y()));
    const int arm = static_cast<int>(std::round(kCrossHair * Scale()));
    line1_->setGeometry(x, y - arm, 1, 2 * arm + 1);
    line2_->setGeometry(x - arm, y, 2 * arm + 1, 1);
}

double DrawingCanvas::FitScale() const {
    // The right and lower edge of the frame have a pixel of their own.
    return std::max(1.0, std::min(width() - 1.0, (height() - 1.0) * kFrameWidth / kFrameHeight)) /
           kFrameWidth;
}

Point DrawingCanvas::ToFrame(QPointF position) const {
    const QPointF inFrame = (position - origin_) / Scale();
    return {static_cast<float>(inFrame.x()), static_cast<float>(inFrame.y())};
}

QPointF DrawingCanvas::ToWidget(Point at) const {
    return QPointF(at.x, at.y) * Scale() + origin_;
}

Point DrawingCanvas::PointOf(const QMouseEvent& event) const {
    const Point at = ToFrame(event.position());
    return {std::clamp(at.x, 0.0F, kFrameWidth), std::clamp(at.y, 0.0F, kFrameHeight)};
}

void DrawingCanvas::ResetView() {
    zoom_ = 1;
    SetOrigin({});
}

void DrawingCanvas::SetOrigin(QPointF origin) {
    const QSize frame = FrameSize(Scale());
    const auto place = [](double wanted, int room, int length) {
        // A frame that is smaller than the widget stands in its middle; one that is larger covers it.
        if (length <= room) return (room - length) / 2;
        return static_cast<int>(std::clamp(std::round(wanted), double(room - length), 0.0));
    };
    origin_ = {place(origin.x(), width(), frame.width()), place(origin.y(), height(), frame.height())};
    pixels_ = {};
    PlaceCrossHair();
    update();
}

void DrawingCanvas::BringPixelsUp() {
    const QSize size = this->size() * devicePixelRatioF();
    if (pixels_.size() != size || pixels_.devicePixelRatio() != devicePixelRatioF()) {
        pixels_ = QPixmap(size);
        pixels_.setDevicePixelRatio(devicePixelRatioF());
        pixels_.fill(palette().color(QPalette::Mid));
        QPainter(&pixels_).fillRect(QRect(origin_, FrameSize(Scale())), Qt::white);
        painted_ = {};
    }
    QPainter painter(&pixels_);
    painted_ = Paint(painter, persistent_, painted_);
}

DrawingCanvas::Painted DrawingCanvas::Paint(QPainter& painter, const ShapeRecord& record,
                                            const Painted& from) const {
    painter.translate(origin_);
    PaintDots(painter, record, from.dots);
    PaintShapes(painter, record, from);
    painter.resetTransform();
    return {record.Strokes().size(), record.Texts().size(), record.Dots().size()};
}

void DrawingCanvas::PaintDots(QPainter& painter, const ShapeRecord& record, std::size_t from) const {
    const std::vector<Point>& dots = record.Dots();
    if (from == dots.size()) return;
    const double scale = Scale();
    QPolygon pixels;
    pixels.reserve(static_cast<int>(dots.size() - from));
    for (; from < dots.size(); ++from) {
        pixels << QPoint(static_cast<int>(std::floor(dots[from].x * scale)),
                         static_cast<int>(std::floor(dots[from].y * scale)));
    }
    painter.setPen(Qt::black);
    painter.drawPoints(pixels);
}

void DrawingCanvas::PaintShapes(QPainter& painter, const ShapeRecord& record, const Painted& from) const {
    PainterTarget target(painter, Scale(), PainterTarget::Medium::Screen);
    const std::vector<ShapeRecord::Stroke>& strokes = record.Strokes();
    for (std::size_t i = from.strokes; i < strokes.size(); ++i) {
        target.SetDashed(strokes[i].dashed);
        target.DrawLine(strokes[i].from.x, strokes[i].from.y, strokes[i].to.x, strokes[i].to.y);
    }
    const std::vector<ShapeRecord::Text>& texts = record.Texts();
    for (std::size_t i = from.texts; i < texts.size(); ++i) {
        target.DrawText(texts[i].at.x, texts[i].at.y, texts[i].text);
    }
}

void DrawingCanvas::paintEvent(QPaintEvent*) {
    BringPixelsUp();
    QPainter painter(this);
    painter.drawPixmap(0, 0, pixels_);
    Paint(painter, transient_, {});
}

void DrawingCanvas::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    SetOrigin(origin_);
}

void DrawingCanvas::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton) {
        panning_ = true;
        panFrom_ = event->pos() - origin_;
        setCursor(Qt::ClosedHandCursor);
        return;
    }
    Q_EMIT Pressed(event->button() == Qt::LeftButton, PointOf(*event));
}

void DrawingCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::MiddleButton) {
        ResetView();
    } else {
        mousePressEvent(event);  // two quick points are two points
    }
}

void DrawingCanvas::mouseMoveEvent(QMouseEvent* event) {
    if (panning_) {
        SetOrigin(event->pos() - panFrom_);
    } else {
        Q_EMIT Moved(PointOf(*event));
    }
}

void DrawingCanvas::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::MiddleButton) return;
    panning_ = false;
    setCursor(Qt::BlankCursor);
}

void DrawingCanvas::wheelEvent(QWheelEvent* event) {
    const QPointF pointer = event->position();
    const Point fixed = ToFrame(pointer);
    zoom_ = std::clamp(zoom_ * std::pow(kZoomOfNotch, event->angleDelta().y() / kNotch), 1.0, kMostZoom);
    SetOrigin(pointer - QPointF(fixed.x, fixed.y) * Scale());
    event->accept();
}

QSize DrawingCanvas::sizeHint() const {
    return FrameSize(1.0 / kTwipsPerPixel);
}

QSize DrawingCanvas::minimumSizeHint() const {
    return FrameSize(0.5 / kTwipsPerPixel);
}

}  // namespace kalvane
