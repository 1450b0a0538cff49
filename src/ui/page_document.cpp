#include "ui/page_document.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>

#include "numeric/error.h"
#include "platform/files.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr double kTwipsPerInch = 1440;
constexpr int kPdfDotsPerInch = 1200;

double Twips(double millimetres) {
    return millimetres / 25.4 * kTwipsPerInch;
}

/// Sheet size with the orientation taken into account.
QSizeF SheetMillimetres(const PageSetup& setup) {
    const QSizeF size = QPageSize(setup.size).size(QPageSize::Millimeter);
    return setup.orientation == QPageLayout::Landscape ? size.transposed() : size;
}

/// Measures on a canvas where one unit is one twip: fine enough for every output.
class CanvasMeasure final : public TextMeasure {
  public:
    float Width(std::string_view text, PageFont font) const override {
        target_.SetFont(font);
        return target_.TextWidth(text);
    }
    float Height(PageFont font) const override {
        target_.SetFont(font);
        return target_.TextHeight({});
    }

  private:
    QImage canvas_{1, 1, QImage::Format_RGB32};
    mutable QPainter painter_{&canvas_};
    mutable PainterTarget target_{painter_, 1, PainterTarget::Medium::Paper};
};

PageRecord Recorded(const PageSetup& setup, const PaintPages& paint) {
    const QSizeF sheet = SheetMillimetres(setup);
    const QMarginsF& margins = setup.margins;
    const CanvasMeasure measure;
    PageRecord record(measure, static_cast<float>(Twips(sheet.width() - margins.left() - margins.right())),
                      static_cast<float>(Twips(sheet.height() - margins.top() - margins.bottom())));
    paint(record);
    return record;
}

/// Paints recorded commands.
struct Replay {
    PainterTarget& target;

    void operator()(const PageLine& line) const { target.DrawLine(line.x1, line.y1, line.x2, line.y2); }
    void operator()(const PageText& text) const {
        target.SetFont(text.font);
        target.DrawText(text.x, text.y, text.text);
    }
    void operator()(const PageFill& fill) const { target.FillBox(fill.box, fill.colour); }
};

}  // namespace

PageDocument::PageDocument(QString title, const PageSetup& setup, const PaintPages& paint)
    : title_(std::move(title)), setup_(setup), record_(Recorded(setup, paint)) {}

QSizeF PageDocument::SheetSize() const {
    const QSizeF sheet = SheetMillimetres(setup_);
    return {Twips(sheet.width()), Twips(sheet.height())};
}

void PageDocument::PaintPage(int page, QPainter& painter, double unitsPerTwip,
                             PainterTarget::Medium medium) const {
    painter.save();
    QPointF corner(Twips(setup_.margins.left()) * unitsPerTwip, Twips(setup_.margins.top()) * unitsPerTwip);
    // Strokes on a screen rely on whole pixels.
    if (medium == PainterTarget::Medium::Screen) corner = corner.toPoint();
    painter.translate(corner);
    {
        PainterTarget target(painter, unitsPerTwip, medium);
        const Replay replay{target};
        for (const PageCommand& command : record_.Pages()[static_cast<std::size_t>(page)]) {
            std::visit(replay, command);
        }
    }
    painter.restore();
}

QPageLayout PageDocument::Layout() const {
    // The whole sheet: the margins are in the painting, so that no printer shifts it by margins of its own.
    QPageLayout layout(QPageSize(setup_.size), setup_.orientation, QMarginsF());
    layout.setMode(QPageLayout::FullPageMode);
    return layout;
}

void PageDocument::PaintOn(QPagedPaintDevice& device, int dotsPerInch, int first, int last) const {
    QPainter painter;
    if (!painter.begin(&device)) throw Error("打印不能开始，请检查打印机。");
    for (int page = first; page <= last; ++page) {
        if (page > first && !device.newPage()) throw Error("不能开始新的一页，请检查打印机。");
        PaintPage(page, painter, dotsPerInch / kTwipsPerInch, PainterTarget::Medium::Paper);
    }
    if (!painter.end()) throw Error("打印没有完成，请检查打印机。");
}

void PageDocument::WritePdf(const std::filesystem::path& path, int first, int last) const {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter writer(&buffer);
        writer.setResolution(kPdfDotsPerInch);
        writer.setPageLayout(Layout());
        writer.setTitle(title_);
        PaintOn(writer, kPdfDotsPerInch, first, last);
    }
    const QByteArray& bytes = buffer.data();
    WriteFileAtomically(path, {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

void PageDocument::Print(const QString& printer, int copies, int first, int last) const {
    QPrinter device(QPrinter::HighResolution);
    device.setPrinterName(printer);
    if (!device.isValid()) throw Error("打印机“" + FromQt(printer) + "”不能使用。");
    device.setDocName(title_);
    device.setPageLayout(Layout());
    device.setFullPage(true);
    device.setCopyCount(copies);
    PaintOn(device, device.resolution(), first, last);
}

}  // namespace kalvane
