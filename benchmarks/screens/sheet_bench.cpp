#include <benchmark/benchmark.h>

#include <QBuffer>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QPushButton>

#include "app/starter_library.h"
#include "full_drawing.h"
#include "output/screens/FrmGJB.h"
#include "platform/files.h"
#include "scratch_store.h"
#include "session/app_state.h"
#include "ui/page_document.h"
#include "ui/text.h"

namespace kalvane {
namespace {

constexpr int kSheets = 1000;
constexpr int kDotsPerInch = 1200;
constexpr double kUnitsPerTwip = kDotsPerInch / 1440.0;
const SheetOrigin kOrigin{"1", "宏达", SheetDate(2026, 11, 25)};

/// The starter library with its sample project, as the program's main store.
class SampleStore {
  public:
    SampleStore() {
        App().mainConnection = std::make_unique<Connection>(scratch_.file, StoreKind::Main);
        FillFromStarterLibrary(App().Main());
    }
    SampleStore(const SampleStore&) = delete;
    SampleStore& operator=(const SampleStore&) = delete;
    ~SampleStore() { App().mainConnection.reset(); }

    /// The sheets of the sample's windows, over and over until there are `count`.
    static SheetSet Sheets(std::size_t count) {
        const std::vector<WindowEntry> sample = ListWindows(App().Main(), "1");
        std::vector<WindowEntry> windows;
        while (windows.size() < count) windows.push_back(sample[windows.size() % sample.size()]);
        return {App().Main(), SharedFieldSlots(), kOrigin, std::move(windows)};
    }

  private:
    bench::ScratchStore scratch_;
};

/// Turns to the next sheet and paints the screen.
void ShowOneSheet(benchmark::State& state) {
    const SampleStore store;
    FrmGJB screen(SampleStore::Sheets(kSheets), 1, nullptr);
    QImage image(screen.size(), QImage::Format_RGB32);
    screen.render(&image);
    for (auto _ : state) {
        screen.findChild<QPushButton*>(QStringLiteral("CmdNext"))->click();
        screen.render(&image);
    }
}
BENCHMARK(ShowOneSheet)->Unit(benchmark::kMillisecond)->Iterations(kSheets - 1);

void SheetsToPdf(benchmark::State& state) {
    const SampleStore store;
    const SheetSet sheets = SampleStore::Sheets(kSheets);
    bench::SilentNotice notice;
    const std::filesystem::path file = "bench-sheets.pdf";
    for (auto _ : state) {
        const auto paint = [&](PageTarget& page) { sheets.Print(page, 1, kSheets, {}, notice); };
        PageDocument({}, {}, paint).WritePdf(file);
    }
    std::filesystem::remove(file);
}
BENCHMARK(SheetsToPdf)->Unit(benchmark::kMillisecond);

/// Paints recorded commands with nothing between them and the painter.
struct BarePainting {
    QPainter& painter;

    void operator()(const PageLine& line) const {
        painter.drawLine(QPointF(line.x1, line.y1) * kUnitsPerTwip,
                         QPointF(line.x2, line.y2) * kUnitsPerTwip);
    }
    void operator()(const PageText& text) const {
        painter.drawText(QPointF(text.x, text.y) * kUnitsPerTwip, ToQt(text.text));
    }
    void operator()(const PageFill&) const {}
};

/// The same commands, known beforehand.
void SameCommandsToPdfBare(benchmark::State& state) {
    const SampleStore store;
    bench::SilentNotice notice;
    class NoMeasure final : public TextMeasure {
      public:
        float Width(std::string_view, PageFont) const override { return 0; }
        float Height(PageFont) const override { return 0; }
    };
    const NoMeasure measure;
    PageRecord record(measure, 11000, 15900);
    SampleStore::Sheets(kSheets).Print(record, 1, kSheets, {}, notice);
    QFont font(QStringLiteral("Noto Sans CJK SC"), 9);
    font.setHintingPreference(QFont::PreferNoHinting);
    const std::filesystem::path file = "bench-sheets.pdf";
    for (auto _ : state) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        {
            QPdfWriter writer(&buffer);
            writer.setResolution(kDotsPerInch);
            QPainter painter(&writer);
            painter.setPen(QPen(Qt::black, 10 * kUnitsPerTwip, Qt::SolidLine, Qt::RoundCap));
            painter.setFont(font);
            const BarePainting bare{painter};
            for (std::size_t page = 0; page < record.Pages().size(); ++page) {
                if (page > 0) writer.newPage();
                for (const PageCommand& command : record.Pages()[page]) std::visit(bare, command);
            }
        }
        WriteFileAtomically(file, {buffer.data().constData(), static_cast<std::size_t>(buffer.size())});
    }
    std::filesystem::remove(file);
}
BENCHMARK(SameCommandsToPdfBare)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace kalvane
