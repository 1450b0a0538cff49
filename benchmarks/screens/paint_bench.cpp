#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <cmath>

#include "drawing/screens/drawing_canvas.h"
#include "drawing/shape_record.h"
#include "full_drawing.h"
#include "ui/painter_target.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr QSize kCanvas(950, 794);  // a tenth of a pixel for each unit
constexpr double kUnitsPerTwip = 0.1;

QImage WhiteImage() {
    QImage image(kCanvas, QImage::Format_RGB32);
    image.fill(Qt::white);
    return image;
}

void PaintFullDrawing(benchmark::State& state) {
    bench::SilentNotice notice;
    const CPictire picture = bench::FullDrawing(notice);
    QImage image = WhiteImage();
    for (auto _ : state) {
        QPainter painter(&image);
        PainterTarget target(painter, kUnitsPerTwip, PainterTarget::Medium::Screen);
        picture.PrintPic(target, kFrame, kFrame);
    }
}
BENCHMARK(PaintFullDrawing)->Unit(benchmark::kMillisecond);

/// The same strokes and texts, known beforehand, as one call each in the same font, and no stroke smoothed.
void PaintSamePrimitivesBare(benchmark::State& state) {
    bench::SilentNotice notice;
    QImage image = WhiteImage();
    ShapeRecord record(240);
    bench::FullDrawing(notice).PrintPic(record, kFrame, kFrame);
    std::vector<QLineF> lines;
    for (const ShapeRecord::Stroke& stroke : record.Strokes()) {
        const auto pixel = [](float at) { return std::floor(at * kUnitsPerTwip) + 0.5; };
        lines.emplace_back(pixel(stroke.from.x), pixel(stroke.from.y), pixel(stroke.to.x),
                           pixel(stroke.to.y));
    }
    std::vector<std::pair<QPointF, QString>> texts;
    for (const ShapeRecord::Text& text : record.Texts()) {
        texts.emplace_back(QPointF(text.at.x, text.at.y) * kUnitsPerTwip, ToQt(text.text));
    }
    QFont font(QStringLiteral("Noto Sans CJK SC"));
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPointSizeF(9 * 20 * kUnitsPerTwip * 72 / image.logicalDpiY());
    for (auto _ : state) {
        QPainter painter(&image);
        painter.setPen(QPen(Qt::black, 1, Qt::SolidLine, Qt::SquareCap));
        painter.setFont(font);
        for (const QLineF& line : lines) painter.drawLine(line);
        for (const auto& [at, text] : texts) painter.drawText(at, text);
    }
    state.counters["strokes"] = static_cast<double>(lines.size());
}
BENCHMARK(PaintSamePrimitivesBare)->Unit(benchmark::kMillisecond);

/// The desk repaints its whole canvas, as after a deletion.
void RepaintCanvas(benchmark::State& state) {
    bench::SilentNotice notice;
    const CPictire picture = bench::FullDrawing(notice);
    DrawingCanvas canvas(nullptr);
    canvas.resize(kCanvas);
    QImage image = WhiteImage();
    for (auto _ : state) {
        canvas.Clear();
        picture.PrintPic(canvas.Persistent(), kFrame, kFrame);
        canvas.render(&image);
    }
}
BENCHMARK(RepaintCanvas)->Unit(benchmark::kMillisecond);

/// A dimension mark follows the mouse over the largest drawing.
void MoveRubberBand(benchmark::State& state) {
    bench::SilentNotice notice;
    CPictire picture = bench::FullDrawing(notice);
    DrawingCanvas canvas(nullptr);
    canvas.resize(kCanvas);
    picture.PrintPic(canvas.Persistent(), kFrame, kFrame);
    CPictire mark(notice);
    mark.AddDim({{1000, 1000}, {8000, 1000}, {8000, 500}});
    QImage image = WhiteImage();
    canvas.render(&image);
    for (auto _ : state) {
        mark.PrintPic(canvas.Transient(), kFrame, kFrame);
        canvas.render(&image);
    }
}
BENCHMARK(MoveRubberBand)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kalvane

int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
